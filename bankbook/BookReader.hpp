#pragma once

#include "Text.hpp"

#include <banking/BankAccountTypes.hpp>
#include <banking/BankName.hpp>
#include <mintar/Money.hpp>

#include <QDate>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <optional>

// How a book is read. The functions that read a line or a word throw BookError, with the word in its text.

/// Returns the text of a line, which may end with a CR from CR LF, as `toPlain` does. Throws for
/// bytes that are not UTF-8, too.
QString toText(QByteArrayView line);

/// Returns the words of a line: blanks separate them, double quotes hold words with blanks
/// together, and # where a word could begin starts a comment. In quotes, \" and \\ stand for a
/// quote and a backslash. Throws for a quote that does not end, or not with its word, and for a
/// curly one where a word begins.
QStringList toWords(QString const& line);

/// Reads the name of a bank, which may have 100 characters.
orv::banking::BankName toBankName(QString const& word);

/// Reads an account number in decimal digits. Zero, the invalid number, is read like any other.
orv::accounting::AccountNumber toAccountNumber(QString const& word);

/// Reads a kind of account, in English or in the user's language.
orv::banking::BankAccountTypes toKind(QString const& word);

/// Reads a date in ISO 8601, 2026-01-31.
QDate toDate(QString const& word);

/// Returns whether the word is three capital letters.
bool isCurrency(QString const& word);

/// Reads an amount, for instance "-1250.5", with no more decimals than the currency has.
mintar::Money toMoney(QString const& amount, QString const& currency);

/// Returns the amount that a sign, digits and decimals make, or nothing if it takes more than 64
/// bits, or decimals other than zeros that the currency has not.
std::optional<mintar::Money> exactMoney(QRegularExpressionMatch const& parts,
                                        mintar::Currency const& currency);

/// Returns the path of the file that a user names.
QString pathOf(QDir const& folder, QString const& fileName);

/// Returns all that the file holds, which is opened if it is not yet. Throws if it cannot be read,
/// with the reason as the system says it.
QByteArray contentOf(QFile& file, QString const& name);
