#include "Text.hpp"

#include <QRegularExpression>

#include <utf8proc.h>

namespace {

// What a terminal cannot show or would obey. Scripts and emoji need joiners, and text from right to
// left its marks.
QRegularExpression const
    unprintable(QStringLiteral("(?![\\x{61C}\\x{200C}-\\x{200F}])[\\p{Cc}\\p{Cf}\\p{Zl}\\p{Zp}]"));

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
  static QRegularExpression const blank(QStringLiteral("[\\t\\p{Zs}]"));
  text.replace(blank, QStringLiteral(" "));
  auto const found = unprintable.match(text).captured();
  auto const isOfFile = found == QChar(0) || found == u"\r"; // UTF-16, or lines that end with CR
  refuseIf(!found.isEmpty(),
           isOfFile ? BookError::tr("The character %1 cannot be shown; save the file as UTF-8, "
                                    "with lines that end with LF or CR LF.")
                    : BookError::tr("The character %1 cannot be shown."),
           printable(found));
  return text;
}

QString printable(QString text)
{
  for (auto found = unprintable.match(text); found.hasMatch(); found = unprintable.match(text)) {
    auto const code = QString::number(found.captured().toUcs4()[0], 16).toUpper();
    text.replace(found.captured(), QStringLiteral("\\u{%1}").arg(code));
  }
  return text;
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
