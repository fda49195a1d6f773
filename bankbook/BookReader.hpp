#pragma once

#include "BookError.hpp"

#include <accounting/AccountNumber.hpp>
#include <banking/BankAccountTypes.hpp>
#include <mintar/Money.hpp>

#include <QByteArrayView>
#include <QDate>
#include <QStringList>

class QFile;

// How a book is read. Each function throws BookError with the word in the text.

/// Returns the text of a line, which may end with LF or CR LF, with blanks for tabs. Throws for bytes that
/// are not UTF-8, and for what is not printable: a NUL, a CR that hides the line before it, or a code that
/// a terminal would obey.
QString toText(QByteArrayView line);

/// Returns the words of a line: blanks separate them, double quotes hold words with blanks together, and
/// # where a word could begin starts a comment. In quotes, \" and \\ stand for a quote and a backslash.
/// Throws for a quote that does not end.
QStringList toWords(QString const& line);

/// Returns the line, with its LF, that has these words, in quotes where they take them.
QString toLine(QStringList const& words);

/// Reads an account number in decimal digits. Zero, the invalid number, is read like any other.
orv::accounting::AccountNumber toAccountNumber(QString const& word);

/// Reads a kind of account, in English or in the user's language.
orv::banking::BankAccountTypes toKind(QString const& word);

/// Reads a date in ISO 8601, 2026-01-31.
QDate toDate(QString const& word);

/// An amount as a book or a bank's statement has it.
struct Amount
{
  mintar::Currency currency;
  qint64 minorUnits = 0;
  QString text; ///< the number as it was written

  [[nodiscard]] mintar::Money money() const { return {currency, minorUnits}; }
};

/// Reads an amount, for instance "-1250.5", exactly: decimals that the currency has not are zeros, and
/// a 64-bit number holds the minor units. The currency is three capital letters.
Amount toAmount(QString const& amount, QString const& currency);

/// Returns the error that the file cannot be opened or read, with the reason as the system says it.
BookError unreadable(QFile const& file, QString const& name);
