#pragma once

#include <banking/BankAccountTypes.hpp>
#include <banking/BankName.hpp>
#include <banking/Export.hpp>

#include <QTypeInfo>

#include <iosfwd>

namespace orv::banking {

/// An account at a bank: the bank, the ledger account number and the kind. Nothing is checked.
struct BankAccount
{
  /// The bank that holds the account.
  BankName bankName;

  /// The account's number and kind.
  AccountNumberBankType accountNumberBankType;
};

/// For instance "Main Street Credit Union: 100 (Credit Card)", with the kind in the user's language or
/// in plain text. Throws `std::logic_error` as `BankAccountTypes` says.
ORV_BANKING_EXPORT QString presentationText(BankAccount const& account,
                                            foundation::LocaleAware localeAware);

/// Writes "Bank (", the stream form of the name, "), Account Type (", the stream form of the number
/// and kind, and ")". Throws `std::logic_error` as `BankAccountTypes` says, when the text before the
/// kind has been written.
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankAccount const& account);

/// Writes the text that the standard stream gets, as one `QString`, or nothing where that throws.
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankAccount const& account);

} // namespace orv::banking

Q_DECLARE_TYPEINFO(orv::banking::BankAccount, Q_RELOCATABLE_TYPE);
