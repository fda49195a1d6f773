#pragma once

#include <banking/BankAccountTypes.hpp>
#include <banking/BankName.hpp>
#include <banking/Export.hpp>

#include <QTypeInfo>

#include <iosfwd>

namespace orv::banking {

/// An account at a bank: the bank's name, the ledger account number and the kind.
///
/// This is plain data: nothing is checked.
///
/// \snippet snippets.cpp BankAccount
struct BankAccount
{
  /// The name of the bank that holds the account.
  BankName bankName;

  /// The account's number and kind.
  AccountNumberBankType accountNumberBankType;
};

/// Returns the account as a user reads it, for example "Elm Credit Union: 100 (Credit Card)".
///
/// With `LocaleAware::Yes` the kind is in the user's language, with `LocaleAware::No` in plain
/// text. The arrangement of number and kind follows the user's language either way.
///
/// \throws std::logic_error if the kind is not one of the enumerators
/// \relatesalso BankAccount
[[nodiscard]] ORV_BANKING_EXPORT QString presentationText(BankAccount const& account,
                                                          foundation::LocaleAware localeAware);

/// Writes the fields with their labels, in UTF-8: `Bank (…), Account Type (…)`, with the stream
/// forms of `BankName` and `AccountNumberBankType` in the parentheses.
///
/// \throws std::logic_error if the kind is not one of the enumerators; the text before the kind has
///         been written
/// \relatesalso BankAccount
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankAccount const& account);

/// Writes the text of the standard stream to a debug stream, as one `QString`.
///
/// \throws std::logic_error if the kind is not one of the enumerators; nothing has been written
/// \relatesalso BankAccount
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankAccount const& account);

} // namespace orv::banking

Q_DECLARE_TYPEINFO(orv::banking::BankAccount, Q_RELOCATABLE_TYPE);
