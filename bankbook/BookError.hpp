#pragma once

#include <QCoreApplication>
#include <QString>

#include <stdexcept>

/// An error of whoever wrote a line, or of a file that it names. `what()` is for the user, translated and
/// in UTF-8, as it is of the library's own errors.
class BookError : public std::runtime_error
{
  Q_DECLARE_TR_FUNCTIONS(BookError)

public:
  explicit BookError(QString const& text) : std::runtime_error(text.toStdString()) {}
};
