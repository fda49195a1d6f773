#pragma once

#include <accounting/AccountNumber.hpp>
#include <accounting/AccountTypes.hpp>
#include <banking/Export.hpp>
#include <foundation/LocaleAware.hpp>

#include <cstdint>
#include <iosfwd>
#include <optional>

class QDebug;
class QString;

namespace orv::banking {

/// \defgroup kinds Kinds of account
/// The kinds of account that a bank holds, their texts, and their classes in the ledger.
///
/// \snippet snippets.cpp BankAccountTypes
/// @{

/// The kind of an account that a bank holds.
///
/// A text in the user's language is that of the installed translator, or else English.
///
/// A value outside these enumerators is a mistake of the program: each function that reads the kind
/// throws `std::logic_error`, with a text in English for the programmer. `Unknown` is not such a
/// value.
enum class BankAccountTypes : std::int32_t
{
  Unknown = 0,    ///< The kind is not known. Neither an asset nor a liability; no bank accepts it.
  Chequeing = 1,  ///< An account for everyday payments, an asset.
  CreditCard = 2, ///< What is owed on a credit card, a liability.
  Loan = 3,       ///< Borrowed money, a liability.
  Savings = 4,    ///< Money put aside, an asset.
  Goal = 5,       ///< Money put aside for one purpose, such as a new roof; an asset.
};

/// Returns whether the kind is an asset: chequing, savings or goal. False for `Unknown`.
///
/// \throws std::logic_error if `type` is not one of the enumerators
[[nodiscard]] ORV_BANKING_EXPORT bool isAssetAccount(BankAccountTypes type);

/// Returns whether the kind is a liability: credit card or loan. False for `Unknown`.
///
/// \throws std::logic_error if `type` is not one of the enumerators
[[nodiscard]] ORV_BANKING_EXPORT bool isLiabilityAccount(BankAccountTypes type);

/// Returns the plain text of the kind, for example "Credit Card", which is the same in every
/// locale.
///
/// Programs store this text. It is one of "Unknown", "Chequeing", "Credit Card", "Loan", "Savings"
/// and "Goal". The string refers to static data; nothing is allocated.
///
/// \throws std::logic_error if `type` is not one of the enumerators
[[nodiscard]] ORV_BANKING_EXPORT QString toNonLocalisedText(BankAccountTypes const& type);

/// Returns the kind that has this plain text, or nothing.
///
/// It reads what `toNonLocalisedText` returns, whatever the user's language: programs read stored
/// kinds with it. The text must be equal letter for letter.
[[nodiscard]] ORV_BANKING_EXPORT std::optional<BankAccountTypes>
fromNonLocalisedText(QString const& text);

/// Returns the text of the kind in the user's language.
///
/// \throws std::logic_error if `type` is not one of the enumerators
[[nodiscard]] ORV_BANKING_EXPORT QString presentationText(BankAccountTypes const& type);

/// Returns the kind that has this text.
///
/// The plain texts are compared first, then the texts in the user's language. Both must be equal to
/// `text` letter for letter: case and spaces matter. "Unknown" returns `Unknown`.
///
/// \throws std::logic_error if no kind has this text; a program that reads stored texts catches it
///         and shows a text of its own
[[nodiscard]] ORV_BANKING_EXPORT BankAccountTypes toBankAccountTypes(QString const& text);

/// Returns the class of ledger account that the kind belongs to: `Asset`, `Liability`, or zero for
/// `Unknown`.
///
/// \throws std::logic_error if `type` is not one of the enumerators
[[nodiscard]] ORV_BANKING_EXPORT accounting::AccountTypes
toAccountTypes(BankAccountTypes const& type);

/// Writes the text of the kind in the user's language, in UTF-8.
///
/// \throws std::logic_error if `type` is not one of the enumerators; nothing has been written
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankAccountTypes const& type);

/// Writes the text of the standard stream to a debug stream, as one `QString`.
///
/// \throws std::logic_error if `type` is not one of the enumerators; nothing has been written
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankAccountTypes const& type);

/// @}

/// A ledger account number and the kind of bank account that it stands for.
///
/// This is plain data: nothing is checked, and any number goes with any kind.
struct AccountNumberBankType
{
  /// The number of the account in the ledger.
  accounting::AccountNumber accountNumber;

  /// The kind of the account at the bank.
  BankAccountTypes bankAccountType = BankAccountTypes::Unknown;
};

/// Returns the number and the kind as a user reads them, for example "100 (Credit Card)".
///
/// With `LocaleAware::Yes` the kind is in the user's language, with `LocaleAware::No` in plain
/// text. The arrangement of the two follows the user's language either way.
///
/// \throws std::logic_error if the kind is not one of the enumerators
/// \relatesalso AccountNumberBankType
[[nodiscard]] ORV_BANKING_EXPORT QString presentationText(AccountNumberBankType const& account,
                                                          foundation::LocaleAware localeAware);

/// Writes the fields with their labels, in UTF-8: `Bank Account Number (100), Bank Account Type
/// (Credit Card)`, with the kind in the user's language.
///
/// \throws std::logic_error if the kind is not one of the enumerators; the text before the kind has
///         been written
/// \relatesalso AccountNumberBankType
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream,
                                            AccountNumberBankType const& account);

} // namespace orv::banking
