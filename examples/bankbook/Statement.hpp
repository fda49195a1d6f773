#pragma once

#include "BookReader.hpp"
#include "OfxReader.hpp"

#include <QHash>

/// What a bank's statement says of an account.
struct Statement
{
  QString accountId; ///< what the bank calls the account
  Amount balance;
  QDate date; ///< the day of the balance, as the bank wrote it
};

/// The statements of bank accounts and credit cards in an OFX file.
class StatementFile
{
public:
  /// Reads an OFX file's content.
  ///
  /// \throws BookError if it is not one whole OFX file, or has no such statement, or one without the
  ///     identifier of its account
  ///
  /// Complexity: linear in the size of the content.
  explicit StatementFile(QByteArray const& content);

  /// Returns what the banks call the accounts, each once, in the order of the file. None is empty.
  [[nodiscard]] QStringList accountIds() const { return accountIds_; }

  /// Returns the statement of the bank's `accountId` for the kind of `account`. If `accountId` is empty,
  /// it is the only one in the file for that kind.
  ///
  /// \throws BookError if there is no such statement or several that differ, or if what it says is
  ///     missing or cannot be read
  ///
  /// Complexity: linear in the number of statements if `accountId` is empty, otherwise of those of the
  /// account.
  [[nodiscard]] Statement statementFor(orv::banking::AccountNumberBankType const& account,
                                       QString const& accountId) const;

private:
  QStringList accountIds_;
  QHash<QString, QList<OfxValues>> statements_; // by account
};

/// Returns a list of accounts for a message, which names ten of them at most.
QString firstTen(QStringList const& accountIds);
