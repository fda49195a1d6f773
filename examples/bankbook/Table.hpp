#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A table for a terminal: columns as wide as their widest text, two spaces apart, the header
/// underlined. `alignments` has one letter a column, l for left and r for right.
QString toTable(QList<QStringList> const& rowsWithHeader, QByteArrayView alignments);
