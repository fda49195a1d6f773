#pragma once

#include <accounting/AccountNumber.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBankAccount.hpp>

#include <QByteArrayView>
#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QStringList>

#include <map>

/// A household's books: its banks, and the last reconciliation of each account that has one.
class Book
{
  Q_DECLARE_TR_FUNCTIONS(Book)

public:
  /// `folder` is where the book's words for files start from.
  explicit Book(QDir const& folder = QDir::current()) : folder_(folder) {}

  /// Carries out a line, one command, and gives what there is to print. Throws what the library throws
  /// and BookError, with a text for the user and with nothing changed.
  QString execute(QByteArrayView line);

  /// How each command is written, a line each, and which kinds of account there are.
  static QString usage();

private:
  struct Command;
  static std::map<QString, Command> const& commands();

  QString add(QStringList const& words);
  QString bank(QStringList const& words);
  QString close(QStringList const& words);
  QString find(QStringList const& words);
  QString list(QStringList const& words);
  QString open(QStringList const& words);
  QString print(QStringList const& words);
  QString reconcile(QStringList const& words);
  QString remove(QStringList const& words);
  QString rename(QStringList const& words);
  QString statement(QStringList const& words);
  QString update(QStringList const& words);

  // The account on record. Throws where no bank holds the number.
  orv::banking::BankAccount accountOnRecord(orv::accounting::AccountNumber const& number) const;

  // Brings the balances at the bank that was called `before` in line with what the registry now says
  // of the bank `after`.
  void follow(orv::banking::BankName const& before, orv::banking::BankName const& after);

  QDir folder_;
  orv::banking::BankMap banks_;
  std::map<orv::accounting::AccountNumber, orv::banking::ReconciledBankAccount> balances_;
};
