#pragma once

#include "Statement.hpp"

#include <banking/BankMap.hpp>

#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <QStringList>

/// A household's books: its banks, and what they reported last of each account. The lines of a book alone
/// change it.
struct Book
{
  QDir folder = QDir::current(); ///< to which the names of files in the lines are relative
  orv::banking::BankMap banks{};
  // Of the accounts that have any. The registry knows which bank holds each, and as what.
  QMap<orv::accounting::AccountNumber, QString> identifiers{};
  QMap<orv::accounting::AccountNumber, Statement> balances{};

  Q_DECLARE_TR_FUNCTIONS(Book)
};

/// Carries out the command that the words of a line are, if any, and returns what there is to show, in
/// printable lines. Warns of a date that lies in the future, in a log message.
///
/// \throws BookError or what the library throws, with a text for the user; the book is unchanged
QString execute(Book& book, QStringList const& words);

/// Returns how each command is written, a line each, and how the words of commands are.
QString usage();
