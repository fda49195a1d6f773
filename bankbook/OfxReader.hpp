#pragma once

#include <banking/BankAccountTypes.hpp>
#include <banking/ReconciledBalance.hpp>

#include <QMap>
#include <QString>

/// What a bank calls an account, as it is typed in a line: its ACCTID, its type and, unless it is a
/// credit card, its BANKID, which may be "". The first, or the first two, stand for every account
/// that has them.
using Identifier = QString;

/// What a bank's statements say of an account: the balance of the latest day.
struct Statement
{
  QList<orv::banking::BankAccountTypes> kinds; ///< that the bank's type may stand for
  orv::banking::ReconciledBalance balance;
  QString fault; ///< why it cannot be taken, for the user; empty if it can
};

/// The accounts in a file, by their whole identifiers.
using Statements = QMap<Identifier, Statement>;

/// Reads the statements in an OFX file's content: SGML (version 1) or XML (version 2), in any
/// encoding that contains ASCII. Of investments it reads which accounts there are, and nothing
/// else.
///
/// \throws BookError if the content is not one whole OFX file, or has no statement
///
/// Complexity: linear in the size of the content.
Statements readOfx(QByteArray const& content);
