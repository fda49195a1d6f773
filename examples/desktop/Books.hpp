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

/// A household's books, a value: its banks, and what they reported last of each account, if anything. Which
/// bank holds an account, and as what, is in the registry alone.
struct Books
{
  Q_DECLARE_TR_FUNCTIONS(Books)

public:
  BankMap banks{};
  std::map<AccountNumber, ReconciledBalance> balances{};
};

/// Records what the bank of an account reported.
///
/// \throws BankError if an earlier report is of a later date
inline void reconcile(Books& books, AccountNumber number, ReconciledBalance const& reported)
{
  auto const bank = books.banks.find(number).value();
  BankAccount const held{bank.name(), {number, bank.accounts().at(number)}};
  auto const last = books.balances.find(number);
  auto account = last == books.balances.end()
                     ? ReconciledBankAccount(held, reported.balance.currency())
                     : ReconciledBankAccount(held, last->second.balance, last->second.occurredOn);
  account.reconcile(reported.occurredOn, reported.balance);
  books.balances.insert_or_assign(number, reported);
}

/// Drops the balances of accounts that no bank holds any longer. This is all that a change of the banks does
/// to balances: they stay when a bank is renamed or closed, and when an account changes its kind.
inline void dropLostBalances(Books& books)
{
  std::set<AccountNumber> held;
  for (auto const& [name, bank] : books.banks) {
    for (auto const& [number, kind] : bank.accounts()) {
      held.insert(number);
    }
  }
  std::erase_if(books.balances, [&](auto const& entry) { return !held.contains(entry.first); });
}

/// Returns a text without what does not show: marks of direction, and white space around it.
inline QString visible(QString text)
{
  static QRegularExpression const marks(u"\\p{Cf}"_s);
  return text.remove(marks).trimmed();
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

/// Reads an amount exactly, as the user's locale writes it: with or without groups of digits and the currency.
/// It has no more decimals than the currency. \throws UserError if the text is none
inline mintar::Money toMoney(QString const& text, mintar::Currency const& currency)
{
  QLocale const locale;
  auto plain = visible(text).remove(currency.isoCode());
  if (locale.currencySymbol(QLocale::CurrencyIsoCode) == currency.isoCode()) {
    plain.remove(locale.currencySymbol());
  }
  // Keyboards have no keys for some of the signs, spaces and apostrophes that locales write. Negative amounts
  // may stand in parentheses.
  auto const group = QRegularExpression::escape(locale.groupSeparator());
  auto const point = QRegularExpression::escape(locale.decimalPoint());
  QRegularExpression const form(
      u"^\\s*([-\u2212(]?)\\s*(\\d+|\\d{1,3}(?:[%1\\s']\\d{2,3})*[%1\\s']\\d{3})(?:%2(\\d+))?\\s*(\\)?)\\s*$"_s
          .arg(group, point),
      QRegularExpression::UseUnicodePropertiesOption);
  auto const match = form.match(plain);
  auto const decimals = match.captured(3);
  auto digits = match.captured(1).isEmpty() ? QString() : u"-"_s;
  for (auto const c : match.captured(2) + decimals.leftJustified(currency.decimals(), u'0')) {
    digits += c.isDigit() ? QString::number(c.digitValue()) : QString();
  }
  bool fits = false;
  mintar::Money const amount(currency, digits.toLongLong(&fits));
  auto const isEnclosed = (match.captured(1) == u"(") == (match.captured(4) == u")");
  require(match.hasMatch() && isEnclosed && fits && decimals.size() <= currency.decimals(),
          Books::tr("'%1' is not an amount such as %2.")
              .arg(text, presentationText(mintar::Money(currency, 125050))));
  return amount;
}

/// Reads a date as the user's locale writes it, with all digits of the year, or in ISO 8601.
/// \throws UserError if the text is none
inline QDate toDate(QString const& text)
{
  static QRegularExpression const shortYear(u"(?<!y)yy(?!y)"_s);
  static QRegularExpression const twoDigits(u"(?<![dM])([dM])\\1(?![dM])"_s);
  auto format = visible(QLocale().dateFormat(QLocale::ShortFormat));
  format.replace(shortYear, u"yyyy"_s).replace(twoDigits, u"\\1"_s);
  auto const local = QLocale().toDate(visible(text), format);
  auto const date = local.isValid() ? local : QDate::fromString(visible(text), Qt::ISODate);
  require(date.isValid() && date.year() > 0,
          Books::tr("'%1' is not a date such as %2.")
              .arg(text, orv::foundation::presentationText(QDate::currentDate())));
  return date;
}
