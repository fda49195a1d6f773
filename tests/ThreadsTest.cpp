#include "support/LogRecorder.hpp"
#include "support/ScopedTranslator.hpp"

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QDate>

#include <array>
#include <gmock/gmock.h>
#include <sstream>
#include <thread>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

// Changes a registry and an account that share their texts with those of the other threads, and gives
// the texts of all that it meets.
std::string keepBooks(BankMap banks, ReconciledBankAccount account)
{
  std::ostringstream met;
  auto const refused = [&](auto const& change) {
    try {
      change();
    } catch (BankError const& refusal) {
      met << refusal.what() << '\n';
    }
  };
  auto const elm = account.bankAccount().bankName;
  banks.add(elm, AccountNumber(300), toBankAccountTypes("~Loan"));
  refused([&] { banks.add(elm, AccountNumber(200), BankAccountTypes::Loan); });
  banks.close(elm);
  refused([&] { banks.rename(elm, BankName("Ash")); });
  banks.open(elm);
  banks.rename(elm, BankName("Ash"));
  banks.remove(BankName("Ash"), AccountNumber(100));
  account.reconcile(QDate(2026, 1, 31), mintar::Money(mintar::Currency("CAD"), 1250));
  refused([&] { account.reconcile(QDate(2026, 1, 30), account.balance()); });
  met << banks << account;
  return met.str();
}

} // namespace

TEST(Threads, KeepDistinctBooksAtTheSameTime)
{
  LogRecorder const recorder;
  BankName const elm("Elm");
  BankMap banks;
  banks.add(Bank(elm, {}, false));
  banks.add(elm, AccountNumber(100), BankAccountTypes::Savings);
  banks.add(Bank(BankName("Oak"), {{AccountNumber(200), BankAccountTypes::Goal}}, false));
  ReconciledBankAccount const account({elm, {}}, mintar::Currency("CAD"));
  EXPECT_EQ(LogRecorder::take().size(), 1U);

  // Not before the first message, which makes Qt look up texts of its own.
  ScopedTranslator const translator;
  auto const expected = keepBooks(banks, account);
  EXPECT_EQ(LogRecorder::take().size(), 4U);

  constexpr std::size_t rounds = 50;
  std::array<std::string, 4> met;
  std::vector<std::thread> threads;
  for (auto& text : met) {
    threads.emplace_back([&] {
      for (std::size_t round = 0; round < rounds; ++round) {
        text = keepBooks(banks, account);
      }
    });
  }
  for (auto& thread : threads) {
    thread.join();
  }
  EXPECT_THAT(met, testing::Each(expected));
  EXPECT_EQ(LogRecorder::take().size(), 4U * rounds * met.size());
}
