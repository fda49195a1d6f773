#include "Book.hpp"

#include "BookReader.hpp"
#include "Data.hpp"
#include "support/Testing.hpp"

static QString answer(Book& book, QString const& line)
{
  try {
    auto const [table, messages, reconciled] = execute(book, toWords(toText(line.toUtf8())));
    return messages.join('\n') + table.trimmed();
  } catch (orv::foundation::Error const& refusal) { // BookError or BankError
    return refusal.what();
  }
}

class Transcript : public testing::TestWithParam<std::string>
{
};

// Each line after "> " is carried out, and its answer follows.
TEST_P(Transcript, HasTheAnswers)
{
  auto const name = QString::fromStdString("transcripts/" + GetParam() + ".txt");
  Book book{QDir(DATA "/transcripts")};
  int number = 1;
  for (auto const& exchange : ('\n' + textOf(name)).split("\n> ").mid(1)) {
    auto const expected = coded(exchange.section('\n', 1).trimmed());
    auto const given = coded(answer(book, exchange.section('\n', 0, 0)));
    if (given != expected) {
      ADD_FAILURE_AT((DATA "/" + name).toUtf8(), number) << given << "\nis the answer, not\n"
                                                         << expected;
    }
    number += static_cast<int>(exchange.count('\n')) + 1;
  }
}

INSTANTIATE_TEST_SUITE_P(Book, Transcript, testing::ValuesIn(filesIn("transcripts")),
                         [](auto const& info) { return plain(info.param); });

// What the form captures in the lines that have it.
static QStringList found(QString const& text, char const* form)
{
  QRegularExpression const line(form);
  auto texts = text.split('\n').filter(line).replaceInStrings(line, "\\1");
  texts.sort();
  texts.removeDuplicates();
  return texts;
}

TEST(Commands, StandInTheManualPageAndInTheFuzzersCorpus)
{
  auto const page = textOf("../../bankbook/bankbook.1.in").remove('\\');
  auto const corpus = textOf("../../fuzz/corpus/book/every-command");
  EXPECT_EQ(found(page, "^\\.B ([a-z].*)$"), found(usage(), "^  ([a-z].*)$"));
  EXPECT_EQ(found(corpus, "^([a-z]+).*"), found(usage(), "^  ([a-z]+).*"));
}
