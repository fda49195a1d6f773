#include "support/Log.hpp"
#include "support/Testing.hpp"

#include <algorithm>
#include <future>
#include <random>

namespace {

using Accounts = std::map<AccountNumber, BankAccountTypes>;

// What a registry of banks does: what each change requires, in no order, and what it leaves. One
// error stands for all. It answers for the rules of a bank as well.
class Model
{
public:
  struct State
  {
    Accounts accounts;
    bool isClosed = false;

    bool operator==(State const&) const = default;
  };
  std::map<BankName, State> banks;

  explicit Model(std::map<BankName, Bank> const& drawn = {})
  {
    for (auto const& [name, bank] : drawn) {
      put(bank, true);
    }
  }

  void add(Bank const& bank) { put(bank, !has(bank.name()) && !bank.isClosed()); }
  void update(Bank const& bank) { put(bank, isOpen(bank.name()) && !bank.isClosed()); }
  void close(BankName const& name) { stateIf(isOpen(name), name).isClosed = true; }
  void open(BankName const& name) { stateIf(has(name) && !isOpen(name), name).isClosed = false; }

  void remove(BankName const& name)
  {
    stateIf(has(name), name);
    banks.erase(name);
  }

  void rename(BankName const& from, BankName const& to)
  {
    auto const state = stateIf(isOpen(from) && !has(to) && !to.isEmpty(), from);
    banks.erase(from);
    banks[to] = state;
  }

  void add(BankName const& name, AccountNumber number, BankAccountTypes type)
  {
    auto const isValid = number != AccountNumber() && type != Unknown;
    stateIf(has(name) && isFree(number, name) && isValid, name).accounts[number] = type;
  }

  void remove(BankName const& name, AccountNumber number)
  {
    stateIf(has(name) && banks[name].accounts.contains(number), name).accounts.erase(number);
  }

private:
  bool has(BankName const& name) const { return banks.contains(name); }
  bool isOpen(BankName const& name) const { return has(name) && !banks.at(name).isClosed; }

  // Whether no other bank holds the number.
  bool isFree(AccountNumber number, BankName const& name) const
  {
    return std::ranges::none_of(banks, [&](auto const& other) {
      return other.first != name && other.second.accounts.contains(number);
    });
  }

  void put(Bank const& bank, bool isAllowed)
  {
    for (auto const& [number, type] : bank.accounts()) {
      isAllowed = isAllowed && isFree(number, bank.name());
    }
    stateIf(isAllowed, bank.name()) = {bank.accounts(), bank.isClosed()};
  }

  State& stateIf(bool isAllowed, BankName const& name)
  {
    if (!isAllowed) {
      throw BankError(name, "refused");
    }
    return banks[name];
  }
};

bool isAsModelled(BankMap const& map, Model const& model)
{
  return std::ranges::equal(map, model.banks, [](auto const& bank, auto const& modelled) {
    return bank.first == modelled.first && bank.second.name() == modelled.first &&
           modelled.second == Model::State{bank.second.accounts(), bank.second.isClosed()};
  });
}

// Draws a number below the bound.
using Draw = std::function<unsigned int(unsigned int bound)>;

// How many names and numbers there are to draw, and below what a bank's kind for each number is
// drawn, where zero and what is no kind stand for no account.
struct Bounds
{
  unsigned int names = 7;
  unsigned int numbers = 8;
  unsigned int kinds = 20;
};

// Names that are easily mixed up, and numbers that differ in one byte. The first are
// invalid.
BankName const names[] = {BankName(),     BankName("a"),      BankName("A"),         BankName("A "),
                          BankName("%1"), BankName("\uFF21"), BankName("\U0001F3E6")};
unsigned int const numbers[] = {0, 1, 2, 3, 257, 65537, 16777217, 4294967295U};

Bank drawBank(BankName const& name, Draw const& draw, Bounds const& bounds)
{
  if (name.isEmpty()) {
    return Bank();
  }
  Accounts accounts;
  for (unsigned int i = 1; i < bounds.numbers; ++i) {
    if (auto const kind = draw(bounds.kinds); kind > 0 && kind < 6) {
      accounts.emplace(numbers[i], static_cast<BankAccountTypes>(kind));
    }
  }
  return Bank(name, accounts, draw(2) == 1);
}

// Returns whether the change is not refused.
bool isMade(auto const& change, auto& registry)
{
  try {
    change(registry);
    return true;
  } catch (BankError const&) {
    return false;
  }
}

// Lets the registry and the model do the same, and the registry log so many messages. Returns what
// differs then, if anything.
QString difference(BankMap& map, Model& model, auto const& change, qsizetype logged = 0)
{
  takeMessages();
  auto const before = map;
  auto const banksBefore = model.banks;
  auto const made = isMade(change, map);
  auto isSame = isMade(change, model) == made && isAsModelled(map, model) && !map.find({});
  isSame = isSame && (takeMessages().size() == logged || !made);
  for (auto const& [name, bank] : map) {
    for (auto const& [number, type] : bank.accounts()) {
      isSame = isSame && map.find(number) == bank;
    }
  }
  isSame = isSame && (map == before) == (model.banks == banksBefore);
  return isSame ? QString()
                : QString(made ? "made" : "refused") + "\nbefore: " + streamed(before) +
                      "\nafter:  " + streamed(map);
}

// Makes a registry of drawn banks, and then so many drawn changes. Returns the first change after
// which the registry is not as the model, if any.
QString takeSteps(unsigned int changes, Draw const& draw, Bounds const& bounds = {})
{
  std::map<BankName, Bank> banks;
  for (unsigned int i = 0; i < bounds.names; ++i) {
    if (draw(2) == 1) {
      banks.emplace(names[i], drawBank(names[i], draw, bounds));
    }
  }
  BankMap map;
  Model model;
  auto const construct = [&](auto& made) { made = std::decay_t<decltype(made)>(banks); };
  if (auto const wrong = difference(map, model, construct); !wrong.isEmpty()) {
    return "construct: " + wrong;
  }
  for (; changes > 0; --changes) {
    auto const change = draw(8);
    auto const name = names[draw(bounds.names)];
    auto const bank = change < 2 ? drawBank(name, draw, bounds) : Bank();
    auto const to = change == 2 ? names[draw(bounds.names)] : BankName();
    AccountNumber const number(change == 3 || change == 4 ? numbers[draw(bounds.numbers)] : 0);
    auto const kind = static_cast<BankAccountTypes>(change == 3 ? draw(6) : 0);
    auto const make = [&](auto& registry) {
      switch (change) {
      case 0:
        return registry.add(bank);
      case 1:
        return registry.update(bank);
      case 2:
        return registry.rename(name, to);
      case 3:
        return registry.add(name, number, kind);
      case 4:
        return registry.remove(name, number);
      case 5:
        return registry.close(name);
      case 6:
        return registry.open(name);
      default:
        return registry.remove(name);
      }
    };
    if (auto const wrong = difference(map, model, make, change > 2 && change < 7 ? 1 : 0);
        !wrong.isEmpty()) {
      QStringList const words{"add the bank",  "update", "rename", "add the number",
                              "remove number", "close",  "open",   "remove the bank"};
      return words[change] + ": " + wrong + "\nname:   " + streamed(name) +
             "\nbank:   " + streamed(bank) + "\nto:     " + streamed(to) +
             "\nnumber: " + streamed(number) + "\nkind:   " + streamed(kind);
    }
  }
  return {};
}

} // namespace

TEST(Steps, FromEverySmallRegistryDoAsTheModel)
{
  // Counts through all sequences of draws, as an odometer does: the digits, and the bound of each.
  std::vector<std::pair<unsigned int, unsigned int>> drawn;
  do {
    std::size_t next = 0;
    auto const draw = [&](unsigned int bound) {
      if (next == drawn.size()) {
        drawn.emplace_back(0, bound);
      }
      return drawn[next++].first;
    };
    ASSERT_EQ(takeSteps(1, draw, {3, 3, 2}), "");
    while (!drawn.empty() && ++drawn.back().first == drawn.back().second) {
      drawn.pop_back();
    }
  } while (!drawn.empty());
}

// Each sequence runs in a thread of its own, as registries share nothing.
TEST(Steps, DrawnAtRandomDoAsTheModel)
{
  std::vector<std::future<QString>> threads;
  for (unsigned int seed = 0; seed < 50; ++seed) {
    threads.push_back(std::async(std::launch::async, [seed] {
      std::mt19937 random(seed);
      auto const draw = [&](auto bound) { return static_cast<unsigned int>(random()) % bound; };
      QString wrong;
      for (int registry = 0; registry < 10 && wrong.isEmpty(); ++registry) {
        wrong = takeSteps(50, draw);
      }
      return wrong;
    }));
  }
  for (std::size_t seed = 0; seed < threads.size(); ++seed) {
    ASSERT_EQ(threads[seed].get(), "") << "seed " << seed;
  }
}
