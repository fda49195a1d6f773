#pragma once

#include <banking/BankAccountTypes.hpp>
#include <banking/BankName.hpp>
#include <banking/Export.hpp>

#include <QTypeInfo>

#include <iosfwd>

namespace orv::banking {

/// An account at a bank: the bank's name, the account number in the ledger, and the kind.
///
/// It is plain data: nothing is checked, and no registry is asked. Use it to show an account, or to
/// say which account is meant.
///
/// \snippet snippets.cpp BankAccount
struct BankAccount
{
  /// The name of the bank that holds the account.
  BankName bankName;

  /// The account's number and kind.
  AccountNumberBankType accountNumberBankType;
};

/// Returns the account as a user reads it, such as "Elm: 100 (Credit Card)".
///
/// `localeAware` chooses the text of the kind, as for `AccountNumberBankType`.
///
/// \throws std::logic_error if the kind is not one of the enumerators
/// \relatesalso BankAccount
[[nodiscard]] ORV_BANKING_EXPORT QString presentationText(BankAccount const& account,
                                                          foundation::LocaleAware localeAware);

/// Writes "Bank (…), Account Type (…)", with what `<<` writes of the name and of number and kind.
/// \relatesalso BankAccount
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankAccount const& account);

/// Writes the same text as one `QString`. \relatesalso BankAccount
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankAccount const& account);

} // namespace orv::banking

QT_BEGIN_NAMESPACE

Q_DECLARE_TYPEINFO(orv::banking::BankAccount,
                   QTypeInfo<orv::accounting::AccountNumber>::isRelocatable ? Q_RELOCATABLE_TYPE
                                                                            : Q_COMPLEX_TYPE);

QT_END_NAMESPACE
