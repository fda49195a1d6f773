#pragma once

#include <banking/ReconciledBalance.hpp>

#include <QMap>
#include <QString>

/// What a bank calls an account, as it is typed in a line: its ACCTID, its BANKID and its type. The BANKID is ""
/// where there is none, as for credit cards. The first, or the first two, stand for every account that has
/// them.
using Identifier = QString;

/// What a bank's statement says of an account.
struct Statement
{
  orv::banking::ReconciledBalance balance;
  QString fault; ///< why it cannot be taken, for the user; empty if it can
};

/// The statements in a file, by the whole identifiers of their accounts.
using Statements = QMap<Identifier, QList<Statement>>;

/// Reads the statements in an OFX file's content: SGML (version 1) or XML (version 2), in any encoding that
/// contains ASCII. Of investments it reads which accounts there are, and nothing else.
///
/// \throws BookError if the content is not one whole OFX file, or has no statement
///
/// Complexity: linear in the size of the content.
Statements readOfx(QByteArray const& content);
