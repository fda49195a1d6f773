#include "Terminal.hpp"

#include <QLocale>

#include <algorithm>
#include <wchar.h>

namespace {

bool isPrintable(char32_t c)
{
  switch (QChar::category(c)) {
  case QChar::Other_Control:
  case QChar::Other_Surrogate:
  case QChar::Separator_Line:
  case QChar::Separator_Paragraph:
    return false;
  case QChar::Other_Format:
    // Scripts and emoji join with these two, and right-to-left locales write marks into dates and amounts.
    return c == 0x200C || c == 0x200D ||
           (QLocale().textDirection() == Qt::RightToLeft &&
            (c == 0x061C || c == 0x200E || c == 0x200F));
  default:
    return true;
  }
}

// In columns of a terminal.
qsizetype widthOf(QString const& text)
{
  qsizetype width = 0;
  for (auto const c : text.toStdU32String()) {
    // -1 for a character that the C library does not know. Qt has set a locale for UTF-8 at the start.
    auto const columns = wcwidth(static_cast<wchar_t>(c));
    width += columns < 0 ? 1 : columns;
  }
  return width;
}

QString toLine(QStringList const& cells, QList<qsizetype> const& widths, QByteArrayView alignments)
{
  QString line;
  for (qsizetype i = 0; i < cells.size(); ++i) {
    QString const padding(widths[i] - widthOf(cells[i]), u' ');
    line += alignments[i] == 'r' ? padding + cells[i] : cells[i] + padding;
    line += QStringLiteral("  ");
  }
  while (line.endsWith(u' ')) {
    line.chop(1);
  }
  return line + u'\n';
}

} // namespace

QString printable(QString const& text)
{
  QString shown;
  for (auto const c : text.toStdU32String()) {
    shown += isPrintable(c) ? QString::fromUcs4(&c, 1)
                            : QStringLiteral("\\u{%1}").arg(QString::number(c, 16).toUpper());
  }
  return shown;
}

QString toTable(QList<QStringList> const& rowsWithHeader, QByteArrayView alignments)
{
  auto rows = rowsWithHeader;
  QList<qsizetype> widths(alignments.size(), 0);
  for (auto& row : rows) {
    for (qsizetype i = 0; i < row.size(); ++i) {
      row[i] = printable(row[i]);
      widths[i] = std::max(widths[i], widthOf(row[i]));
    }
  }
  QStringList underline;
  for (auto const width : widths) {
    underline += QString(width, u'-');
  }
  rows.insert(1, underline);
  QString table;
  for (auto const& row : rows) {
    table += toLine(row, widths, alignments);
  }
  return table;
}
