#pragma once

#include "Data.hpp"

#include <sqlite3.h>
#include <stdexcept>

/// What a program could use in place of the registry: banks and accounts as two tables of a
/// database in memory, with unique names and numbers. Statements are prepared once; each change is
/// one transaction.
class Database
{
public:
  explicit Database(Banks const& banks = {})
  {
    sqlite3_open(":memory:", &database_);
    run("CREATE TABLE bank (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE, closed INTEGER)");
    run("CREATE TABLE account (number INTEGER PRIMARY KEY, kind INTEGER, bank INTEGER)");
    run("BEGIN");
    for (auto const& [name, bank] : banks) {
      insert(bank);
    }
    run("COMMIT");
  }

  ~Database()
  {
    for (auto const& [sql, statement] : statements_) {
      sqlite3_finalize(statement);
    }
    sqlite3_close(database_);
  }

  Database(Database const&) = delete;

  /// The name of the bank that holds the number.
  auto find(AccountNumber number)
  {
    return run("SELECT name FROM account JOIN bank ON id = bank WHERE number = ?",
               number.integer());
  }

  auto names() { return run("SELECT name FROM bank ORDER BY name"); }

  void add(BankName const& name, AccountNumber number, BankAccountTypes type)
  {
    run("INSERT INTO account SELECT ?, ?, id FROM bank WHERE name = ?", number.integer(),
        static_cast<int>(type), name);
  }

  void remove(BankName const&, AccountNumber number)
  {
    run("DELETE FROM account WHERE number = ?", number.integer());
  }

  void add(Bank const& bank)
  {
    run("BEGIN");
    insert(bank);
    run("COMMIT");
  }

  void rename(BankName const& from, BankName const& to)
  {
    run("UPDATE bank SET name = ? WHERE name = ?", to, from);
  }

private:
  void bind(sqlite3_stmt* statement, int index, BankName const& name)
  {
    sqlite3_bind_text16(statement, index, name.institution().utf16(), -1, nullptr);
  }

  void bind(sqlite3_stmt* statement, int index, qint64 value)
  {
    sqlite3_bind_int64(statement, index, value);
  }

  // Gives the names that a query finds. The text of the statement must be a literal.
  template <typename... Values>
  std::set<BankName> run(char const* sql, Values const&... values)
  {
    auto& statement = statements_[sql];
    if (!statement) {
      sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr);
    }
    int index = 0;
    (bind(statement, ++index, values), ...);
    std::set<BankName> names;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      auto const* const text = sqlite3_column_text16(statement, 0);
      names.emplace_hint(names.end(), QString::fromUtf16(static_cast<char16_t const*>(text)));
    }
    if (sqlite3_reset(statement) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(database_));
    }
    return names;
  }

  void insert(Bank const& bank)
  {
    run("INSERT INTO bank (name, closed) VALUES (?, ?)", bank.name(), bank.isClosed());
    auto const id = sqlite3_last_insert_rowid(database_);
    for (auto const& [number, type] : bank.accounts()) {
      run("INSERT INTO account VALUES (?, ?, ?)", number.integer(), static_cast<int>(type), id);
    }
  }

  sqlite3* database_ = nullptr;
  std::map<char const*, sqlite3_stmt*> statements_;
};
