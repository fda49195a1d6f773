#include "Terminal.hpp"

#include <QLocale>

#include <wchar.h>

namespace {

bool isPrintable(char32_t c)
{
  auto const category = QChar::category(c);
  if (category == QChar::Other_Format) {
    // Scripts and emoji join with the first two; right-to-left locales write the others into amounts.
    auto const isMark = c == 0x061C || c == 0x200E || c == 0x200F;
    return c == 0x200C || c == 0x200D || (isMark && QLocale().textDirection() == Qt::RightToLeft);
  }
  return category != QChar::Other_Control && category != QChar::Separator_Line &&
         category != QChar::Separator_Paragraph;
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

QString toTable(QList<QStringList> rows, QByteArrayView alignments)
{
  rows.insert(1, QStringList(alignments.size()));
  QStringList lines(rows.size());
  for (qsizetype column = 0; column < alignments.size(); ++column) {
    qsizetype width = 0;
    for (auto const& row : rows) {
      width = qMax(width, widthOf(printable(row.value(column))));
    }
    rows[1][column] = QString(width, u'-');
    for (qsizetype i = 0; i < rows.size(); ++i) {
      auto const cell = printable(rows[i].value(column));
      QString const padding(width - widthOf(cell), u' ');
      lines[i] += alignments[column] == 'r' ? padding + cell : cell + padding;
      lines[i] += QStringLiteral("  ");
    }
  }
  QString table;
  for (auto& line : lines) {
    while (line.endsWith(u' ')) {
      line.chop(1);
    }
    table += line + u'\n';
  }
  return table;
}
