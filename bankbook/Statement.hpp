#pragma once

#include "BookReader.hpp"
#include "OfxReader.hpp"

#include <QMap>

/// What a bank's statement says of an account.
struct Statement
{
  QString accountId; ///< what the bank calls the account
  Amount balance;
  QDate date; ///< the day of the balance, as the bank wrote it
};

/// The statements of bank accounts and credit cards in an OFX file, by what the banks call the accounts.
using Statements = QMap<QString, QList<OfxValues>>;

/// Reads an OFX file's content.
///
/// \throws BookError if it is not one whole OFX file, or has no such statement, or one without the
///     identifier of its account
///
/// Complexity: linear in the size of the content.
Statements toStatements(QByteArray const& content);

/// Returns the statement of the bank's `accountId` for the kind of `account`. If `accountId` is empty, it
/// is the only one for that kind.
///
/// \throws BookError if there is no such statement or several that differ, or if what it says is missing
///     or cannot be read
///
/// Complexity: linear in the number of statements if `accountId` is empty, otherwise of those of the
/// account.
Statement statementFor(orv::banking::AccountNumberBankType const& account,
                       Statements const& statements, QString const& accountId);

/// Returns a list of accounts for a message, which names ten of them at most.
QString firstTen(QStringList const& accountIds);
