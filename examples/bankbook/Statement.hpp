#pragma once

#include <banking/BankAccountTypes.hpp>

#include <QCoreApplication>
#include <QList>
#include <QString>

/// What a bank's statement says of one account, in the words of a book: an empty word is one that the
/// statement does not say.
struct Statement
{
  Q_DECLARE_TR_FUNCTIONS(Statement)

public:
  QString accountId; ///< what the bank calls the account
  QString type;      ///< what OFX calls the kind of account, for instance CREDITLINE
  QList<orv::banking::BankAccountTypes> kinds; ///< the kinds of account that this type stands for
  QString date;    ///< the day of the ledger balance as the bank wrote it
  QString balance; ///< the ledger balance, for instance "-1250.5", exactly
  QString currency;
};

/// The statements in a bank's OFX file, of version 1 or 2, in the file's order. Throws BookError where
/// there are none, or none that can be relied on, whatever the file is and holds, and where bankbook was
/// built without libofx. Takes a process, and at most some seconds.
QList<Statement> readStatements(QString const& path);
