#include "support/Testing.hpp"

#include <foundation/Date.hpp>

static BankAccount const chequeing{elm, {hundred, Chequeing}};

TEST(ReconciledBankAccount, RefusesAnEarlierDate)
{
  ReconciledBankAccount account(chequeing, dollars, march);
  EXPECT_REFUSED(
      account, account.reconcile(march.addDays(-1), Money()), elm,
      "The last reconciled date, 2026-03-31, cannot be updated to be in the past, 2026-03-30.");
  ScopedLocale const german(QLocale("de_DE")); // which only the error follows
  EXPECT_REFUSED(account, account.reconcile(QDate(), dollars), elm,
                 "The last reconciled date, " + orv::foundation::presentationText(march) +
                     ", cannot be updated to be in the past, .");
  EXPECT_TRUE(streamed(account).endsWith("Reconciled On: (2026-03-31)"));
}

TEST(ReconciledBankAccount, AcceptsTheSameDateOrALaterOneInAnyCurrency)
{
  ReconciledBankAccount account(chequeing, Currency("CAD"));
  EXPECT_EQ(account.balance(), Money(Currency("CAD")));
  EXPECT_EQ(account.reconciledOn(), std::nullopt);
  qint64 cents = 0;
  for (auto const& date : {QDate(), QDate(), QDate(-4000, 1, 1), march, march}) {
    ++cents;
    Money const balance(Currency(cents % 2 == 0 ? "CAD" : "EUR"), cents);
    account.reconcile(date, balance);
    expectWritten(account, "Bank Account: (" + streamed(chequeing) + "), Balance: (" +
                               streamed(balance) + ") Reconciled On: (" + streamed(date) + ")");
  }
}

TEST(ReconciledBankAccount, IsCopiedAndMovedWithAllItsFields)
{
  ReconciledBankAccount const original(chequeing, dollars, march);
  ReconciledBankAccount account;
  auto& self = account = original;
  self = account;
  self = std::move(account);
  ReconciledBankAccount copy(self);
  ReconciledBankAccount moved(std::move(copy));
  ReconciledBankAccount const undated;
  self = undated;
  EXPECT_EQ(streamed(self), "Bank Account: (" + streamed(BankAccount()) +
                                "), Balance: () Reconciled On: (<optional-value-not-set>)");
  self = std::move(moved);
  EXPECT_EQ(streamed(self), streamed(original));
  EXPECT_EQ(copy.reconciledOn(), march);
  EXPECT_EQ(moved.reconciledOn(), march);
  EXPECT_EQ(moved.bankAccount().accountNumberBankType.accountNumber, hundred);
  EXPECT_EQ(ReconciledBankAccount({}, dollars, QDate()).reconciledOn(), QDate());
}

TEST(ReconciledBalance, IsWrittenInFiveParts)
{
  auto const money = debugged(dollars);
  auto const date = debugged(march);
  EXPECT_EQ(debugged(ReconciledBalance{dollars, march}, QString("next")),
            QStringList({"Balance ( " + money[0] + "), Occurred On ( " + date[0] + ") \"next\" ",
                         "Balance (" + money[1] + "), Occurred On (" + date[1] + ")next"}));
}
