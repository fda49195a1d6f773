#pragma once

#include "BookReader.hpp"

#include <banking/BankAccountTypes.hpp>

#include <QDate>
#include <QString>

/// What a bank's statement says of an account.
struct Statement
{
  QString accountId; ///< what the bank calls the account
  Amount balance;
  QDate date; ///< the day of the balance, as the bank wrote it

  friend bool operator==(Statement const& lhs, Statement const& rhs) = default;
};

/// Reads a statement from an OFX file's content. Among several, it is the one of the bank's
/// `accountId`, unless that is empty, and for the kind of `account`.
///
/// \throws BookError if there is no such statement or several that differ, or if the file or what the
///     statement says cannot be relied on
///
/// Complexity: linear in the size of the content.
Statement readStatement(QByteArray const& content, QString const& accountId,
                        orv::banking::AccountNumberBankType const& account);

class StatementFile
{
public:
  explicit StatementFile(QByteArray const& content) : content_(content) { accountIds(); }
  QStringList accountIds() const;
  Statement statementFor(orv::banking::AccountNumberBankType const& account, QString const& accountId) const
  {
    return readStatement(content_, accountId, account);
  }
private:
  QByteArray content_;
};
