#include "Table.hpp"

#include <algorithm>

namespace {

QString toLine(QStringList const& cells, QList<qsizetype> const& widths, QByteArrayView alignments)
{
  QString line;
  for (qsizetype i = 0; i < cells.size(); ++i) {
    line += alignments[i] == 'r' ? cells[i].rightJustified(widths[i])
                                 : cells[i].leftJustified(widths[i]);
    line += QStringLiteral("  ");
  }
  while (line.endsWith(u' ')) {
    line.chop(1);
  }
  return line + u'\n';
}

} // namespace

QString toTable(QList<QStringList> const& rowsWithHeader, QByteArrayView alignments)
{
  QList<qsizetype> widths(alignments.size(), 0);
  for (auto const& row : rowsWithHeader) {
    for (qsizetype i = 0; i < row.size(); ++i) {
      widths[i] = std::max(widths[i], row[i].size());
    }
  }
  QStringList underline;
  for (auto const width : widths) {
    underline += QString(width, QChar(u'-'));
  }
  QString table;
  for (auto const& row : rowsWithHeader) {
    table += toLine(row, widths, alignments);
    if (&row == &rowsWithHeader.first()) {
      table += toLine(underline, widths, alignments);
    }
  }
  return table;
}
