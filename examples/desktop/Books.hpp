#pragma once

#include <banking/BankMap.hpp>
#include <banking/ReconciledBalance.hpp>
#include <banking/ReconciledBankAccount.hpp>
#include <foundation/Date.hpp>

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

using namespace orv::banking;
using namespace Qt::StringLiterals;
using orv::accounting::AccountNumber;
using UserError = orv::foundation::Error; // has a text for the user; a BankError is one, too

/// Throws `UserError` with this text unless the condition is met.
inline void require(bool condition, QString const& text)
{
  if (!condition) {
    throw UserError(text, std::exception());
  }
}

/// A household's books, a value: its banks, and what they reported last of each account, if
/// anything. Which bank holds an account, and as what, is in the registry alone.
struct Books
{
  Q_DECLARE_TR_FUNCTIONS(Books)

public:
  BankMap banks{};
  std::map<AccountNumber, ReconciledBalance> balances{};
  QStringList problems{}; ///< what is wrong with rows of the file, which are not in the books

  /// Returns what the bank of an account reported last, or an empty report.
  [[nodiscard]] ReconciledBalance last(AccountNumber number) const
  {
    auto const found = balances.find(number);
    return found == balances.end() ? ReconciledBalance() : found->second;
  }
};

/// Returns whether both books hold the same banks and balances.
inline bool operator==(Books const& lhs, Books const& rhs)
{
  auto const asTuple = [](auto const& entry) {
    return std::tuple(entry.first, entry.second.balance, entry.second.occurredOn);
  };
  return lhs.banks == rhs.banks &&
         std::ranges::equal(lhs.balances, rhs.balances, {}, asTuple, asTuple);
}

/// Records what the bank of an account reported.
///
/// \throws BankError if an earlier report is of a later date
inline void reconcile(Books& books, AccountNumber number, ReconciledBalance const& reported)
{
  auto const bank = books.banks.find(number).value();
  ReconciledBankAccount account({bank.name(), {number, bank.accounts().at(number)}},
                                mintar::Money(reported.balance.currency()),
                                books.last(number).occurredOn); // that of no report is the earliest
  account.reconcile(reported.occurredOn, reported.balance);
  books.balances.insert_or_assign(number, reported);
}

/// Returns a text without marks of direction, which do not show, and with ordinary spaces.
inline QString visible(QString text)
{
  static QRegularExpression const marks(u"\\p{Cf}"_s);
  return text.remove(marks).simplified();
}

/// Reads an account number. \throws UserError if the text is none
inline AccountNumber toAccountNumber(QString const& text)
{
  AccountNumber const number(text.toUInt()); // the invalid one for a text that is none
  require(number != AccountNumber(), Books::tr("'%1' is not an account number.").arg(text));
  return number;
}

/// Reads the code of a currency, in capital letters: to the library, "cad" is another one.
/// \throws UserError if the text is none
inline mintar::Currency toCurrency(QString const& text)
{
  static QRegularExpression const form(u"^[A-Z]{3}$"_s);
  require(form.match(text).hasMatch(), Books::tr("'%1' is not a currency such as CAD.").arg(text));
  return mintar::Currency(text);
}

/// Reads an amount exactly, as the user's locale writes it: with or without groups of digits and
/// the currency. It has no more decimals than the currency. \throws UserError if the text is none
inline mintar::Money toMoney(QString const& text, mintar::Currency const& currency)
{
  static QRegularExpression const enclosed(u"^\\((.*)\\)$"_s); // a negative amount in some locales
  static QRegularExpression const typedGroup(u"[ ']"_s); // for what keyboards have no keys for
  QLocale locale;
  auto const code = currency.isoCode();
  auto const isOwn = locale.currencySymbol(QLocale::CurrencyIsoCode) == code;
  auto const symbol = QRegularExpression::escape(isOwn ? visible(locale.currencySymbol()) : code);
  auto const parts = visible(text)
                         .remove(QRegularExpression(u" ?(%1|%2) ?"_s.arg(code, symbol)))
                         .replace(enclosed, u"-\\1"_s)
                         .replace(typedGroup, locale.groupSeparator())
                         .split(locale.decimalPoint());
  auto const decimals = parts.value(1);
  bool isWhole = false;
  locale.toLongLong(parts[0], &isWhole);
  bool fits = false;
  locale.setNumberOptions(QLocale::RejectGroupSeparator);
  auto const units =
      locale.toLongLong(QString(parts[0]).remove(locale.groupSeparator()) + decimals +
                            locale.zeroDigit().repeated(currency.decimals() - decimals.size()),
                        &fits);
  require(isWhole && fits && parts.size() <= 2 && decimals.size() <= currency.decimals(),
          Books::tr("'%1' is not an amount such as %2.")
              .arg(text, presentationText(mintar::Money(currency, 125050))));
  return {currency, units};
}

/// Reads a date as the user's locale writes it, with all digits of the year, or in ISO 8601.
/// \throws UserError if the text is none
inline QDate toDate(QString const& text)
{
  static QRegularExpression const twoDigits(u"\\b([dM])\\1\\b"_s);
  auto format = visible(QLocale().dateFormat(QLocale::ShortFormat));
  format.replace(u"yyyy"_s, u"yy"_s).replace(u"yy"_s, u"yyyy"_s).replace(twoDigits, u"\\1"_s);
  auto const local = QLocale().toDate(visible(text), format);
  auto const date = local.isValid() ? local : QDate::fromString(visible(text), Qt::ISODate);
  require(date.year() > 0, // that of an invalid date is 0
          Books::tr("'%1' is not a date such as %2.")
              .arg(text, orv::foundation::presentationText(QDate::currentDate())));
  return date;
}
