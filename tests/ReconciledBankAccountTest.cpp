#include "support/Refusal.hpp"

static_assert(std::is_nothrow_copy_constructible_v<ReconciledBankAccount>);
static_assert(std::is_nothrow_move_constructible_v<ReconciledBankAccount>);

namespace {

BankAccount const account{elm, {some, Chequeing}};

} // namespace

TEST(ReconciledBankAccount, RefusesTheEarlierDate)
{
  Refusal<ReconciledBankAccount> const refusals[] = {
      {[](auto& subject) { subject.reconcile(march.addDays(-1), dollars); }, elm,
       "The last reconciled date, 2026-03-31, cannot be updated to be in the past, 2026-03-30."}};
  expectRefusals(ReconciledBankAccount(account, dollars, march), refusals);
}

TEST(ReconciledBankAccount, HoldsWhatIsNotRefused)
{
  enum Outcome
  {
    Taken,
    Earlier,
    Foreign
  };
  std::tuple<QDate, qint64, char const*, Outcome> const reconciliations[] = {
      {march, 1, "EUR", Foreign},
      {QDate(), 2, "CAD", Taken}, // earlier than every valid date
      {QDate(-4000, 1, 1), 3, "CAD", Taken},
      {QDate(), 4, "CAD", Earlier},
      {march, -5, "CAD", Taken},
      {march.addDays(-1), 6, "EUR", Earlier},
      {march, 7, "CAD", Taken},
      {march.addDays(1), 8, "", Foreign},
      {march.addDays(1), 9, "CAD", Taken},
  };
  ReconciledBankAccount subject(account, Currency("CAD"));
  Money balance(Currency("CAD"));
  QString date("<optional-value-not-set>");
  for (auto const& [newDate, amount, currency, outcome] : reconciliations) {
    auto const earlier = subject;
    auto const earlierText = streamed(subject);
    Money const newBalance(Currency(currency), amount);
    auto const reconcile = [&, &newDate = newDate] { subject.reconcile(newDate, newBalance); };
    if (outcome == Taken) {
      reconcile();
      balance = newBalance;
      date = newDate.toString(Qt::ISODate);
    } else if (outcome == Earlier) {
      EXPECT_THROW(reconcile(), BankError);
    } else {
      EXPECT_THROW(reconcile(), std::invalid_argument);
    }
    EXPECT_EQ(streamed(earlier), earlierText);
    // Assigned to another account and to itself, copied and moved, it stays whole.
    ReconciledBankAccount other({}, Money(Currency("EUR"), 1), march);
    auto& self = other = std::move(subject);
    other = self;
    other = std::move(self);
    ReconciledBankAccount copy(other);
    ReconciledBankAccount const moved(std::move(copy));
    subject = moved;
    expectWritten(subject, "Bank Account: (" + streamed(account) + "), Balance: (" +
                               streamed(balance) + ") Reconciled On: (" + date + ")");
  }
}

TEST(ReconciledBalance, WritesItsFieldsWithoutQuotes)
{
  EXPECT_EQ(debugged(ReconciledBalance{dollars, march}),
            "Balance ( " + debugged(dollars) + "), Occurred On ( " + debugged(march) + ") ");
}
