#pragma once

#include "Books.hpp"

#include <QtSql>

/// Books in a file, which is a database of SQLite.
class Store
{
  Q_DECLARE_TR_FUNCTIONS(Store)
  Q_DISABLE_COPY_MOVE(Store)

public:
  /// Chooses the file. Without a name, the books are an example, which is not kept.
  explicit Store(QString const& file)
      : database_(QSqlDatabase::addDatabase(u"QSQLITE"_s, QUuid::createUuid().toString()))
  {
    database_.setDatabaseName(file.isEmpty() ? u":memory:"_s : file);
    database_.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=1000"_s); // in milliseconds
  }

  ~Store()
  {
    auto const name = database_.connectionName();
    database_ = {};
    QSqlDatabase::removeDatabase(name);
  }

  /// Reads the books, and adds what is wrong with each row that is not in them. Makes the file if there is none.
  ///
  /// \throws UserError if the file cannot be read, or holds something else
  Books load(QStringList& problems)
  {
    open();
    Books books;
    std::map<BankName, std::map<AccountNumber, BankAccountTypes>> accounts;
    std::map<BankName, Bank> banks;
    QString version;
    transact(u"BEGIN"_s, [&] {
      version = value(u"PRAGMA data_version"_s);
      read(u"SELECT number, name, kind, currency, minor_units, occurred_on FROM accounts "
           "LEFT JOIN banks ON banks.id = bank"_s,
           tr("Account %1: %2"), problems, [&](QStringList const& row) {
             auto const number = toAccountNumber(row[0]);
             auto const kind = fromNonLocalisedText(row[2]).value_or(BankAccountTypes::Unknown);
             require(kind != BankAccountTypes::Unknown,
                     tr("'%1' is not a kind of account.").arg(row[2]));
             auto const isNew = accounts[BankName(row[1])].emplace(number, kind).second;
             require(isNew, tr("It is there twice."));
             if (!row[3].isEmpty() || !row[4].isEmpty() || !row[5].isEmpty()) {
               bool isInteger = false;
               mintar::Money const amount(toCurrency(row[3]), row[4].toLongLong(&isInteger));
               auto const date = QDate::fromString(row[5], Qt::ISODate);
               require(isInteger && date.isValid() && date.toString(Qt::ISODate) == row[5],
                       tr("'%1' and '%2' are not an amount and a date.").arg(row[4], row[5]));
               books.balances.insert({number, {amount, date}});
             }
           });
      read(u"SELECT name, closed FROM banks"_s, tr("Bank %1: %2"), problems,
           [&](QStringList const& row) {
             BankName const name(row[0]);
             auto const isNew =
                 banks.emplace(name, Bank(name, accounts[name], row[1] == u"1")).second;
             require(isNew, tr("It is there twice."));
             require(row[1] == u"0" || row[1] == u"1", tr("'%1' is not 0 or 1.").arg(row[1]));
           });
      books.banks = BankMap(std::move(banks));
    });
    version_ = version;
    return books;
  }

  /// Writes the books.
  ///
  /// \throws UserError if the file cannot be written, or has been changed since `load`. It is unchanged then
  void save(Books const& books)
  {
    transact(u"BEGIN IMMEDIATE"_s, [&] {
      require(value(u"PRAGMA data_version"_s) == version_, // which changes as others write
              tr("Another window has changed the file. Reload it, then make your change again."));
      execute(
          u"CREATE TEMP TABLE books (bank, closed, number, kind, currency, minor_units, occurred_on)"_s);
      auto insert = prepare(u"INSERT INTO books VALUES (?, ?, ?, ?, ?, ?, ?)"_s);
      for (auto const& [name, bank] : books.banks) {
        execute(insert, {name.institution(), bank.isClosed(), {}, {}, {}, {}, {}});
        for (auto const& [number, kind] : bank.accounts()) {
          QVariantList row{
              name.institution(), {}, number.integer(), toNonLocalisedText(kind), {}, {}, {}};
          if (auto const last = books.balances.find(number); last != books.balances.end()) {
            auto const& [balance, date] = last->second;
            row = row.first(4) + QVariantList{balance.currency().isoCode(), balance.minorUnits(),
                                              date.toString(Qt::ISODate)};
          }
          execute(insert, row);
        }
      }
      run(u":/save.sql"_s);
    });
  }

private:
  void open()
  {
    auto const isOpen = database_.isOpen() || database_.open();
    require(isOpen, database_.lastError().text());
    execute(u"PRAGMA foreign_keys = ON"_s);
    if (value(u"SELECT count(*) FROM sqlite_schema"_s) == u"0") {
      transact(u"BEGIN IMMEDIATE"_s, [&] {
        run(u":/schema.sql"_s);
        if (database_.databaseName() == u":memory:") {
          run(u":/household.sql"_s);
        }
      });
    }
    require(value(u"PRAGMA user_version"_s) == u"1",
            tr("The file holds something else, or was made by a newer program."));
  }

  void run(QString const& script)
  {
    QFile file(script);
    file.open(QFile::ReadOnly);
    for (auto const& statement :
         QString::fromUtf8(file.readAll()).split(u";\n"_s, Qt::SkipEmptyParts)) {
      execute(statement);
    }
  }

  // Does all of the work, or nothing.
  void transact(QString const& begin, auto const& work)
  {
    execute(begin);
    try {
      work();
      execute(u"COMMIT"_s);
    } catch (...) {
      database_.rollback();
      throw;
    }
  }

  // Takes the rows one by one, and adds the problem of each that cannot be taken.
  void read(QString const& select, QString const& problem, QStringList& problems, auto const& take)
  {
    auto query = execute(select);
    while (query.next()) {
      QStringList row;
      for (int column = 0; column < query.record().count(); ++column) {
        row += query.value(column).toString();
      }
      try {
        take(row);
      } catch (UserError const& error) {
        problems += problem.arg(row[0], QString::fromUtf8(error.what()));
      }
    }
    check(!query.lastError().isValid(), query);
  }

  QString value(QString const& select)
  {
    auto query = execute(select);
    query.next();
    return query.value(0).toString();
  }

  QSqlQuery prepare(QString const& statement)
  {
    QSqlQuery query(database_);
    check(query.prepare(statement), query);
    return query;
  }

  QSqlQuery execute(QString const& statement)
  {
    auto query = prepare(statement);
    check(query.exec(), query);
    return query;
  }

  static void execute(QSqlQuery& query, QVariantList const& values)
  {
    for (auto const& value : values) {
      query.addBindValue(value);
    }
    check(query.exec(), query);
  }

  static void check(bool isDone, QSqlQuery const& query)
  {
    require(isDone, tr("The file cannot be read or written: %1").arg(query.lastError().text()));
  }

  QSqlDatabase database_;
  QString version_{}; // of the data that were loaded
};
