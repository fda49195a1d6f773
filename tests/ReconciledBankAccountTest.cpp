#include "support/Printing.hpp"
#include "support/Refusal.hpp"

#include <banking/ReconciledBalance.hpp>
#include <banking/ReconciledBankAccount.hpp>
#include <foundation/Date.hpp>

#include <QLocale>

#include <gmock/gmock.h>
#include <stdexcept>
#include <type_traits>
#include <utility>

using namespace orv::banking;
using mintar::Currency;
using mintar::Money;
using orv::accounting::AccountNumber;

static_assert(std::is_nothrow_copy_constructible_v<ReconciledBankAccount>);
static_assert(std::is_nothrow_move_constructible_v<ReconciledBankAccount>);

namespace {

QDate const march(2026, 3, 31);
Money const dollars(Currency("CAD"), 1250);
Money const euros(Currency("EUR"), 7);
BankAccount const account{BankName("Elm %2"), {AccountNumber(100), BankAccountTypes::Chequeing}};

void expectHolds(ReconciledBankAccount const& subject, Money const& balance,
                 std::optional<QDate> const& date)
{
  EXPECT_EQ(subject.balance(), balance);
  EXPECT_EQ(subject.reconciledOn(), date);
  EXPECT_EQ(streamed(subject.bankAccount()), streamed(account));
}

} // namespace

TEST(ReconciledBankAccount, ReconcilesForwardInTime)
{
  ReconciledBankAccount subject(account, Currency("CAD"));
  expectHolds(subject, Money(Currency("CAD")), std::nullopt);
  subject.reconcile(march, dollars);
  expectHolds(subject, dollars, march);
  auto const copy = subject;
  for (auto const days : {0, 1, 366}) {
    Money const balance(Currency("CAD"), days);
    auto const date = subject.reconciledOn()->addDays(days);
    subject.reconcile(date, balance);
    expectHolds(subject, balance, date);
  }
  expectHolds(copy, dollars, march);
}

TEST(ReconciledBankAccount, RefusesTheEarlierDateAndStaysAsItWas)
{
  QLocale::setDefault(QLocale("en_CA"));
  for (auto const& date : {march.addDays(-1), QDate()}) {
    for (auto const& bank : {account, BankAccount{}}) {
      ReconciledBankAccount subject(bank, dollars, march);
      expectRefused<ReconciledBankAccount>(
          {"earlier date",
           [&](auto& subject) { subject.reconcile(date, Money(Currency("CAD"), 9)); },
           bank.bankName.institution(),
           "The last reconciled date, %1, cannot be updated to be in the past, %2.",
           {"2026-03-31", date.isValid() ? "2026-03-30" : ""}},
          subject);
      EXPECT_EQ(subject.reconciledOn(), march);
      EXPECT_EQ(subject.balance(), dollars);
    }
  }
  QLocale::setDefault(QLocale::c());
}

TEST(ReconciledBankAccount, TakesAnyDateAfterNoneOrAnInvalidOne)
{
  for (auto const& before : {std::optional<QDate>(), std::optional(QDate())}) {
    for (auto const& date : {QDate(), QDate(-4000, 1, 1), march}) {
      ReconciledBankAccount subject(account, dollars, before);
      subject.reconcile(date, Money(Currency("CAD"), 1));
      expectHolds(subject, Money(Currency("CAD"), 1), date);
    }
  }
}

TEST(ReconciledBankAccount, StaysAsItWasWhenTheCurrencyIsRefused)
{
  for (auto const& before : {std::optional<QDate>(), std::optional(march)}) {
    ReconciledBankAccount subject(account, dollars, before);
    EXPECT_THROW(subject.reconcile(march.addDays(1), euros), std::invalid_argument);
    expectHolds(subject, dollars, before);
  }
}

TEST(ReconciledBankAccount, IsCopiedAndMovedWhole)
{
  ReconciledBankAccount const source(account, euros, march);
  ReconciledBankAccount subject(BankAccount{}, dollars, std::nullopt);
  expectHolds(subject = source, euros, march);
  expectHolds(ReconciledBankAccount(source), euros, march);
  expectHolds(subject = *&subject, euros, march);
  auto& same = subject;
  expectHolds(subject = std::move(same), euros, march);

  ReconciledBankAccount const moved(std::move(subject));
  expectHolds(moved, euros, march);
  EXPECT_EQ(subject.reconciledOn(), march);
  ReconciledBankAccount third(BankAccount{}, dollars, std::nullopt);
  expectHolds(third = ReconciledBankAccount(moved), euros, march);
}

TEST(ReconciledBankAccount, Streams)
{
  EXPECT_EQ(streamed(ReconciledBankAccount(account, dollars, march)),
            "Bank Account: (" + streamed(account) + "), Balance: (" + streamed(dollars) +
                ") Reconciled On: (2026-03-31)");
  ReconciledBankAccount const none;
  EXPECT_EQ(streamed(none), "Bank Account: (" + streamed(BankAccount{}) +
                                "), Balance: () Reconciled On: (<optional-value-not-set>)");
  EXPECT_EQ(debuggedPlainly(none), streamed(none));
}

TEST(ReconciledBalance, WritesItsFieldsWithoutQuotes)
{
  ReconciledBalance const balance{dollars, march};
  auto const plainly =
      "Balance (" + debuggedPlainly(dollars) + "), Occurred On (" + debuggedPlainly(march) + ")";
  EXPECT_EQ(debuggedPlainly(balance), plainly);
  EXPECT_EQ(debugged(balance),
            "Balance ( " + debugged(dollars) + "), Occurred On ( " + debugged(march) + ") ");
}
