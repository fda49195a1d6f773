#include "Text.hpp"

#include <QRegularExpression>

#include <utf8proc.h>

namespace {

bool isPrintable(char32_t c)
{
  auto const category = QChar::category(c);
  // Scripts and emoji need joiners, and text from right to left its marks.
  auto const isNeeded = c == 0x061C || (c >= 0x200C && c <= 0x200F);
  return isNeeded || (category != QChar::Other_Format && category != QChar::Other_Control &&
                      category != QChar::Separator_Line && category != QChar::Separator_Paragraph);
}

QString codeOf(char32_t c)
{
  return QStringLiteral("\\u{%1}").arg(QString::number(c, 16).toUpper());
}

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

QString toPlain(QString text)
{
  for (auto& c : text) {
    if (c == u'\t' || c.category() == QChar::Separator_Space) {
      c = u' ';
    }
  }
  for (auto const c : text.toStdU32String()) {
    if (!isPrintable(c)) {
      auto const hint = BookError::tr("The character %1 cannot be shown; save the file as UTF-8, "
                                      "with lines that end with LF or CR LF.");
      auto const isOfFile = c == 0 || c == '\r'; // which UTF-16 has, or lines that end with CR
      throw BookError(isOfFile ? hint : BookError::tr("The character %1 cannot be shown."),
                      codeOf(c));
    }
  }
  return text;
}

QString printable(QString const& text)
{
  QString shown;
  for (auto const c : text.toStdU32String()) {
    shown += isPrintable(c) ? QString::fromUcs4(&c, 1) : codeOf(c);
  }
  return shown;
}

QString shown(QString const& value)
{
  auto const characters = value.toStdU32String();
  return characters.size() <= 100 ? value
                                  : QString::fromStdU32String(characters.substr(0, 100)) + u'…';
}

QString shown(QStringList const& values)
{
  QString list;
  for (auto const& value : values.mid(0, 10)) {
    list += (list.isEmpty() ? QString() : QStringLiteral(", ")) + shown(value);
  }
  return values.size() > 10 ? list + QStringLiteral(", …") : list;
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
