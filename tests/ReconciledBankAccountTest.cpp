#include "support/Printing.hpp"
#include "support/Refusal.hpp"

#include <banking/ReconciledBalance.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QLocale>

#include <gmock/gmock.h>
#include <iterator>
#include <stdexcept>
#include <type_traits>
#include <typeinfo>
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
BankAccount const account{BankName("Elm %2"), {AccountNumber(100), BankAccountTypes::Chequeing}};

} // namespace

TEST(ReconciledBankAccount, RefusesTheEarlierDate)
{
  QLocale::setDefault(QLocale("en_CA"));
  ReconciledBankAccount subject(account, dollars, march);
  expectRefused<ReconciledBankAccount>(
      {[](auto& subject) { subject.reconcile(march.addDays(-1), dollars); }, "Elm %2",
       "The last reconciled date, 2026-03-31, cannot be updated to be in the past, 2026-03-30."},
      subject);
  QLocale::setDefault(QLocale::c());
}

TEST(ReconciledBankAccount, HoldsTheReconciliationOrIsAsItWas)
{
  // Ascending: the invalid date is before every other.
  QDate const dates[] = {QDate(), QDate(-4000, 1, 1), march, march.addDays(1)};
  for (auto const& date : dates) {
    for (auto const isDollars : {true, false}) {
      for (auto const* before = std::begin(dates); before <= std::end(dates); ++before) {
        auto const held = before == std::end(dates) ? std::nullopt : std::optional(*before);
        ReconciledBankAccount subject(account, dollars, held);
        Money const money(Currency(isDollars ? "CAD" : "EUR"), 7);
        std::string refusal;
        try {
          subject.reconcile(date, money);
        } catch (std::exception const& error) {
          refusal = typeid(error).name();
        }
        auto const* const expected = held && before > &date ? typeid(BankError).name()
                                     : isDollars            ? ""
                                                            : typeid(std::invalid_argument).name();
        EXPECT_EQ(refusal, expected);
        EXPECT_EQ(subject.balance(), refusal.empty() ? money : dollars);
        EXPECT_EQ(subject.reconciledOn(), refusal.empty() ? date : held);
      }
    }
  }
}

TEST(ReconciledBankAccount, IsCopiedAndMovedWhole)
{
  ReconciledBankAccount first(account, Currency("EUR"));
  first.reconcile(march, Money(Currency("EUR"), 7));
  auto const second = first;
  ReconciledBankAccount third(BankAccount{}, dollars, std::nullopt);
  third = second;
  third = *&third;
  auto fourth = std::move(third);
  ReconciledBankAccount fifth(BankAccount{}, dollars, std::nullopt);
  fifth = std::move(fourth);
  EXPECT_EQ(streamed(fifth), "Bank Account: (" + streamed(account) +
                                 "), Balance: (0.07\u00a0EUR) Reconciled On: (2026-03-31)");
}

TEST(ReconciledBankAccount, StreamsWithoutADate)
{
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
