#include "model/Steps.hpp"

#include "support/Log.hpp"

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>

#include <stdexcept>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

using Accounts = std::map<AccountNumber, BankAccountTypes>;
using Banks = std::map<BankName, Bank>;

char const* const names[] = {"A", "a", "A ", "%1 %2", "\uFF21", "\U0001F3E6"};
unsigned int const numbers[] = {1, 2, 3, 257, 65537, 16777217, 4294967295U, 0};

Bank drawBank(Draw const& draw)
{
  Accounts accounts;
  for (auto count = draw(4); count > 0; --count) {
    accounts.emplace(numbers[draw(7)], static_cast<BankAccountTypes>(1 + draw(5)));
  }
  return Bank(BankName(names[draw(6)]), accounts, draw(4) == 0);
}

// What is told of the smallest of the numbers that a bank of another name holds, or nothing.
QString clash(BankName const& name, Accounts const& accounts, Banks const& banks)
{
  for (auto const& [number, kind] : accounts) {
    for (auto const& [otherName, other] : banks) {
      if (otherName != name && other.accounts().contains(number)) {
        return name.institution() + "|" + presentationText(number) + "|" + otherName.institution();
      }
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
  banks = expected;
}

void construct(Draw const& draw, BankMap& map, Banks& banks)
{
  Banks next;
  for (auto count = draw(6); count > 0; --count) {
    auto const bank = drawBank(draw);
    next[bank.name()] = bank;
  }
  QString refusal;
  for (auto const& [name, bank] : next) {
    refusal = refusal.isEmpty() ? clash(name, bank.accounts(), next) : refusal;
  }
  make([&] { map = BankMap(next); }, refusal, map, banks, next);
}

void changeBank(Draw const& draw, BankMap& map, Banks& banks)
{
  auto const bank = drawBank(draw);
  auto const& name = bank.name();
  auto const newName = draw(8) > 0 ? BankName(names[draw(6)]) : BankName();
  AccountNumber const number(numbers[draw(8)]);
  auto const kind = static_cast<BankAccountTypes>(draw(6));

  auto const hasBank = banks.contains(name);
  // Names may refer into the registry.
  auto const& key = hasBank && draw(2) > 0 ? map.bank(name).name() : name;
  auto const& held = hasBank ? banks[name].accounts() : bank.accounts();
  auto const isOpen = hasBank && !banks[name].isClosed();
  auto const isNew = !newName.isEmpty() && !banks.contains(newName);
  auto const isAsked = hasBank && clash(name, {{number, kind}}, banks).isEmpty();
  auto const isGood = isAsked && number != AccountNumber() && kind != BankAccountTypes::Unknown;
  auto with = held;
  if (isGood) {
    with[number] = kind;
  }
  auto without = held;
  auto const isHeld = without.erase(number) > 0 && hasBank;

  auto const no = name.institution() + "|";
  auto adding = hasBank || bank.isClosed() ? no : "";
  for (auto const& other : banks) {
    adding = adding.isEmpty() ? clash(name, bank.accounts(), {other}) : adding;
  }
  auto const updating = isOpen && !bank.isClosed() ? clash(name, bank.accounts(), banks) : no;

  // The change, the start of its refusal or nothing, whether it is logged, and the bank that it leaves.
  std::tuple<std::function<void()>, QString, bool, Bank> const changes[] = {
      {[&] { map.close(key); }, isOpen ? "" : no, hasBank, Bank(name, held, true)},
      {[&] { map.open(key); }, isOpen || !hasBank ? no : "", hasBank, Bank(name, held, false)},
      {[&] { map.add(key, number, kind); }, isGood ? "" : no, isAsked, Bank(name, with, !isOpen)},
      {[&] { map.remove(key, number); }, isHeld ? "" : no, hasBank, Bank(name, without, !isOpen)},
      {[&] { map.rename(key, newName); }, isOpen && isNew ? "" : no, false,
       Bank(isNew ? newName : name, held, false)},
      {[&] { map.remove(key); }, hasBank ? "" : no, false, Bank()},
      {[&] { map.add(bank); }, adding, false, bank},
      {[&] { map.update(bank); }, updating, false, bank},
  };
  auto const& [change, refusal, isLogged, left] = changes[draw(8)];
  auto after = banks;
  after.erase(name);
  if (left != Bank()) {
    after[left.name()] = left;
  }
  make(change, refusal, map, banks, after);
  expect(takeMessages().size() == (isLogged ? 1 : 0), "more or fewer messages");
  Bank holder;
  for (auto const& [otherName, other] : banks) {
    holder = other.accounts().contains(number) ? other : holder;
  }
  expect(map.find(number).value_or(Bank()) == holder, "another holder");
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
