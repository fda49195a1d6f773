#include "model/Model.hpp"
#include "support/Log.hpp"
#include "support/Testing.hpp"

#include <functional>
#include <future>
#include <random>
#include <sstream>

namespace {

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
  std::map<AccountNumber, BankAccountTypes> accounts;
  for (unsigned int i = 1; i < bounds.numbers; ++i) {
    if (auto const kind = draw(bounds.kinds); kind > 0 && kind < 6) {
      accounts.emplace(numbers[i], static_cast<BankAccountTypes>(kind));
    }
  }
  return Bank(name, accounts, draw(2) == 1);
}

// Returns whether the operation is not refused.
bool isDone(auto const& operation, auto& registry)
{
  try {
    operation(registry);
    return true;
  } catch (BankError const&) {
    return false;
  }
}

// Lets the registry and the model do the same, and expects the same of them, or else tells `what`.
void step(BankMap& map, Model& model, auto const& operation, auto const&... what)
{
  auto const before = map;
  auto const banksBefore = model.banks;
  takeMessages();
  auto const isMade = isDone(operation, map);
  auto const logged = takeMessages();
  auto isSame = isDone(operation, model) == isMade && std::ranges::equal(map, model.banks);
  isSame = isSame && !map.find({}) && (takeMessages() == logged || !isMade); // only banks log
  for (auto const& [name, bank] : map) {
    for (auto const& [number, type] : bank.accounts()) {
      isSame = isSame && map.find(number) == bank;
    }
  }
  if (!isSame || (map == before) != (model.banks == banksBefore)) {
    std::ostringstream text;
    ((text << "step ") << ... << what);
    text << (isMade ? ", made" : ", refused") << "\nbefore: " << before << "\nafter: " << map;
    throw std::logic_error(text.str());
  }
}

// Makes a registry of drawn banks, and then so many drawn changes. Throws std::logic_error, which
// tells the step, if the registry does not do as the model.
void takeSteps(unsigned int changes, Draw const& draw, Bounds const& bounds = {})
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
  step(map, model, construct, "construct");
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
    step(map, model, make, change, name, bank, to, number, kind);
  }
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
    ASSERT_NO_THROW(takeSteps(1, draw, {3, 3, 2}));
    while (!drawn.empty() && ++drawn.back().first == drawn.back().second) {
      drawn.pop_back();
    }
  } while (!drawn.empty());
}

// Each sequence in its thread, as registries share nothing.
TEST(Steps, DrawnAtRandomDoAsTheModel)
{
  std::vector<std::future<void>> threads; // whose ends they wait for
  for (unsigned int seed = 0; seed < 50; ++seed) {
    threads.push_back(std::async(std::launch::async, [seed] {
      std::mt19937 random(seed);
      auto const draw = [&](auto bound) { return static_cast<unsigned int>(random()) % bound; };
      for (int registry = 0; registry < 10; ++registry) {
        ASSERT_NO_THROW(takeSteps(50, draw)) << "seed " << seed;
      }
    }));
  }
}
