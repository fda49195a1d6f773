#pragma once

#include <accounting/AccountNumber.hpp>
#include <accounting/AccountTypes.hpp>
#include <banking/Export.hpp>
#include <foundation/LocaleAware.hpp>

#include <cstdint>
#include <iosfwd>

class QDebug;
class QString;

namespace orv::banking {

/// The kind of an account held at a bank. `Unknown` is no kind: no bank holds an account of it.
///
/// Every function below throws `std::logic_error`, with a text that is not translated, for a value
/// that is none of these. Unless its comment says otherwise, that text is "Failed to convert from the
/// strong value '%1' to the another type for '%2'." with the value as an unsigned number and the
/// run-time name of this type.
enum class BankAccountTypes : std::int32_t
{
  Unknown = 0,
  Chequeing = 1,
  CreditCard = 2,
  Loan = 3,
  Savings = 4,
  Goal = 5,
};

/// True for a chequing, savings or goal account. Throws `std::logic_error` "Unrecognised bank account
/// type when checking if it's an asset account." for a value that is no kind.
ORV_BANKING_EXPORT bool isAssetAccount(BankAccountTypes type);

/// True for a credit card or a loan. Throws `std::logic_error` "Unrecognised bank account type when
/// checking if it's a liability account." for a value that is no kind.
ORV_BANKING_EXPORT bool isLiabilityAccount(BankAccountTypes type);

/// The plain text of the kind, for instance "Credit Card", the same in every locale. It refers to
/// static text and allocates nothing.
ORV_BANKING_EXPORT QString toNonLocalisedText(BankAccountTypes const& type);

/// The text of the kind in the user's language.
ORV_BANKING_EXPORT QString presentationText(BankAccountTypes const& type);

/// The kind that has this plain text, or else the kind that has it in the user's language, letter for
/// letter. Throws `std::logic_error` "Failed to convert from the weak value '%1' to another type for
/// '%2'." with the text and the run-time name of `BankAccountTypes` when there is none.
ORV_BANKING_EXPORT BankAccountTypes toBankAccountTypes(QString const& text);

/// The type of ledger account that the kind is: asset, liability, or 0 for `Unknown`.
ORV_BANKING_EXPORT accounting::AccountTypes toAccountTypes(BankAccountTypes const& type);

/// Writes the text of the kind in the user's language, in UTF-8.
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankAccountTypes const& type);

/// Writes the text that the standard stream gets, as one `QString`, or nothing where that throws.
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankAccountTypes const& type);

/// A ledger account number and the kind of bank account that it stands for. Nothing is checked.
struct AccountNumberBankType
{
  /// The number in the ledger.
  accounting::AccountNumber accountNumber;

  /// The kind of account that the bank holds.
  BankAccountTypes bankAccountType = BankAccountTypes::Unknown;
};

/// For instance "100 (Credit Card)", arranged as the user's language does, with the kind in that
/// language or in plain text. Throws as `BankAccountTypes` says.
ORV_BANKING_EXPORT QString presentationText(AccountNumberBankType const& account,
                                            foundation::LocaleAware localeAware);

/// Writes, for instance, "Bank Account Number (100), Bank Account Type (Credit Card)" in UTF-8. Throws
/// as `BankAccountTypes` says, when the text before the kind has been written.
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream,
                                            AccountNumberBankType const& account);

} // namespace orv::banking
