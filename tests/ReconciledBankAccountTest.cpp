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

// The model is the balance with its currency, and the day; the invalid date is before every other.
TEST(ReconciledBankAccount, HoldsWhatItsModelHolds)
{
  std::mt19937 random;
  auto const dateOf = [](int day) {
    return day > 0 ? march.addDays(day * 90000 - 1800000) : QDate();
  };
  ReconciledBankAccount subject;
  subject = ReconciledBankAccount(account, Currency("CAD"));
  ReconciledBankAccount other;
  Money balance(Currency("CAD"), 0);
  QString currency("CAD");
  int held = -1; // where there is none
  for (int step = 0; step < 5000; ++step) {
    QString const newCurrency(std::array{"CAD", "EUR", ""}[random() % 3]);
    Money const money(Currency(newCurrency), random() % 1000);
    auto const day = static_cast<int>(random() % 21);
    std::string refusal;
    if (random() % 4 == 0) {
      subject = ReconciledBankAccount(account, money, std::nullopt);
      held = -1;
    } else {
      std::string const expected = day < held ? typeid(BankError).name()
                                   : currency.isEmpty() || currency == newCurrency
                                       ? ""
                                       : typeid(std::invalid_argument).name();
      try {
        subject.reconcile(dateOf(day), money);
        held = day;
      } catch (std::exception const& error) {
        refusal = typeid(error).name();
      }
      EXPECT_EQ(refusal, expected);
    }
    if (refusal.empty()) {
      balance.assign(money);
      currency = newCurrency;
    }
    // Copied and moved, it stays whole.
    other = subject;
    other = *&other;
    auto copy = other;
    subject = ReconciledBankAccount(std::move(copy));
    EXPECT_EQ(subject.balance(), balance);
    EXPECT_EQ(subject.reconciledOn(), held < 0 ? std::nullopt : std::optional(dateOf(held)));
    auto const date = held < 0 ? "<optional-value-not-set>" : dateOf(held).toString(Qt::ISODate);
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
