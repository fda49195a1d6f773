#pragma once

// What banks and their registry do, told a second time: in plain containers, with texts of its own and
// with nothing of the library.

#include "support/Texts.hpp"

#include <QDebug>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <ostream>

namespace model {

inline QString mark;    // stands before each translated text
inline QStringList log; // what has been logged

/// What the library throws: its type as the run time calls it, and its text.
struct Refused
{
  char const* type;
  QString text;
};

inline void check(bool holds, QString const& bank, QString const& message)
{
  if (!holds) {
    throw Refused{"N3orv7banking9BankErrorE", bankErrorText(bank, message, mark)};
  }
}

inline QString text(unsigned int number)
{
  return QString::number(number);
}

inline QString kindText(int kind)
{
  static QStringList const texts{"Unknown", "Chequeing", "Credit Card", "Loan", "Savings", "Goal"};
  if (kind < 0 || kind >= texts.size()) {
    throw Refused{"St11logic_error", "Failed to convert from the strong value '" +
                                         text(static_cast<unsigned int>(kind)) +
                                         "' to the another type for "
                                         "'N3orv7banking16BankAccountTypesE'."};
  }
  return mark + texts[kind];
}

inline QString nameText(QString const& name)
{
  return "Financial Institution Name: (" + name + ")";
}

// As Qt writes text to a log, after its way through UTF-8.
inline QString logged(QString const& text)
{
  QString quoted;
  QDebug(&quoted).nospace() << QString::fromUtf8(text.toUtf8());
  return quoted;
}

struct Bank
{
  using Accounts = std::map<unsigned int, int>;

  QString name;
  Accounts accounts;
  bool isClosed = false;

  bool operator==(Bank const&) const = default;

  void make() const // what the constructor checks
  {
    check(!name.trimmed().isEmpty(), "", "The name of a financial institution cannot be empty.");
    check(!accounts.contains(0), name,
          "The bank account number of a financial institution cannot be invalid.");
    for (auto const& [number, kind] : accounts) {
      check(kind != 0, name, "The bank account type of a financial institution cannot be unknown.");
    }
  }

  QString streamed() const
  {
    QStringList held;
    for (auto const& [number, kind] : accounts) {
      held += text(number) + "=>" + kindText(kind);
    }
    return "Bank: (" + nameText(name) + "), Account Numbers: (" + held.join(", ") +
           "), Is Closed: " + (isClosed ? "true)" : "false)");
  }

  void close() { change("Closing", true, "Cannot close a bank that is already closed."); }

  void open() { change("Opening", false, "Cannot open a bank that is already opened."); }

  void change(QString const& verb, bool closes, QString const& message)
  {
    log += verb + " " + logged(nameText(name));
    check(isClosed != closes, name, message);
    isClosed = closes;
  }

  // Where a kind has no text the message ends before it, here and in the next.
  void add(unsigned int number, int kind)
  {
    log += "Adding account number " + text(number) + " which is";
    log.back() += " " + logged(kindText(kind)) + " to " + logged(nameText(name));
    check(number != 0, name,
          "Cannot add an account number of a financial institution that is invalid.");
    check(kind != 0, name,
          "Cannot add an account type of a financial institution that is unknown.");
    accounts[number] = kind;
  }

  void remove(unsigned int number)
  {
    log += "Removing account number " + text(number) + " from";
    log.back() += " " + logged(streamed());
    check(accounts.erase(number) == 1, name,
          "The account '" + text(number) + "' is not associated with the financial institution.");
  }
};

struct BankMap
{
  using Banks = std::map<QString, Bank>;

  Banks banks;

  bool operator==(BankMap const&) const = default;

  void make() const
  {
    for (auto const& [name, bank] : banks) {
      check(name == bank.name, name,
            "The key name does not match the value name, " + bank.name + ".");
      for (auto const& [number, kind] : bank.accounts) {
        auto const other = holder(number, name);
        check(!other, name,
              "The account '" + text(number) + "' is associated with the bank '" +
                  other.value_or("") + "' and cannot be used again.");
      }
    }
  }

  // The first bank, except for this one, that holds the number.
  std::optional<QString> holder(unsigned int number, std::optional<QString> const& except) const
  {
    for (auto const& [name, bank] : banks) {
      if (name != except && bank.accounts.contains(number)) {
        return name;
      }
    }
    return {};
  }

  Bank& bank(QString const& name, QString const& message = "Failed to locate a bank by that name.")
  {
    check(banks.contains(name), name, message);
    return banks[name];
  }

  void close(QString const& name)
  {
    bank(name, "Cannot close a bank that does not exist.").close();
  }

  void open(QString const& name) { bank(name, "Cannot open a bank that does not exist.").open(); }

  void add(QString const& name, unsigned int number, int kind)
  {
    auto const start = "Cannot add the account number, " + text(number) + ", as the bank ";
    auto& changed = bank(name, start + "that does not exist.");
    auto const other = holder(number, name);
    check(!other, name,
          start + "'" + other.value_or("") + "' is already associated with that number.");
    changed.add(number, kind);
  }

  void remove(QString const& name, unsigned int number)
  {
    bank(name,
         "Cannot remove the account number, " + text(number) + ", as the bank that does not exist.")
        .remove(number);
  }

  void add(Bank const& added)
  {
    check(!added.isClosed, added.name, "Cannot add a bank that is already closed.");
    check(!banks.contains(added.name), added.name, "Cannot add a bank that already exists.");
    for (auto const& [otherName, other] : banks) {
      for (auto const& [number, kind] : other.accounts) {
        check(!added.accounts.contains(number), added.name,
              "The account '" + text(number) + "' is already associated with the bank '" +
                  otherName + "' and cannot be added again.");
      }
    }
    banks[added.name] = added;
  }

  void remove(QString const& name)
  {
    check(banks.erase(name) == 1, name, "Cannot remove a bank that does not exist.");
  }

  void rename(QString const& from, QString const& to)
  {
    auto const start = "Cannot rename to '" + to + "' ";
    auto renamed = bank(from, start + "when the bank does not exist.");
    check(!banks.contains(to), from, start + "as it already exists.");
    check(!to.isEmpty(), from, "Cannot rename to an empty bank name.");
    check(!renamed.isClosed, from, "Cannot rename a bank when it is closed.");
    renamed.name = to;
    banks[to] = renamed;
    banks.erase(from);
  }

  void update(Bank const& next)
  {
    auto& stored = bank(next.name, "Cannot update a bank that does not exist.");
    check(!next.isClosed, next.name, "Cannot update to a closed bank.");
    check(!stored.isClosed, next.name, "Cannot update a bank that is closed.");
    for (auto const& [number, kind] : next.accounts) {
      auto const other = holder(number, next.name);
      check(!other, next.name,
            "Cannot update the account number, " + text(number) + ", as the bank '" +
                other.value_or("") + "' is already associated with that number.");
    }
    stored = next;
  }
};

inline std::ostream& operator<<(std::ostream& stream, BankMap const& map)
{
  QStringList entries;
  for (auto const& [name, bank] : map.banks) {
    entries += nameText(name) + "=>" + bank.streamed();
  }
  return stream << ("Bank Map (" + entries.join(", ") + ")").toStdString();
}

} // namespace model
