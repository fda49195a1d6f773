#include "support/Refusal.hpp"

#include <foundation/Date.hpp>

static_assert(std::is_nothrow_copy_constructible_v<ReconciledBankAccount>);
static_assert(std::is_nothrow_move_constructible_v<ReconciledBankAccount>);

BankAccount const account{elm, {some, Chequeing}};

TEST(ReconciledBankAccount, RefusesTheEarlierDate)
{
  Refusal<ReconciledBankAccount> const refusals[] = {
      {[](auto& subject) { subject.reconcile(march.addDays(-1), dollars); }, elm,
       "The last reconciled date, 2026-03-31, cannot be updated to be in the past, 2026-03-30."}};
  expectRefusals(ReconciledBankAccount(account, dollars, march), refusals);
}

TEST(ReconciledBankAccount, HoldsWhatIsNotRefused)
{
  std::tuple<QDate, qint64, QString, QString> const reconciliations[] = {
      {march, 1, "EUR", "foreign"},
      {QDate(), 2, "CAD", "taken"},
      {QDate(-4000, 1, 1), 3, "CAD", "taken"},
      {QDate(), 4, "CAD", "earlier"},
      {march, -5, "CAD", "taken"},
      {march.addDays(-1), 6, "EUR", "earlier"},
      {march, 7, "CAD", "taken"}};
  ReconciledBankAccount subject(account, Currency("CAD"));
  auto balance = streamed(Money(Currency("CAD")));
  QString date("<optional-value-not-set>");
  for (auto const& [newDate, amount, currency, outcome] : reconciliations) {
    Money const newBalance(Currency(currency), amount);
    QString seen("taken");
    try {
      subject.reconcile(newDate, newBalance);
      balance = streamed(newBalance);
      date = streamed(newDate);
    } catch (BankError const&) {
      seen = "earlier";
    } catch (std::invalid_argument const&) {
      seen = "foreign";
    }
    EXPECT_EQ(seen, outcome);
    // Assigned to another account and to itself, copied and moved, it stays whole.
    ReconciledBankAccount other({}, Money(Currency("EUR"), 1), march);
    auto& self = other = std::move(subject);
    other = self;
    other = std::move(self);
    ReconciledBankAccount copy(other);
    ReconciledBankAccount const moved(std::move(copy));
    subject = ReconciledBankAccount({}, Currency("EUR")); // which has no date
    subject = moved;
    expectWritten(subject, "Bank Account: (" + streamed(account) + "), Balance: (" + balance +
                               ") Reconciled On: (" + date + ")");
  }
}

TEST(ReconciledBalance, WritesItsFieldsWithoutQuotes)
{
  EXPECT_EQ(debugged(ReconciledBalance{dollars, march}),
            "Balance ( " + debugged(dollars) + "), Occurred On ( " + debugged(march) + ") ");
}
