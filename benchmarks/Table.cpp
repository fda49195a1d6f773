#include "Table.hpp"

#include <QString>

#include <sqlite3.h>
#include <stdexcept>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

void bind(sqlite3_stmt* statement, int index, QString const& text)
{
  sqlite3_bind_text16(statement, index, text.utf16(), static_cast<int>(text.size() * 2),
                      SQLITE_STATIC);
}

void bind(sqlite3_stmt* statement, int index, sqlite3_int64 integer)
{
  sqlite3_bind_int64(statement, index, integer);
}

QString textOf(sqlite3_stmt* row)
{
  auto const* const text = static_cast<QChar const*>(sqlite3_column_text16(row, 0));
  return QString(text, sqlite3_column_bytes16(row, 0) / 2);
}

} // namespace

Table::Table()
    : database_(open()),
      begin_(prepare("BEGIN")),
      commit_(prepare("COMMIT")),
      insertBank_(prepare("INSERT INTO bank (name, closed) VALUES (?, ?)")),
      insertAccount_(prepare("INSERT INTO account (number, bank, kind) VALUES (?, ?, ?)")),
      addAccount_(prepare("INSERT INTO account (number, bank, kind) "
                          "SELECT ?, id, ? FROM bank WHERE name = ?")),
      removeAccount_(prepare("DELETE FROM account WHERE number = ?")),
      clearBanks_(prepare("DELETE FROM bank")),
      clearAccounts_(prepare("DELETE FROM account")),
      find_(prepare("SELECT name FROM account JOIN bank ON bank.id = account.bank "
                    "WHERE number = ?")),
      rename_(prepare("UPDATE bank SET name = ? WHERE name = ?")),
      names_(prepare("SELECT name FROM bank ORDER BY name"))
{
}

void Table::load(Banks const& banks)
{
  run(begin_);
  for (auto const& [name, bank] : banks) {
    insert(bank);
  }
  run(commit_);
}

void Table::clear()
{
  run(clearAccounts_);
  run(clearBanks_);
}

QString Table::find(AccountNumber number)
{
  bind(find_.get(), 1, number.integer());
  QString name;
  if (sqlite3_step(find_.get()) == SQLITE_ROW) {
    name = textOf(find_.get());
  }
  sqlite3_reset(find_.get());
  return name;
}

void Table::add(BankName const& name, AccountNumber number, BankAccountTypes type)
{
  bind(addAccount_.get(), 1, number.integer());
  bind(addAccount_.get(), 2, static_cast<int>(type));
  bind(addAccount_.get(), 3, name.institution());
  run(addAccount_);
}

void Table::add(Bank const& bank)
{
  run(begin_);
  insert(bank);
  run(commit_);
}

void Table::remove(AccountNumber number)
{
  bind(removeAccount_.get(), 1, number.integer());
  run(removeAccount_);
}

void Table::rename(BankName const& from, BankName const& to)
{
  bind(rename_.get(), 1, to.institution());
  bind(rename_.get(), 2, from.institution());
  run(rename_);
}

std::set<BankName> Table::names()
{
  std::set<BankName> names;
  while (sqlite3_step(names_.get()) == SQLITE_ROW) {
    names.emplace(textOf(names_.get()));
  }
  sqlite3_reset(names_.get());
  return names;
}

void Table::Closing::operator()(sqlite3* database) const
{
  sqlite3_close(database);
}

void Table::Closing::operator()(sqlite3_stmt* statement) const
{
  sqlite3_finalize(statement);
}

std::unique_ptr<sqlite3, Table::Closing> Table::open()
{
  sqlite3* database = nullptr;
  sqlite3_open(":memory:", &database);
  sqlite3_exec(database,
               "CREATE TABLE bank (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE,"
               " closed INTEGER NOT NULL);"
               "CREATE TABLE account (number INTEGER PRIMARY KEY,"
               " bank INTEGER NOT NULL REFERENCES bank, kind INTEGER NOT NULL)",
               nullptr, nullptr, nullptr);
  return std::unique_ptr<sqlite3, Closing>(database);
}

Table::Statement Table::prepare(char const* sql)
{
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare_v2(database_.get(), sql, -1, &statement, nullptr) != SQLITE_OK) {
    throw std::runtime_error(sqlite3_errmsg(database_.get()));
  }
  return Statement(statement);
}

void Table::run(Statement& statement)
{
  if (sqlite3_step(statement.get()) != SQLITE_DONE) {
    throw std::runtime_error(sqlite3_errmsg(database_.get()));
  }
  sqlite3_reset(statement.get());
}

void Table::insert(Bank const& bank)
{
  bind(insertBank_.get(), 1, bank.name().institution());
  bind(insertBank_.get(), 2, bank.isClosed() ? 1 : 0);
  run(insertBank_);
  bind(insertAccount_.get(), 2, sqlite3_last_insert_rowid(database_.get()));
  for (auto const& [number, type] : bank.accounts()) {
    bind(insertAccount_.get(), 1, number.integer());
    bind(insertAccount_.get(), 3, static_cast<int>(type));
    run(insertAccount_);
  }
}
