#pragma once

#include <accounting/AccountNumber.hpp>
#include <banking/BankAccount.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBalance.hpp>

#include <QByteArrayView>
#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

/// A household's books: its banks, and the last reconciliation of each account that has one.
class Book
{
  Q_DECLARE_TR_FUNCTIONS(Book)

public:
  /// Creates an empty book. The names of files in its lines are relative to `folder`.
  explicit Book(QDir const& folder = QDir::current()) : folder_(folder) {}

  /// Carries out a line, which is one command, and returns what there is to show, in printable lines.
  ///
  /// \throws BookError or what the library throws, with a text for the user; the book is unchanged
  QString execute(QByteArrayView line);

  /// Returns how each command is written, a line each, and which kinds of account there are.
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

  std::optional<orv::banking::BankAccount>
  accountOf(orv::accounting::AccountNumber const& number) const;

  // The account with the number that the word is. Throws where no bank holds it.
  orv::banking::BankAccount accountOnRecord(QString const& word) const;

  // Reconciles the account. `currency` is that of the balance.
  void record(orv::banking::BankAccount const& account, QDate const& date,
              mintar::Money const& balance, QString const& currency);

  using Accounts = std::map<orv::accounting::AccountNumber, orv::banking::BankAccountTypes>;

  // No accounts where there is no such bank.
  Accounts accountsAt(orv::banking::BankName const& name) const;

  // Drops the balances of those of the accounts that no bank holds any more.
  void forgetGone(Accounts const& accounts);

  QDir folder_;
  orv::banking::BankMap banks_;
  // Of the accounts that have been reconciled. The registry knows which bank holds each, and as what.
  std::map<orv::accounting::AccountNumber, orv::banking::ReconciledBalance> balances_;
};
