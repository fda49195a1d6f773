#include "OfxReader.hpp"

#include "BookError.hpp"
#include "Terminal.hpp"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <string_view>
#include <utility>

namespace {

struct Tag
{
  QString name; // in capital letters, without a namespace; empty where there is no tag any more
  bool isEnd = false;
  std::size_t begin = std::string_view::npos;
  std::size_t end = std::string_view::npos;
};

// The first tag from a place on, past comments, sections, elements like <X/>, and a < that stands for
// itself.
Tag nextTag(std::string_view content, std::size_t from)
{
  static QRegularExpression const form(
      QStringLiteral("^<(/?)(?:[A-Z][^\\s/:<>]*+:)?+([A-Z][^\\s/<>]*+)[^<>]*+(?<!/)>$"),
      QRegularExpression::CaseInsensitiveOption);
  for (auto at = content.find('<', from); at < content.size(); at = content.find('<', from)) {
    auto const rest = content.substr(at);
    auto const isComment = rest.starts_with("<!--");
    if (isComment || rest.starts_with("<![")) {
      auto const end = rest.find(isComment ? "-->" : "]]>");
      if (end >= std::min(rest.find(rest.substr(0, 3), 3), rest.size())) {
        break; // It does not end, or only where another does that begins in it.
      }
      from = at + end + 3;
      continue;
    }
    auto const tag = rest.substr(0, rest.find_first_of("<>", 1) + 1);
    auto const match = form.match(QString::fromLatin1(QByteArrayView(tag)));
    if (match.hasMatch()) {
      return {match.captured(2).toUpper(), match.capturedLength(1) > 0, at, at + tag.size()};
    }
    from = at + 1;
  }
  return {};
}

QString toValue(std::string_view bytes)
{
  auto text = QString::fromUtf8(QByteArrayView(bytes));
  text.replace("&nbsp;", " ");
  QXmlStreamReader xml("<v>" + text + "</v>");
  xml.readNextStartElement();
  auto const value = xml.readElementText();
  // In SGML, an ampersand may also stand for itself.
  return printable((xml.hasError() ? text : value).simplified());
}

} // namespace

QList<OfxValues> readOfx(QByteArray const& bytes)
{
  // The elements that hold others, whose tags tell whether the file is whole. All others are values: in
  // SGML they may do without end tags, and some banks mistype them.
  static QRegularExpression const holder(QStringLiteral(
      "^(?:OFX|SIGNONMSGSRSV1|SONRS|FI|STATUS|(?:BANK|CREDITCARD|INVSTMT)MSGSRSV1|"
      "(?:CC|INV)?STMT(?:TRN)?RS|(?:BANK|CC|INV)ACCTFROM|(?:BANK|CC)ACCTTO|BANKTRANLIST|STMTTRN|"
      "(?:EXTD)?PAYEE|(?:ORIG)?CURRENCY|IMAGEDATA|LEDGERBAL|AVAILBAL|BALLIST|BAL)$"));
  static QRegularExpression const wanted(
      QStringLiteral("^/OFX/(?:.*/)?(?:CC)?STMTRS/(?:(?:BANK|CC)ACCTFROM/)?"
                     "(CURDEF|ACCTID|ACCTTYPE|LEDGERBAL/BALAMT|LEDGERBAL/DTASOF)$"));
  QList<OfxValues> statements;
  QString path(u'/'); // of the elements that hold the tag
  bool isOfx = false;
  bool isDamaged = false;
  std::string_view const content(bytes.data(), static_cast<std::size_t>(bytes.size()));
  for (auto tag = nextTag(content, 0), next = tag; !tag.name.isEmpty() && !isDamaged; tag = next) {
    next = nextTag(content, tag.end);
    auto const step = tag.name + u'/';
    auto const isStatement = step == u"STMTRS/" || step == u"CCSTMTRS/";
    if (auto const value = wanted.match(path + tag.name).captured(1); !value.isEmpty()) {
      // What is said twice is damaged, and so is an end tag that is not next.
      isDamaged = tag.isEnd || statements.last().contains(value);
      statements.last()[value] = toValue(content.substr(tag.end, next.begin - tag.end));
      next = next.isEnd && next.name == tag.name ? nextTag(content, next.end) : next;
    } else if (tag.isEnd && holder.match(tag.name).hasMatch()) {
      isDamaged = !path.endsWith(u'/' + step);
      path.chop(step.size());
    } else if (holder.match(tag.name).hasMatch()) {
      // No whole file is deeper: in one that is, each step would take longer than the last.
      isDamaged = path.size() > 200 || (isStatement && path.contains("STMTRS/")) ||
                  (step == u"OFX/" && std::exchange(isOfx, true));
      path += step;
    }
    if (isStatement && !tag.isEnd && path.startsWith(u"/OFX/")) {
      statements += tag.name == u"STMTRS" ? OfxValues() : OfxValues{{"ACCTTYPE", "CREDITCARD"}};
    }
  }
  if (isDamaged || path != u"/") {
    throw BookError(BookError::tr("The file is cut short, damaged, or several files in one."));
  }
  if (!isOfx) {
    throw BookError(BookError::tr("The file is not an OFX file, or is one in UTF-16 or UTF-32."));
  }
  return statements;
}
