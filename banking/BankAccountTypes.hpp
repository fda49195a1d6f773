#pragma once

#include <accounting/AccountNumber.hpp>
#include <accounting/AccountTypes.hpp>
#include <banking/Export.hpp>
#include <foundation/LocaleAware.hpp>

#include <QString>

#include <cstdint>
#include <iosfwd>
#include <optional>

QT_FORWARD_DECLARE_CLASS(QDebug)

namespace orv::banking {

/// \defgroup kinds Kinds of account
/// The kinds of account that a bank holds, their texts, and their classes in the ledger.
///
/// Show users `presentationText`. Store `toNonLocalisedText`, and read it back with
/// `fromNonLocalisedText`. A function that takes a kind throws `std::logic_error` if it is not one
/// of the enumerators.
///
/// \snippet snippets.cpp BankAccountTypes
/// @{

/// The kind of an account that a bank holds. The integers do not change.
enum class BankAccountTypes : std::int32_t
{
  Unknown = 0,    ///< The kind is not known. It has a text, "Unknown", but no bank accepts it.
  Chequeing = 1,  ///< An account for everyday payments, an asset.
  CreditCard = 2, ///< What is owed on a credit card, a liability.
  Loan = 3,       ///< Borrowed money, a liability.
  Savings = 4,    ///< Money put aside, an asset.
  Goal = 5,       ///< Money put aside for one purpose, such as a new roof; an asset.
};

/// Returns whether the kind is an asset: chequing, savings or goal. False for `Unknown`.
[[nodiscard]] ORV_BANKING_EXPORT bool isAssetAccount(BankAccountTypes type);

/// Returns whether the kind is a liability: credit card or loan. False for `Unknown`.
[[nodiscard]] ORV_BANKING_EXPORT bool isLiabilityAccount(BankAccountTypes type);

/// Returns the class of the account in the ledger: `AccountTypes::Asset` or `Liability`, or zero
/// for `Unknown`.
[[nodiscard]] ORV_BANKING_EXPORT accounting::AccountTypes
toAccountTypes(BankAccountTypes const& type);

/// Returns the text of the kind in the user's language.
[[nodiscard]] ORV_BANKING_EXPORT QString presentationText(BankAccountTypes const& type);

/// Returns the untranslated text of the kind: "Unknown", "Chequeing", "Credit Card", "Loan",
/// "Savings" or "Goal".
///
/// It is the same in every locale. Nothing is allocated.
[[nodiscard]] ORV_BANKING_EXPORT QString toNonLocalisedText(BankAccountTypes const& type);

/// Returns the kind that has this untranslated text, or nothing.
///
/// Use it for what was stored: it never depends on the user's language. The text must be equal
/// letter for letter. "Unknown" is the text of `Unknown`. Nothing is thrown.
[[nodiscard]] ORV_BANKING_EXPORT std::optional<BankAccountTypes>
fromNonLocalisedText(QString const& text);

/// Returns the kind that has this text, untranslated or in the user's language.
///
/// Use it for what a user writes. The text must be equal letter for letter. Untranslated texts are
/// tried first. If several kinds have the same translation, the result is the first of `Chequeing`,
/// `Goal`, `CreditCard`, `Loan`, `Savings` and `Unknown`.
///
/// \throws std::logic_error if no kind has the text; tell the user with your own text
[[nodiscard]] ORV_BANKING_EXPORT BankAccountTypes toBankAccountTypes(QString const& text);

/// Writes the text of the kind in the user's language.
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankAccountTypes const& type);

/// Writes the same text as one `QString`.
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankAccountTypes const& type);

/// @}

/// An account number of the ledger and the kind of bank account that it stands for.
///
/// It is plain data: nothing is checked. Use it for an account whose bank is known.
struct AccountNumberBankType
{
  /// The number of the account in the ledger.
  accounting::AccountNumber accountNumber;

  /// The kind of the account at the bank.
  BankAccountTypes bankAccountType = BankAccountTypes::Unknown;
};

/// Returns the number and the kind as a user reads them, such as "100 (Credit Card)".
///
/// For `LocaleAware::No` the text of the kind is untranslated, for every other value it is in the
/// user's language. Do not store the text: the format around the kind is translated in both cases.
///
/// \throws std::logic_error if the kind is not one of the enumerators
/// \relatesalso AccountNumberBankType
[[nodiscard]] ORV_BANKING_EXPORT QString presentationText(AccountNumberBankType const& account,
                                                          foundation::LocaleAware localeAware);

/// Writes "Bank Account Number (100), Bank Account Type (Loan)".
/// \relatesalso AccountNumberBankType
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream,
                                            AccountNumberBankType const& account);

} // namespace orv::banking
