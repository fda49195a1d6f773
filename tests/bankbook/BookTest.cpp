#include "Book.hpp"

#include "BookReader.hpp"
#include "support/Testing.hpp"

static QString answer(Book& book, QByteArray const& line)
{
  try {
    return execute(book, toWords(toText(line)));
  } catch (std::exception const& refusal) {
    return refusal.what() + QString("\n");
  }
}

// Each line after "> " is carried out, and its answer follows. What is printed at the end makes the same
// book again.
TEST(Book, AnswersAsInTheTranscripts)
{
  QDir const folder(TRANSCRIPTS);
  for (auto const* const name :
       {"balances", "identifiers", "printing", "refusals", "statements", "words"}) {
    QFile file(folder.filePath(QString(name) + ".txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    Book book{folder};
    for (auto const& exchange : ('\n' + QString::fromUtf8(file.readAll())).split("\n> ").mid(1)) {
      auto const line = exchange.section('\n', 0, 0);
      EXPECT_EQ(answer(book, line.toUtf8()).trimmed(), exchange.section('\n', 1).trimmed())
          << line.toStdString();
    }
    Book again;
    for (auto const& line : answer(book, "print").toUtf8().split('\n')) {
      answer(again, line);
    }
    EXPECT_EQ(answer(again, "print") + answer(again, "list"),
              answer(book, "print") + answer(book, "list"));
  }
}
