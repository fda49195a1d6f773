#pragma once

#include <QString>

#include <stdexcept>

/// A line of a book that says nothing bankbook can do. `what()` is the translated text in UTF-8, as it
/// is of the library's own errors.
class BookError : public std::runtime_error
{
public:
  explicit BookError(QString const& text) : std::runtime_error(text.toStdString()) {}
};
