#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QDebug>

using namespace orv::banking;
using orv::accounting::AccountNumber;

int main()
{
  BankName const elm("Elm Credit Union");
  BankMap banks;
  banks.add(Bank(elm, {{AccountNumber(1010), BankAccountTypes::Chequeing}}, false));
  banks.add(Bank(BankName("Oak Trust"), {}, false));
  banks.add(elm, AccountNumber(2010), BankAccountTypes::CreditCard);

  try {
    banks.add(BankName("Oak Trust"), AccountNumber(2010), BankAccountTypes::Loan);
  } catch (BankError const& refusal) { // and the registry is as it was
    qInfo() << refusal.what();
  }

  mintar::Currency const cad("CAD");
  ReconciledBankAccount card({elm, {AccountNumber(2010), BankAccountTypes::CreditCard}}, cad);
  card.reconcile(QDate(2026, 10, 31), mintar::Money(cad, -125050));
  qInfo() << banks.bank(elm) << card;
}
