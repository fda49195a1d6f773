#pragma once

#include <accounting/AccountNumber.hpp>
#include <mintar/Money.hpp>

#include <QByteArrayView>
#include <QDate>
#include <QString>
#include <QStringList>

// How the words of a book are read. Each function throws BookError with the word in the text.

/// The text of a line. Throws for bytes that are not UTF-8.
QString toText(QByteArrayView line);

/// The words of a line: blanks separate them, double quotes hold words with blanks together, with \"
/// and \\ inside for a quote and a backslash, and # where a word could begin starts a comment. Throws
/// for a quote that does not end.
QStringList toWords(QString const& line);

/// The account number in decimal digits. Zero, the invalid number, is read like any other.
orv::accounting::AccountNumber toAccountNumber(QString const& word);

/// The date in ISO 8601, 2026-01-31.
QDate toDate(QString const& word);

/// The amount, for instance "-1250.5", exactly: no more decimals than the currency has, and no more
/// minor units than a 64-bit number holds. The currency is three capital letters.
mintar::Money toMoney(QString const& amount, QString const& currency);
