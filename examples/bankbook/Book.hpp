#pragma once

#include "Statement.hpp"

#include <banking/BankAccount.hpp>
#include <banking/BankMap.hpp>
#include <banking/ReconciledBalance.hpp>

#include <QByteArrayView>
#include <QCoreApplication>
#include <QDir>
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
  using BankName = orv::banking::BankName;

  struct Command;
  static std::map<QString, Command> const commands_;

  void add(QStringList const& words);
  void bank(QStringList const& words) { banks_.add(toBank(words)); }
  void close(QStringList const& words) { banks_.close(BankName(words[0])); }
  void find(QStringList const& words);
  void list(QStringList const& words);
  void open(QStringList const& words) { banks_.open(BankName(words[0])); }
  void print(QStringList const& words);
  void reconcile(QStringList const& words);
  void remove(QStringList const& words);
  void rename(QStringList const& words) { banks_.rename(BankName(words[0]), BankName(words[1])); }
  void statement(QStringList const& words);
  void update(QStringList const& words);

  // The bank that NAME [NUMBER=KIND ...] describes.
  static orv::banking::Bank toBank(QStringList const& words);

  std::optional<orv::banking::BankAccount>
  accountOf(orv::accounting::AccountNumber const& number) const;

  // The account with the number that the word is. Throws where no bank holds it.
  orv::banking::BankAccount accountOnRecord(QString const& word) const;

  // Reconciles the account with what the bank says of it.
  void record(orv::banking::BankAccount const& account, Statement const& statement);

  // Drops the balances of accounts that no bank holds any more.
  void dropBalances();

  QDir folder_;
  QString shown_; // by the command that is carried out
  orv::banking::BankMap banks_;
  // Of the accounts that have been reconciled. The registry knows which bank holds each, and as what.
  std::map<orv::accounting::AccountNumber, orv::banking::ReconciledBalance> balances_;
};
