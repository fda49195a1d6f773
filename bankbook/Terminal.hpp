#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Returns whether a terminal can show the character: control characters, those that end a line, and
/// those that format text or override its direction are not printable. Letters and marks that happen to be
/// invisible are.
bool isPrintable(char32_t character);

/// Returns the text with the code of each character that is not printable in its place, for instance
/// \u{1B}. Whatever comes from a statement, the system or the command line passes through here.
QString printable(QString const& text);

/// Returns a table for a terminal, columns as wide as their widest text, two
/// spaces apart, the first row underlined. `alignments` has one letter a column, l for left, r for right.
QString toTable(QList<QStringList> rows, QByteArrayView alignments);
