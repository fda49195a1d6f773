#pragma once

#include "Statement.hpp"

#include <banking/BankAccount.hpp>
#include <banking/BankMap.hpp>

#include <QCoreApplication>
#include <QDir>
#include <QMap>
#include <QStringList>

#include <map>

/// A household's books: its banks, and what they reported last of each account.
class Book
{
  Q_DECLARE_TR_FUNCTIONS(Book)

public:
  /// Creates an empty book. The names of files in its lines are relative to `folder`.
  explicit Book(QDir const& folder = QDir::current()) : folder_(folder) {}

  /// Carries out the command that the words of a line are, if any, and returns what there is to show, in
  /// printable lines. Warns of a date that lies in the future, in a log message.
  ///
  /// \throws BookError or what the library throws, with a text for the user; the book is unchanged
  QString execute(QStringList const& words);

  /// Returns how each command is written, a line each, and how the words of commands are.
  static QString usage();

private:
  using AccountNumber = orv::accounting::AccountNumber;
  using Accounts = std::map<AccountNumber, orv::banking::BankAccountTypes>;
  using BankAccount = orv::banking::BankAccount;
  using BankName = orv::banking::BankName;

  struct Command;
  static std::map<QString, Command> const commands_;
  static QString helpOn(QString const& command);
  static BookError writtenOtherwise(QString const& command);

  // The bank that NAME [NUMBER=KIND ...] describes, in the words of a command.
  static orv::banking::Bank toBank(QStringList const& words);

  // The commands that change the book. Each takes its words, of which the first is its own name.
  void add(QStringList const& words);
  void bank(QStringList const& words) { banks_.add(toBank(words)); }
  void close(QStringList const& words) { banks_.close(BankName(words[1])); }
  void identify(QStringList const& words);
  void open(QStringList const& words) { banks_.open(BankName(words[1])); }
  void reconcile(QStringList const& words);
  void remove(QStringList const& words);
  void rename(QStringList const& words) { banks_.rename(BankName(words[1]), BankName(words[2])); }
  void update(QStringList const& words);

  // The commands that return what there is to show.
  QString find(QStringList const& words);
  QString help(QStringList const& words)
  {
    return words.size() == 1 ? usage() : helpOn(words[1]) + u'\n';
  }
  QString list(QStringList const& words);
  QString print(QStringList const& words);
  QString statement(QStringList const& words);

  // The account with the number. Throws where no bank holds it.
  BankAccount accountOf(AccountNumber const& number) const;

  // The accounts of a bank; none where there is no such bank.
  Accounts accountsOf(BankName const& name) const;

  // Binds the account to the identifier. Throws where it is bound to another one, or another account of
  // its bank to this one.
  void bind(AccountNumber const& ours, QString const& identifier);

  // Drops what is known of accounts that are no longer there, and the identifiers of those that have
  // changed their kind.
  void drop(Accounts const& before, Accounts const& now);

  // Reconciles the account with what its bank says of it.
  void record(AccountNumber const& number, Statement const& statement);

  // Does so with the statement of the identifier, binds the account to it, and returns what it says.
  QString take(AccountNumber const& number, Statements const& file, QString const& identifier);

  // Does so with the statements of all identifiers that an account is bound to.
  QString takeBound(Statements const& file);

  QDir folder_;
  orv::banking::BankMap banks_;
  // Of the accounts that have any. The registry knows which bank holds each, and as what.
  QMap<AccountNumber, QString> identifiers_;
  QMap<AccountNumber, Statement> balances_;
};
