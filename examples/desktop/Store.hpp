#pragma once

#include "Books.hpp"

#include <QtSql>

/// Books in a file, which is a database of SQLite.
class Store
{
  Q_DECLARE_TR_FUNCTIONS(Store)
  Q_DISABLE_COPY_MOVE(Store)

public:
  /// Opens the file, and makes it if there is none. Without a name, the books are an example, which
  /// is not kept.
  ///
  /// \throws UserError if the file cannot be opened
  explicit Store(QString const& file)
      : database_(QSqlDatabase::addDatabase(u"QSQLITE"_s, QUuid::createUuid().toString()))
  {
    database_.setDatabaseName(file.isEmpty() ? u":memory:"_s : file);
    database_.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=1000"_s); // in milliseconds
    require(database_.open(), database_.lastError().text());
    execute(u"PRAGMA foreign_keys = ON"_s);
    if (value(u"SELECT count(*) FROM sqlite_schema"_s) == u"0") {
      transact([&] {
        run(u":/schema.sql"_s);
        if (file.isEmpty()) {
          run(u":/household.sql"_s);
        }
      });
    }
  }

  ~Store()
  {
    auto const name = database_.connectionName();
    database_ = {};
    QSqlDatabase::removeDatabase(name);
  }

  /// Reads the books. What is wrong with a row that is not in them is among their problems.
  ///
  /// \throws UserError if the file cannot be read, or holds something else
  Books load()
  {
    require(value(u"PRAGMA user_version"_s) == u"1",
            tr("The file holds something else, or was made by a newer program."));
    auto const version = value(u"PRAGMA data_version"_s); // which changes as others write
    Books books;
    std::map<BankName, std::map<AccountNumber, BankAccountTypes>> accounts;
    std::map<BankName, Bank> banks;
    read(u"SELECT number, name, kind, currency, minor_units, occurred_on FROM accounts "
         "LEFT JOIN banks ON banks.id = bank"_s,
         tr("Account %1: %2"), books.problems, [&](QStringList const& row) {
           auto const number = toAccountNumber(row[0]);
           auto const kind = fromNonLocalisedText(row[2]).value_or(BankAccountTypes::Unknown);
           require(kind != BankAccountTypes::Unknown,
                   tr("'%1' is not a kind of account.").arg(row[2]));
           accounts[BankName(row[1])].insert({number, kind});
           if (!(row[3] + row[4] + row[5]).isEmpty()) {
             bool isInteger = false;
             mintar::Money const amount(toCurrency(row[3]), row[4].toLongLong(&isInteger));
             auto const date = QDate::fromString(row[5], Qt::ISODate);
             require(isInteger && date.isValid() && date.toString(Qt::ISODate) == row[5],
                     tr("'%1' and '%2' are not an amount and a date.").arg(row[4], row[5]));
             books.balances.insert({number, {amount, date}});
           }
         });
    read(u"SELECT name, closed FROM banks"_s, tr("Bank %1: %2"), books.problems,
         [&](QStringList const& row) {
           BankName const name(row[0]);
           banks.insert({name, Bank(name, accounts[name], row[1] == u"1")});
         });
    books.banks = BankMap(std::move(banks));
    version_ = version; // if others have written since, nothing can be saved
    return books;
  }

  /// Writes the books.
  ///
  /// \throws UserError if the books have problems, if the file has been changed since `load`, or if
  ///          it cannot be written. It is unchanged then
  void save(Books const& books)
  {
    require(books.problems.isEmpty(), tr("Rows of the file that cannot be read would be lost."));
    transact([&] {
      require(value(u"PRAGMA data_version"_s) == version_,
              tr("Another window has changed the file. Reload it, then make your change again."));
      execute(u"CREATE TEMP TABLE books "
              "(bank, closed, number, kind, currency, minor_units, occurred_on)"_s);
      QList<QVariantList> rows;
      for (auto const& [name, bank] : books.banks) {
        rows.push_back({name.institution(), bank.isClosed(), {}, {}, {}, {}, {}});
        for (auto const& [number, kind] : bank.accounts()) {
          auto const [balance, date] = books.last(number); // a text that is not there is NULL
          rows.push_back({name.institution(), QVariant(), number.integer(),
                          toNonLocalisedText(kind), balance.currency().isoCode(),
                          balance.minorUnits(), date.toString(Qt::ISODate)});
        }
      }
      execute(u"INSERT INTO books VALUES (?, ?, ?, ?, ?, ?, ?)"_s, rows);
      run(u":/save.sql"_s);
    });
  }

private:
  // Does all of the work, or nothing.
  void transact(auto const& work)
  {
    execute(u"BEGIN IMMEDIATE"_s);
    try {
      work();
      execute(u"COMMIT"_s);
    } catch (...) {
      database_.rollback();
      throw;
    }
  }

  void run(QString const& script)
  {
    QFile file(script);
    require(file.open(QFile::ReadOnly), file.errorString());
    for (auto const& statement :
         QString::fromUtf8(file.readAll()).split(u";\n"_s, Qt::SkipEmptyParts)) {
      execute(statement);
    }
  }

  // Takes the rows one by one, and adds the problem of each that cannot be taken.
  void read(QString const& select, QString const& problem, QStringList& problems, auto const& take)
  {
    for (auto const& row : execute(select)) {
      try {
        take(row);
      } catch (UserError const& error) {
        problems += problem.arg(row[0], QString::fromUtf8(error.what()));
      }
    }
  }

  QString value(QString const& select) { return execute(select).value(0).value(0); }

  // Executes a statement, once with each list of values, and returns the rows that it selects.
  QList<QStringList> execute(QString const& statement,
                             QList<QVariantList> const& lists = {QVariantList()})
  {
    QSqlQuery query(database_);
    auto isGood = query.prepare(statement);
    for (auto const& values : lists) {
      for (qsizetype place = 0; place < values.size(); ++place) {
        query.bindValue(static_cast<int>(place), values[place]);
      }
      isGood = isGood && query.exec();
    }
    QList<QStringList> rows;
    auto const columns = query.record().count();
    while (query.next()) {
      rows.emplace_back();
      for (int column = 0; column < columns; ++column) {
        rows.back() += query.value(column).toString();
      }
    }
    require(!query.lastError().isValid(),
            tr("The file cannot be read or written: %1").arg(query.lastError().text()));
    return rows;
  }

  QSqlDatabase database_;
  QString version_{}; // of the data that were loaded
};
