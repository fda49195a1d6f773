#include "model/Steps.hpp"

#include "support/Log.hpp"

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>

#include <stdexcept>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

using Banks = std::map<BankName, Bank>;
using Accounts = std::map<AccountNumber, BankAccountTypes>;

char const* const names[] = {"A", "a", "A ", "%1 %2", "\uFF21", "\U0001F3E6"};
unsigned int const numbers[] = {1, 2, 3, 257, 65537, 16777217, 4294967295U, 0};

BankName drawName(Draw const& draw)
{
  return BankName(names[draw(6)]);
}

Bank drawBank(Draw const& draw, BankName const& name)
{
  Accounts accounts;
  for (auto count = draw(4); count > 0; --count) {
    accounts.emplace(numbers[draw(7)], static_cast<BankAccountTypes>(1 + draw(5)));
  }
  return Bank(name, accounts, draw(4) == 0);
}

// The first bank but this one that holds the number, or nothing.
QString holder(AccountNumber const& number, Banks const& banks, BankName const& except)
{
  for (auto const& [name, bank] : banks) {
    if (name != except && bank.accounts().contains(number)) {
      return name.institution();
    }
  }
  return {};
}

// What is told of the smallest number of the bank that another holds, or nothing.
QString clash(Bank const& bank, Banks const& banks)
{
  for (auto const& [number, kind] : bank.accounts()) {
    auto const other = holder(number, banks, bank.name());
    if (!other.isEmpty()) {
      return bank.name().institution() + "|" + presentationText(number) + "|" + other;
    }
  }
  return {};
}

void expect(bool holds, char const* otherwise)
{
  if (!holds) {
    throw std::logic_error(otherwise);
  }
}

// Makes the change, which is refused with a text that begins so, or else leaves these banks.
void make(std::function<void()> const& change, QString const& refusal, BankMap& map, Banks& banks,
          Banks const& after)
{
  auto const before = map;
  QString seen("");
  try {
    change();
  } catch (BankError const& error) {
    seen = QString::fromUtf8(error.what());
  }
  expect(seen.isEmpty() == refusal.isEmpty() && seen.startsWith(refusal), "another outcome");
  auto const& expected = refusal.isEmpty() ? after : banks;
  expect(Banks(map.begin(), map.end()) == expected, "another registry");
  expect((map == before) == (banks == expected), "wrongly equal");
  for (auto const& [name, bank] : map) {
    expect(name == bank.name(), "a bank under another name");
    for (auto const& [number, kind] : bank.accounts()) {
      expect(number != AccountNumber() && map.find(number) == bank, "another holder");
    }
  }
  banks = expected;
}

void construct(Draw const& draw, BankMap& map, Banks& banks)
{
  Banks next;
  for (auto count = draw(6); count > 0; --count) {
    auto const bank = drawBank(draw, drawName(draw));
    next[draw(16) > 0 ? bank.name() : drawName(draw)] = bank;
  }
  QString refusal;
  for (auto const& [key, bank] : next) {
    auto const own = bank.name().institution();
    auto const text = key == bank.name() ? clash(bank, next) : key.institution() + "|" + own;
    refusal = refusal.isEmpty() ? text : refusal;
  }
  make([&] { map = BankMap(next); }, refusal, map, banks, next);
}

void changeBank(Draw const& draw, BankMap& map, Banks& banks)
{
  auto const name = drawName(draw);
  auto const newName = draw(8) > 0 ? drawName(draw) : BankName();
  AccountNumber const number(numbers[draw(8)]);
  auto const kind = static_cast<BankAccountTypes>(draw(6));
  auto const bank = drawBank(draw, name);

  auto const hasBank = banks.contains(name);
  auto const stored = hasBank ? banks[name] : Bank();
  auto const& held = stored.accounts();
  auto with = held;
  with[number] = kind;
  auto without = held;
  without.erase(number);
  auto const isOpen = hasBank && !stored.isClosed();
  auto const isAsked = hasBank && holder(number, banks, name).isEmpty();
  auto const isGood = isAsked && number != AccountNumber() && kind != BankAccountTypes::Unknown;
  auto const isNew = !banks.contains(newName) && !newName.isEmpty();
  auto const no = name.institution() + "|";
  auto addRefusal = hasBank || bank.isClosed() ? no : "";
  for (auto const& [otherName, other] : banks) {
    addRefusal = addRefusal.isEmpty() ? clash(bank, {{otherName, other}}) : addRefusal;
  }
  auto const updateRefusal = isOpen && !bank.isClosed() ? clash(bank, banks) : no;

  // The change, the start of its refusal or nothing, whether it is logged, and what the bank then is.
  std::tuple<std::function<void()>, QString, bool, BankName, Accounts, bool> const changes[] = {
      {[&] { map.close(name); }, isOpen ? "" : no, hasBank, name, held, true},
      {[&] { map.open(name); }, hasBank && !isOpen ? "" : no, hasBank, name, held, false},
      {[&] { map.add(name, number, kind); }, isGood ? "" : no, isAsked, name, with, !isOpen},
      {[&] { map.remove(name, number); }, held != without ? "" : no, hasBank, name, without,
       !isOpen},
      {[&] { map.remove(name); }, hasBank ? "" : no, false, {}, {}, false},
      {[&] { map.rename(name, newName); }, isOpen && isNew ? "" : no, false, newName, held, false},
      {[&] { map.add(bank); }, addRefusal, false, name, bank.accounts(), false},
      {[&] { map.update(bank); }, updateRefusal, false, name, bank.accounts(), false},
  };
  auto const& [change, refusal, isLogged, key, accounts, isClosed] = changes[draw(8)];
  auto after = banks;
  after.erase(name);
  if (refusal.isEmpty() && !key.isEmpty()) {
    after[key] = Bank(key, accounts, isClosed);
  }
  make(change, refusal, map, banks, after);
  expect(takeMessages().size() == (isLogged ? 1 : 0), "more or fewer messages");
  expect(map.find(number).has_value() != holder(number, banks, BankName()).isEmpty(), "found");
}

} // namespace

QString placeholdersOf(QString const& text)
{
  return text.contains("%2") ? "%1|%2" : text.contains("%1") ? "%1" : "";
}

void takeSteps(std::size_t count, Draw const& draw)
{
  takeMessages();
  BankMap map;
  Banks banks;
  for (; count > 0; --count) {
    draw(9) > 0 ? changeBank(draw, map, banks) : construct(draw, map, banks);
  }
}
