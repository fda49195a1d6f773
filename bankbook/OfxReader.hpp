#pragma once

#include <banking/BankAccountTypes.hpp>
#include <banking/ReconciledBalance.hpp>

#include <QMap>
#include <QString>

/// What a bank calls an account: its ACCTID, its type and its BANKID, parted by blanks, with - for
/// one that is missing. The first, or the first two, stand for every account that has them.
using Identifier = QString;

/// Returns the kinds of account that the type in an identifier may stand for: `Unknown`, which no
/// account is, for an investment, and none at all if there is no type that is known.
QList<orv::banking::BankAccountTypes> kindsOf(Identifier const& identifier);

/// What a bank's statements say of an account: the balance of the latest day.
struct Statement
{
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
