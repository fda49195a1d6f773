#pragma once

#include <QMap>
#include <QString>

/// What a statement says of an account, by element. The elements of its balance are named like
/// LEDGERBAL/BALAMT; a credit card has the ACCTTYPE CREDITCARD.
using OfxValues = QMap<QString, QString>;

/// Reads the statements of bank accounts and credit cards in an OFX file's content: SGML (version 1) or
/// XML (version 2), in any encoding that contains ASCII.
///
/// \throws BookError if the content is not one whole OFX file
///
/// Complexity: linear in the size of the content.
QList<OfxValues> readOfx(QByteArray const& bytes);
