#include "support/Refusal.hpp"

#include <banking/ReconciledBalance.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QLocale>

#include <random>
#include <stdexcept>

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
  Refusal<ReconciledBankAccount> const refusals[] = {
      {[](auto& subject) { subject.reconcile(march.addDays(-1), dollars); }, "Elm %2",
       "The last reconciled date, 2026-03-31, cannot be updated to be in the past, 2026-03-30."}};
  expectRefusals(ReconciledBankAccount(account, dollars, march), refusals);
  QLocale::setDefault(QLocale::c());
}

// The model is an amount, its currency and a day; the invalid date is before every other.
TEST(ReconciledBankAccount, HoldsWhatItsModelHolds)
{
  std::mt19937 random;
  auto const dateOf = [](int day) {
    return day > 0 ? QDate(-4000, 1, 1).addDays(day * 120000) : QDate();
  };
  ReconciledBankAccount subject;
  ReconciledBankAccount other;
  subject = ReconciledBankAccount(account, Currency("CAD"));
  qint64 amount = 0;
  QString currency("CAD");
  int day = -1; // where there is none
  for (int step = 0; step < 5000; ++step) {
    auto const newAmount = static_cast<qint64>(random() % 1000);
    QString const newCurrency(std::array{"CAD", "EUR", ""}[random() % 3]);
    auto const newDay = static_cast<int>(random() % 21);
    Money const money(Currency(newCurrency), newAmount);
    auto const isAnew = random() % 4 == 0;
    auto const isEarlier = !isAnew && newDay < day;
    auto const isForeign = !isAnew && !currency.isEmpty() && currency != newCurrency;
    auto const reconcile = [&] { subject.reconcile(dateOf(newDay), money); };
    if (isAnew) {
      subject = ReconciledBankAccount(account, money, std::nullopt);
    } else if (isEarlier) {
      EXPECT_THROW(reconcile(), BankError);
    } else if (isForeign) {
      expectThrows<std::invalid_argument>("Cannot assign an amount of money in another currency.",
                                          reconcile);
    } else {
      reconcile();
    }
    if (!isEarlier && !isForeign) {
      amount = newAmount;
      currency = newCurrency;
      day = isAnew ? -1 : newDay;
    }
    // Copied and moved, it stays whole.
    other = subject;
    other = *&other;
    auto copy = other;
    subject = ReconciledBankAccount(std::move(copy));
    Money const balance(Currency(currency), amount);
    EXPECT_EQ(subject.balance(), balance);
    EXPECT_EQ(subject.reconciledOn(), day < 0 ? std::nullopt : std::optional(dateOf(day)));
    auto const date = day < 0 ? "<optional-value-not-set>" : dateOf(day).toString(Qt::ISODate);
    EXPECT_EQ(streamed(subject), "Bank Account: (" + streamed(account) + "), Balance: (" +
                                     streamed(balance) + ") Reconciled On: (" + date + ")");
    EXPECT_EQ(debuggedPlainly(subject), streamed(subject));
  }
}

TEST(ReconciledBalance, WritesItsFieldsWithoutQuotes)
{
  ReconciledBalance const balance{dollars, march};
  EXPECT_EQ(debuggedPlainly(balance), "Balance (" + debuggedPlainly(dollars) + "), Occurred On (" +
                                          debuggedPlainly(march) + ")");
  EXPECT_EQ(debugged(balance),
            "Balance ( " + debugged(dollars) + "), Occurred On ( " + debugged(march) + ") ");
}
