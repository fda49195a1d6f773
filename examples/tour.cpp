#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QDebug>

using namespace orv::banking;
using orv::accounting::AccountNumber;

int main()
{
  BankName const elm("Elm");
  BankName const oak("Oak");
  BankMap banks({
      {elm, Bank(elm, {{AccountNumber(1010), BankAccountTypes::Chequeing}}, false)},
      {oak, Bank(oak, {}, false)},
  });
  banks.add(elm, AccountNumber(2010), BankAccountTypes::CreditCard); // logs a message
  // prints: Adding account number 2010 which is "Credit Card" to "Financial Institution Name: (Elm)"

  try {
    banks.add(oak, AccountNumber(2010), BankAccountTypes::Loan);
  } catch (BankError const& error) { // the registry is unchanged
    qInfo() << error.what();
    // prints: There is an issue with the bank 'Oak'. Cannot add the account number, 2010, as the bank 'Elm' is already associated with that number.
  }

  mintar::Currency const cad("CAD");
  ReconciledBankAccount card({elm, {AccountNumber(2010), BankAccountTypes::CreditCard}}, cad);
  card.reconcile(QDate(2026, 10, 31), mintar::Money(cad, -125050)); // $1,250.50 is owed
  qInfo() << *card.reconciledOn();
  // prints: QDate("2026-10-31")
}
