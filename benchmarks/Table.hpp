#pragma once

#include "Data.hpp"

#include <memory>
#include <set>

struct sqlite3;
struct sqlite3_stmt;

/// What a program would use in place of the registry: banks and accounts as two tables of a database in
/// memory, with unique names and numbers. Every statement is prepared once.
class Table
{
public:
  Table();

  /// Fills the empty tables, in one transaction.
  void load(Banks const& banks);
  void clear();

  /// The name of the bank that holds the number, empty where there is none.
  QString find(orv::accounting::AccountNumber number);

  /// One transaction each.
  void add(orv::banking::BankName const& name, orv::accounting::AccountNumber number,
           orv::banking::BankAccountTypes type);
  void add(orv::banking::Bank const& bank);
  void remove(orv::accounting::AccountNumber number);
  void rename(orv::banking::BankName const& from, orv::banking::BankName const& to);

  std::set<orv::banking::BankName> names();

private:
  struct Closing
  {
    void operator()(sqlite3* database) const;
    void operator()(sqlite3_stmt* statement) const;
  };
  using Statement = std::unique_ptr<sqlite3_stmt, Closing>;

  static std::unique_ptr<sqlite3, Closing> open();
  Statement prepare(char const* sql);
  void run(Statement& statement);
  void insert(orv::banking::Bank const& bank);

  std::unique_ptr<sqlite3, Closing> database_;
  Statement begin_;
  Statement commit_;
  Statement insertBank_;
  Statement insertAccount_;
  Statement addAccount_;
  Statement removeAccount_;
  Statement clearBanks_;
  Statement clearAccounts_;
  Statement find_;
  Statement rename_;
  Statement names_;
};
