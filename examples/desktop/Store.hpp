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
  /// is not saved.
  ///
  /// \throws UserError if the file cannot be opened
  explicit Store(QString const& file)
      : database_(QSqlDatabase::addDatabase(u"QSQLITE"_s, QUuid::createUuid().toString()))
  {
    database_.setDatabaseName(file.isEmpty() ? u":memory:"_s : file);
    database_.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=1000"_s); // in milliseconds
    require(database_.open(), database_.lastError().text());
    run(u":/open.sql"_s);
    if (value(u"SELECT count(*) FROM sqlite_schema"_s) == 0) {
      run(u":/schema.sql"_s);
      if (file.isEmpty()) {
        run(u":/household.sql"_s);
      }
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
    require(value(u"PRAGMA user_version"_s) == 1,
            tr("The file holds something else, or was made by a newer program."));
    auto const version = value(u"PRAGMA data_version"_s); // which changes as others write
    Books books;
    std::map<BankName, Bank> banks;
    std::map<BankName, std::map<AccountNumber, BankAccountTypes>> accounts;
    std::set<AccountNumber> numbers;
    auto const take = [&](QSqlRecord const& row) {
      auto const text = [&](QString const& column) { return row.value(column).toString(); };
      require(!row.isNull(u"name"_s), tr("The bank of the account is missing."));
      BankName const name(text(u"name"_s));
      if (row.isNull(u"number"_s)) {
        Bank const bank(name, accounts[name], row.value(u"closed"_s).toBool());
        require(banks.insert({name, bank}).second, tr("Another bank has this name."));
        return;
      }
      auto const number = toAccountNumber(text(u"number"_s));
      auto const kind = fromNonLocalisedText(text(u"kind"_s)).value_or(BankAccountTypes::Unknown);
      require(kind != BankAccountTypes::Unknown,
              tr("'%1' is not a kind of account.").arg(text(u"kind"_s)));
      require(numbers.insert(number).second, tr("Another account has this number."));
      accounts[name].insert({number, kind});
      if (!row.isNull(u"report"_s)) {
        auto const units = row.value(u"minor_units"_s);
        auto const date = QDate::fromString(text(u"occurred_on"_s), u"yyyy-MM-dd"_s);
        require(units.typeId() == QMetaType::LongLong,
                tr("'%1' is not an amount in minor units.").arg(units.toString()));
        require(date.isValid(), tr("'%1' is not a date.").arg(text(u"occurred_on"_s)));
        books.balances.insert(
            {number, {{toCurrency(text(u"currency"_s)), units.toLongLong()}, date}});
      }
    };
    for (auto const& row : run(u":/load.sql"_s)) {
      try {
        take(row);
      } catch (UserError const& error) {
        books.problems +=
            tr("%1: %2").arg(row.value(0).toString(), QString::fromUtf8(error.what()));
      }
    }
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
    execute(u"BEGIN IMMEDIATE"_s);
    auto rollback = qScopeGuard([this] { database_.rollback(); });
    require(value(u"PRAGMA data_version"_s) == version_,
            tr("Another window has changed the file. Reload it, then make your change again."));
    for (auto const& [name, bank] : books.banks) {
      execute(u"INSERT INTO books (bank, closed) VALUES (?, ?)"_s,
              {name.institution(), bank.isClosed()});
      for (auto const& [number, kind] : bank.accounts()) {
        auto const [balance, date] = books.last(number); // a text that is not there is NULL
        execute(u"INSERT INTO books VALUES (?, NULL, ?, ?, ?, ?, ?)"_s,
                {name.institution(), number.integer(), toNonLocalisedText(kind),
                 balance.currency().isoCode(), balance.minorUnits(), date.toString(Qt::ISODate)});
      }
    }
    run(u":/save.sql"_s);
    execute(u"COMMIT"_s);
    rollback.dismiss();
  }

private:
  // Executes the statements of a script, and returns the rows that the last one selects.
  QList<QSqlRecord> run(QString const& script)
  {
    QFile file(script);
    require(file.open(QFile::ReadOnly), file.errorString());
    QList<QSqlRecord> rows;
    for (auto const& statement :
         QString::fromUtf8(file.readAll()).split(u";\n"_s, Qt::SkipEmptyParts)) {
      rows = execute(statement);
    }
    return rows;
  }

  QVariant value(QString const& select) { return execute(select).value(0).value(0); }

  // Executes a statement, and returns the rows that it selects.
  QList<QSqlRecord> execute(QString const& statement, QVariantList const& values = {})
  {
    QSqlQuery query(database_);
    auto isGood = query.prepare(statement);
    for (auto const& value : values) {
      query.addBindValue(value);
    }
    isGood = isGood && query.exec();
    QList<QSqlRecord> rows;
    while (query.next()) {
      rows += query.record();
    }
    require(isGood && !query.lastError().isValid(),
            tr("The file cannot be read or written: %1").arg(query.lastError().text()));
    return rows;
  }

  QSqlDatabase database_;
  QVariant version_{}; // of the data that were loaded
};
