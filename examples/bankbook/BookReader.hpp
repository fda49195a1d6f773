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

/// Returns the text of a line, which may end with CR. Throws for bytes that are not UTF-8, for NUL, and
/// for a CR elsewhere: it would hide the lines of a file that has no other line ends.
QString toText(QByteArrayView line);

/// Returns the words of a line: blanks separate them, double quotes hold words with blanks together, and
/// # where a word could begin starts a comment. In quotes, \" and \\ stand for a quote and a backslash,
/// and \u{1B} for the character with that code. Throws for a quote that does not end.
QStringList toWords(QString const& line);

/// Returns the printable form of a word that is read back as `word`, in quotes where it takes them.
QString writtenWord(QString const& word);

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

  [[nodiscard]] mintar::Money money() const { return {currency, minorUnits}; }

  friend bool operator==(Amount const& lhs, Amount const& rhs) = default;
};

/// Reads an amount, for instance "-1250.5", exactly: decimals that the currency has not are zeros, and
/// a 64-bit number holds the minor units. The currency is three capital letters.
Amount toAmount(QString const& amount, QString const& currency);

/// Returns the words of an amount, as `toAmount` reads them back: -1250.50 CAD.
QString writtenAmount(Amount const& amount);

/// Returns the error that the file cannot be opened or read, with the reason as the system says it.
BookError unreadable(QFile const& file, QString const& name);
