#pragma once

#include <foundation/Error.hpp>

#include <QCoreApplication>
#include <QStringList>

/// Returns what a message shows of a value: its first 100 characters.
QString shown(QString const& value);

/// Returns what a message shows of a list: its first ten values.
QString shown(QStringList const& values);

/// Returns a translated text in which the values, as messages show them, take the places of %1, %2,
/// ….
template <typename... Values>
QString filled(QString text, Values const&... values)
{
  if constexpr (sizeof...(values) > 0) {
    text = text.arg(shown(values)...);
  }
  return text;
}

/// An error of whoever wrote a line, or of a file that it names. `what()` is for the user,
/// translated and in UTF-8, as it is of the library's own errors.
class BookError : public orv::foundation::Error
{
  Q_DECLARE_TR_FUNCTIONS(BookError)

public:
  explicit BookError(QString const& text) : Error(text, std::exception()) {}
};

/// Throws `BookError`, with the text that `filled` returns, if something is so.
template <typename... Values>
void refuseIf(bool isSo, QString const& text, Values const&... values)
{
  if (isSo) {
    throw BookError(filled(text, values...));
  }
}

/// Returns the text with a blank for each tab and each space, no-break spaces among them.
///
/// \throws BookError for a character that a terminal cannot show or would obey: a control
///          character, one that ends a line, or one that formats text or overrides its direction.
///          Letters and marks that happen to be invisible are fine.
QString toPlain(QString text);

/// Returns the text with the code of each character that cannot be shown in its place, for instance
/// \u{1B}.
QString printable(QString text);

/// Returns a table for a terminal, columns as wide as their widest text, two spaces apart, the
/// first row underlined. `alignments` has one letter a column, l for left, r for right.
QString toTable(QList<QStringList> rows, QByteArrayView alignments);
