#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Returns the text in a form that is safe to show on one line of a terminal: control characters, those
/// that end a line, and those that format text or change its direction stand as their code, for instance
/// \u{1B}. Letters and marks that happen to be invisible stay as they are. Whatever comes from a book, a
/// file or the command line passes through here on its way out.
QString printable(QString const& text);

/// Returns a table for a terminal, every cell printable: columns as wide as their widest text, two
/// spaces apart, the first row underlined. `alignments` has one letter a column, l for left, r for right.
QString toTable(QList<QStringList> rows, QByteArrayView alignments);
