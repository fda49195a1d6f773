#include "support/Refusal.hpp"

#include <foundation/Date.hpp>

static_assert(std::is_nothrow_copy_constructible_v<ReconciledBankAccount>);
static_assert(std::is_nothrow_move_constructible_v<ReconciledBankAccount>);

static BankAccount const chequeing{elm, {hundred, Chequeing}};

TEST(ReconciledBankAccount, RefusesTheEarlierDate)
{
  ReconciledBankAccount const account(chequeing, dollars, march);
  EXPECT_REFUSED(
      account, account.reconcile(march.addDays(-1), Money()), elm,
      "The last reconciled date, 2026-03-31, cannot be updated to be in the past, 2026-03-30.");
  ReconciledBankAccount const nameless({}, dollars, march);
  EXPECT_REFUSED(nameless, nameless.reconcile(QDate(), dollars), {},
                 "The last reconciled date, 2026-03-31, cannot be updated to be in the past, .");
  QLocale::setDefault(QLocale("de_DE")); // which only the error follows
  EXPECT_REFUSED(account, account.reconcile(QDate(), dollars), elm,
                 "The last reconciled date, " + QLocale().toString(march, QLocale::ShortFormat) +
                     ", cannot be updated to be in the past, .");
  EXPECT_TRUE(streamed(account).endsWith("Reconciled On: (2026-03-31)"));
  QLocale::setDefault(QLocale::c());
}

TEST(ReconciledBankAccount, IsReconciledWithALaterDateInItsCurrency)
{
  ReconciledBankAccount account(chequeing, Currency("CAD"));
  auto const expectHeld = [&](Money const& balance, QString const& date) {
    expectWritten(account, "Bank Account: (" + streamed(chequeing) + "), Balance: (" +
                               streamed(balance) + ") Reconciled On: (" + date + ")");
  };
  EXPECT_THROW(account.reconcile(march, Money(Currency("EUR"))), std::invalid_argument);
  expectHeld(Money(Currency("CAD")), "<optional-value-not-set>");
  qint64 cents = 0;
  for (auto const& date : {QDate(), QDate(), QDate(-4000, 1, 1), march, march}) {
    Money const balance(Currency("CAD"), ++cents);
    account.reconcile(date, balance);
    expectHeld(balance, streamed(date));
    EXPECT_THROW(account.reconcile(march.addDays(1), Money()), std::invalid_argument);
    expectHeld(balance, streamed(date));
  }
}

// Also where that changes the currency, which the assignment of an amount refuses.
TEST(ReconciledBankAccount, IsCopiedAndMovedWhole)
{
  ReconciledBankAccount const original(chequeing, dollars, march);
  auto const text = streamed(original);
  ReconciledBankAccount account({}, Currency("EUR"));
  auto& self = account = original;
  self = account;
  self = std::move(account);
  ReconciledBankAccount copy(self);
  ReconciledBankAccount moved(std::move(copy));
  self = ReconciledBankAccount({}, Currency("EUR")); // which has no date
  self = std::move(moved);
  EXPECT_EQ(streamed(self), text);
  EXPECT_EQ(copy.reconciledOn(), march);
  EXPECT_EQ(moved.reconciledOn(), march);
  EXPECT_EQ(moved.bankAccount().accountNumberBankType.accountNumber, hundred);
  self.reconcile(march, Money(Currency("CAD")));
  EXPECT_EQ(streamed(original), text);
  self = ReconciledBankAccount();
  EXPECT_EQ(streamed(self), "Bank Account: (" + streamed(BankAccount()) +
                                "), Balance: () Reconciled On: (<optional-value-not-set>)");
  EXPECT_EQ(ReconciledBankAccount({}, dollars, QDate()).reconciledOn(), QDate());
  self.reconcile(march, dollars); // takes any currency
  EXPECT_EQ(self.balance(), dollars);
}

TEST(ReconciledBalance, WritesItsFieldsWithoutQuotes)
{
  auto const money = debugged(dollars);
  auto const date = debugged(march);
  EXPECT_EQ(debugged(ReconciledBalance{dollars, march}, QString("next")),
            QStringList({"Balance ( " + money[0] + "), Occurred On ( " + date[0] + ") \"next\" ",
                         "Balance (" + money[1] + "), Occurred On (" + date[1] + ")next"}));
}
