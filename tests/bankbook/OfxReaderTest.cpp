#include "OfxReader.hpp"

#include "Data.hpp"
#include "Text.hpp"
#include "support/Testing.hpp"

// The accounts in a file, with their balances and days or with what is wrong, or why the file is
// refused.
static QString outcome(QByteArray const& content)
{
  QStringList accounts;
  try {
    auto const file = readOfx(content);
    for (auto const& [identifier, statement] : file.asKeyValueRange()) {
      auto const& [balance, fault] = statement;
      auto const known = streamed(balance.balance) + ' ' + balance.occurredOn.toString(Qt::ISODate);
      accounts += identifier + ' ' + (fault.isEmpty() ? known : fault);
    }
  } catch (BookError const& refusal) {
    return refusal.what();
  }
  return printable(accounts.join("; "));
}

class Ofx : public testing::TestWithParam<QStringList>
{
};

TEST_P(Ofx, IsReadOrRefused)
{
  auto const content = textOf("sent.ofx");
  auto const before = GetParam()[1] == "ALL" ? content : GetParam()[1];
  EXPECT_TRUE(content.contains(before));
  EXPECT_EQ(coded(outcome(QString(content).replace(before, GetParam()[2]).toUtf8())),
            coded(GetParam()[3]));
}

static std::vector<QStringList> changes()
{
  std::vector<QStringList> changes;
  for (auto const& change : textOf("changes.txt").trimmed().split('\n').mid(2)) {
    changes.push_back(change.split(" | "));
  }
  return changes;
}

INSTANTIATE_TEST_SUITE_P(Changed, Ofx, testing::ValuesIn(changes()),
                         [](auto const& info) { return plain(info.param[0].toStdString()); });

TEST(Ofx, IsReadWhateverItsSizeAndEncoding)
{
  auto const content = textOf("sent.ofx").toUtf8();
  auto const taken = outcome(content);
  auto const damaged = outcome("<OFX>");
  QByteArray const comment = "<OFX><!--" + QByteArray(10'000'000, '-') + "<STMTRS>-->";
  EXPECT_EQ(outcome(QByteArray(content).replace("<OFX>", comment)), taken);
  QByteArray const deep =
      QByteArray("<PAYEE>").repeated(100'000) + QByteArray("</PAYEE>").repeated(100'000);
  EXPECT_EQ(outcome(QByteArray(content).replace("<NAME>", deep)), damaged);
  EXPECT_TRUE(outcome(QByteArray("<\0O\0F\0X\0", 8))
                  .startsWith("The character \\u{0} cannot be shown; save"));
  EXPECT_TRUE(
      outcome(QByteArray(content).replace(">INFO", ">ERROR<MESSAGE>\xE9t\xE9")).endsWith(": été"));
}
