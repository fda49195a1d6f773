#include "Terminal.hpp"

#include <QRegularExpression>

#include <utf8proc.h>

bool isPrintable(char32_t c)
{
  auto const category = QChar::category(c);
  // Scripts and emoji need joiners, and text from right to left its marks.
  auto const isNeeded = c == 0x061C || (c >= 0x200C && c <= 0x200F);
  return isNeeded || (category != QChar::Other_Format && category != QChar::Other_Control &&
                      category != QChar::Separator_Line && category != QChar::Separator_Paragraph);
}

namespace {

// In columns of a terminal.
qsizetype widthOf(QString const& text)
{
  qsizetype width = 0;
  for (auto const c : text.toStdU32String()) {
    width += utf8proc_charwidth(static_cast<utf8proc_int32_t>(c));
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
      width = qMax(width, widthOf(row.value(column)));
    }
    rows[1][column] = QString(width, u'-');
    for (qsizetype i = 0; i < rows.size(); ++i) {
      auto const cell = rows[i].value(column);
      QString const padding(width - widthOf(cell), u' ');
      lines[i] += (alignments[column] == 'r' ? padding + cell : cell + padding) + "  ";
    }
  }
  static QRegularExpression const blanks(QStringLiteral(" +$"));
  return lines.replaceInStrings(blanks, {}).join(u'\n') + u'\n';
}
