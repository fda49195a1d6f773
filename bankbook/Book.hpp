#pragma once

#include "OfxReader.hpp"

#include <banking/BankMap.hpp>

#include <QCoreApplication>
#include <QDir>

/// Somebody's books: banks, and what these reported last of each account. The lines of a book alone
/// change it.
struct Book
{
  QDir folder = QDir::current(); ///< to which the names of files in the lines are relative
  orv::banking::BankMap banks{};
  // Of the accounts that have any. The registry knows which bank holds each, and as what.
  QMap<orv::accounting::AccountNumber, Identifier> identifiers{};
  QMap<orv::accounting::AccountNumber, orv::banking::ReconciledBalance> balances{};

  Q_DECLARE_TR_FUNCTIONS(Book)
};

/// What comes of a command beside the change of the book.
struct Answer
{
  QString table{};        ///< what the command shows, in printable lines
  QStringList messages{}; ///< what it took, and what it did not
  QList<orv::accounting::AccountNumber> reconciled{};
};

/// Carries out the command that the words of a line are, if any.
///
/// \throws BookError or BankError, with a text for the user; the book is unchanged
Answer execute(Book& book, QStringList const& words);

/// Returns how each command is written, a line each, and how the words of commands are.
QString usage();
