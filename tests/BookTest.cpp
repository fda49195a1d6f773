#include "Book.hpp"

#include "BookReader.hpp"
#include "support/Testing.hpp"

using namespace testing;

namespace {

QString answer(Book& book, QString const& line)
{
  try {
    return book.execute(toWords(line));
  } catch (std::exception const& refusal) {
    return refusal.what() + QString("\n");
  }
}

} // namespace

// Each line after "> " is carried out, and its answer follows. What is printed at the end makes the same
// book again.
TEST(Book, AnswersAsInTheTranscripts)
{
  QDir const folder(TRANSCRIPTS);
  for (auto const* const name :
       {"balances", "identifiers", "printing", "refusals", "statements", "words"}) {
    QFile file(folder.filePath(QString(name) + ".txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    Book book(folder);
    for (auto const& exchange : ('\n' + toText(file.readAll())).split("\n> ").mid(1)) {
      auto const line = exchange.section('\n', 0, 0);
      EXPECT_EQ(answer(book, line).trimmed(), exchange.section('\n', 1).trimmed())
          << line.toStdString();
    }
    Book again;
    for (auto const& line : answer(book, "print").split('\n')) {
      answer(again, line);
    }
    for (auto const* const shown : {"print", "list"}) {
      EXPECT_EQ(answer(again, shown), answer(book, shown));
    }
  }
}

TEST(Book, RefusesWhatItCannotRead)
{
  Book book{QDir(TRANSCRIPTS)};
  answer(book, "bank Elm 1=Loan");
  for (auto const* const name : {"missing", "."}) {
    EXPECT_THAT(answer(book, QString("statement 1 ") + name).toStdString(),
                StartsWith(TRANSCRIPTS "/" + std::string(name) + " cannot be read: "));
  }
  auto const refuses = [](QByteArray const& line, std::string const& start) {
    EXPECT_THAT([&] { toText(line); }, ThrowsMessage<BookError>(StartsWith(start)));
  };
  refuses("bank \xC3", "The line is not UTF-8 text");
  refuses(QByteArray("bank a\0b", 8), "The line contains a NUL character.");
  refuses("# my book\rbank a\r", "The line contains a carriage return");
}
