#include <accounting/AccountNumber.hpp>
#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <cstring>

using namespace orv::banking;

// Gives 0 when the library's refusals arrive here by their type, and with their text.
int main()
{
  try {
    BankMap().close(BankName("Elm"));
  } catch (BankError const& refusal) {
    try {
      ReconciledBankAccount({}, mintar::Money(), QDate(2026, 2, 1)).reconcile(QDate(), {});
    } catch (orv::foundation::Error const&) {
      return std::strcmp(refusal.what(), "There is an issue with the bank 'Elm'. "
                                         "Cannot close a bank that does not exist.");
    }
  }
  return 1;
}
