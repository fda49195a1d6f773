#include "support/Testing.hpp"

#include <algorithm>
#include <future>
#include <random>

namespace {

using Accounts = std::map<AccountNumber, BankAccountTypes>;

// The model of a registry, which answers for the rules of its banks as well.
struct State
{
  Accounts accounts;
  bool isClosed = false;

  bool operator==(State const&) const = default;
};
using Model = std::map<BankName, State>;

Model modelOf(auto const& banks)
{
  Model model;
  for (auto const& [name, bank] : banks) {
    model[name] = {bank.accounts(), bank.isClosed()};
  }
  return model;
}

// Whether no bank of another name holds one of the numbers.
bool areFree(Accounts const& accounts, BankName const& name, Model const& model)
{
  return std::ranges::none_of(model, [&](auto const& other) {
    return other.first != name && std::ranges::any_of(accounts, [&](auto const& account) {
             return other.second.accounts.contains(account.first);
           });
  });
}

// Names that are easily mixed up, and numbers that differ in one byte. The first are invalid.
BankName const names[] = {BankName(),     BankName("a"),      BankName("A"),         BankName("A "),
                          BankName("%1"), BankName("\uFF21"), BankName("\U0001F3E6")};
unsigned int const numbers[] = {0, 1, 2, 3, 257, 65537, 16777217, 4294967295U};
BankAccountTypes const kinds[] = {Unknown, Chequeing, CreditCard, Loan, Savings, Goal};

auto const& draw(auto const& values, std::mt19937& random)
{
  return values[random() % std::size(values)];
}

Bank drawBank(std::mt19937& random)
{
  auto const& name = draw(names, random);
  Accounts accounts;
  for (auto const number : numbers) {
    auto const kind = draw(kinds, random);
    if (random() % 4 == 0 && number != 0 && kind != Unknown) {
      accounts.emplace(number, kind);
    }
  }
  return name.isEmpty() ? Bank() : Bank(name, accounts, random() % 2 == 0);
}

// What a registry does, what that requires, how many messages it logs then, and what it leaves.
using Operation = std::tuple<char const*, bool, int, std::function<void()>, std::function<void()>>;

// Returns the first of many changes after which the registry is not as the model, if any.
std::string firstDifference(unsigned int seed)
{
  std::mt19937 random(seed);
  BankMap map;
  Model model;
  for (int i = 0; i < 500; ++i) {
    std::map<BankName, Bank> banks;
    for (auto count = random() % 6; count > 0; --count) {
      auto const one = drawBank(random);
      banks.emplace(one.name(), one);
    }
    auto const bank = drawBank(random);
    auto const& name = bank.name();
    auto const& to = draw(names, random);
    AccountNumber const number(draw(numbers, random));
    auto const kind = draw(kinds, random);

    auto const shareNone = std::ranges::all_of(modelOf(banks), [&](auto const& one) {
      return areFree(one.second.accounts, one.first, modelOf(banks));
    });
    auto const isHeld = model.contains(name);
    auto const isOpen = isHeld && !model[name].isClosed;
    auto const fits = !bank.isClosed() && areFree(bank.accounts(), name, model);
    auto const isValid = number != AccountNumber() && kind != Unknown;
    Operation const operations[] = {
        {"construct", shareNone, 0, [&] { map = BankMap(banks); }, [&] { model = modelOf(banks); }},
        {"add the bank", !isHeld && fits, 0, [&] { map.add(bank); },
         [&] { model[name] = {bank.accounts()}; }},
        {"update", isOpen && fits, 0, [&] { map.update(bank); },
         [&] { model[name] = {bank.accounts()}; }},
        {"rename", isOpen && !model.contains(to) && !to.isEmpty(), 0, [&] { map.rename(name, to); },
         [&] { model[to] = model.extract(name).mapped(); }},
        {"remove the bank", isHeld, 0, [&] { map.remove(name); }, [&] { model.erase(name); }},
        {"close", isOpen, 1, [&] { map.close(name); }, [&] { model[name].isClosed = true; }},
        {"open", isHeld && !isOpen, 1, [&] { map.open(name); },
         [&] { model[name].isClosed = false; }},
        {"add the number", isHeld && isValid && areFree({{number, kind}}, name, model), 1,
         [&] { map.add(name, number, kind); }, [&] { model[name].accounts[number] = kind; }},
        {"remove the number", isHeld && model[name].accounts.contains(number), 1,
         [&] { map.remove(name, number); }, [&] { model[name].accounts.erase(number); }},
    };
    auto const& [text, isAllowed, logged, change, effect] = draw(operations, random);
    auto const before = map;
    auto const [error, message, messages] = thrown(change);
    auto isSame = error == (isAllowed ? "nothing" : typeid(BankError).name());
    if (isAllowed) {
      effect();
      isSame = isSame && messages == logged;
    }
    isSame = isSame && modelOf(map) == model && (map == before) == (modelOf(before) == model);
    isSame = isSame && !map.find({});
    for (auto const& [heldName, held] : map) {
      isSame = isSame && held.name() == heldName;
      for (auto const& [heldNumber, type] : held.accounts()) {
        isSame = isSame && map.find(heldNumber) == held;
      }
    }
    if (!isSame) {
      std::ostringstream difference;
      difference << text << " throws " << error << ' ' << message.toStdString()
                 << "\nbefore: " << before << "\nafter:  " << map << "\nname:   " << name
                 << "\nbank:   " << bank << "\nto:     " << to << "\nnumber: " << number
                 << "\nkind:   " << kind;
      return difference.str();
    }
  }
  return "";
}

} // namespace

// Each sequence of changes has a thread of its own, as registries share nothing.
TEST(Steps, DrawnAtRandomDoAsTheModel)
{
  std::vector<std::future<std::string>> walks;
  for (unsigned int seed = 0; seed < 50; ++seed) {
    walks.push_back(std::async(std::launch::async, firstDifference, seed));
  }
  for (std::size_t seed = 0; seed < walks.size(); ++seed) {
    ASSERT_EQ(walks[seed].get(), "") << "seed " << seed;
  }
}
