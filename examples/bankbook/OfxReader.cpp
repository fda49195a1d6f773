#include "OfxReader.hpp"

#include "BookReader.hpp"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

struct Tag
{
  QString name; // in capital letters, without a namespace
  bool isEnd = false;
  qsizetype begin = 0;
  qsizetype end = 0; // where the text up to the next tag begins
};

// The tags up to the first </OFX>.
QList<Tag> tagsIn(QString const& content)
{
  // Comments, sections and instructions, where tags are none, and tags. What follows a + is not given up
  // again, so that the time is linear.
  static QRegularExpression const markup(
      QStringLiteral("<!--(?:.*?-->|.*+)|<!\\[(?:.*?\\]\\]>|.*+)|<[!?][^>]*+|"
                     "<(/?)(?:[A-Z][^\\s/:<>]*+:)?+([A-Z][^\\s/<>]*+)[^<>]*+>"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  QList<Tag> tags;
  for (auto const& match : markup.globalMatch(content)) {
    auto const name = match.captured(2).toUpper();
    auto const isEnd = match.capturedLength(1) > 0;
    if (!name.isEmpty()) {
      tags += {name, isEnd, match.capturedStart(), match.capturedEnd()};
    }
    if (isEnd && name == u"OFX") {
      break;
    }
  }
  return tags;
}

QString valueOf(QString text)
{
  text.replace("&nbsp;", " ");
  QXmlStreamReader xml("<v>" + text + "</v>");
  xml.readNextStartElement();
  auto const value = xml.readElementText();
  return xml.hasError() ? text : value; // in SGML, an ampersand may also stand for itself
}

} // namespace

QList<OfxValues> readOfx(QByteArray const& bytes)
{
  if (bytes.left(4).contains('\0') || bytes.startsWith("\xFF\xFE") ||
      bytes.startsWith("\xFE\xFF")) {
    throw BookError(BookError::tr("The file is in UTF-16 or UTF-32, which cannot be read."));
  }
  auto const content = QString::fromUtf8(bytes);
  auto const tags = tagsIn(content);
  auto const starts = std::count_if(
      tags.begin(), tags.end(), [](auto const& tag) { return tag.name == u"OFX" && !tag.isEnd; });
  if (starts != 1 || content.indexOf(u"<OFX", tags.last().end, Qt::CaseInsensitive) >= 0) {
    throw BookError(starts == 0 ? BookError::tr("The file is not an OFX file.")
                                : BookError::tr("The file is several OFX files in one."));
  }

  // Backwards, as it takes the end tag to tell an element that holds others from one that holds a value
  // and may do without.
  QList<OfxValues> statements;
  QStringList parents; // of the tag, the outermost first
  qsizetype depth = 0; // of what stands directly in the statement that the tag is in, if any
  for (auto i = tags.size() - 1; i >= 0; --i) {
    auto const& [name, isEnd, begin, end] = tags[i];
    auto const isStatement = name == u"STMTRS" || name == u"CCSTMTRS";
    auto const hasEnd = isEnd || parents.endsWith(name);
    if ((!hasEnd && (isStatement || name == u"OFX")) || (isEnd && isStatement && depth > 0)) {
      throw BookError(BookError::tr("The file is cut short or damaged."));
    }
    if (isEnd) {
      parents += name;
    } else if (hasEnd) {
      parents.removeLast();
    }
    if (isStatement) {
      depth = isEnd ? parents.size() : 0;
      if (isEnd) {
        statements.prepend(name == u"STMTRS" ? OfxValues() : OfxValues{{"ACCTTYPE", "CREDITCARD"}});
      }
    } else if (depth > 0 && !isEnd && parents.size() <= depth + 1 &&
               (!hasEnd || tags[i + 1].isEnd)) {
      auto const text = content.mid(end, tags[i + 1].begin - end);
      auto const place = (parents.mid(depth) << name).join(u'/');
      statements.first()[place.section("ACCTFROM/", -1)].prepend(valueOf(text) + u' ');
    }
  }
  return statements;
}
