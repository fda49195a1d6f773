#include "ByHand.hpp"
#include "Contest.hpp"
#include "Data.hpp"
#include "Ratios.hpp"
#include "Table.hpp"

#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <iostream>
#include <memory>
#include <sstream>
#include <utility>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

constexpr auto loan = BankAccountTypes::Loan;

// The data of one size, and how each contestant gets a subject made from it.
struct World
{
  explicit World(Size const& size)
      : size(size),
        shared(std::make_shared<std::vector<Bank>>(makeBanks(size.banks, size.accountsEach)))
  {
  }

  std::string named(std::string const& operation) const { return operation + '/' + size.name; }

  auto list() const
  {
    return [shared = shared] { return *shared; };
  }
  auto map() const
  {
    return [shared = shared] { return byName<Bank>(*shared); };
  }
  auto library() const
  {
    return [shared = shared] { return BankMap(byName<Bank>(*shared)); };
  }
  auto byHand() const
  {
    return [shared = shared] { return byName<byhand::Bank>(*shared); };
  }
  auto table() const
  {
    return [shared = shared] {
      Table table;
      table.load(byName<Bank>(*shared));
      return table;
    };
  }

  Size size;
  std::shared_ptr<std::vector<Bank> const> shared;
};

auto const nothing = [](auto&) { return 0; };

void construct(World const& world)
{
  auto const copy = [](Banks const& banks) { return banks; };
  auto const construct = [](Banks&, Banks& banks) { return BankMap(std::move(banks)); };
  auto const library = contestant("library", world.map(), copy, construct);
  auto const accepted = {
      library,
      contestant("copy", world.map(), nothing, [](Banks const& banks, int) { return banks; }),
      contestant(
          "table", world.map(), [](auto&) { return Table(); },
          [](Banks const& banks, Table& table) {
            table.load(banks);
            return 0;
          }),
  };
  compete(world.named("construct"), accepted);

  // Apart from the others, as what ten times the banks leave behind in memory would slow them down.
  if (world.size.banks <= 4'500) {
    auto const tenfold = [size = world.size] {
      return byName<Bank>(makeBanks(size.banks * 10, size.accountsEach));
    };
    compete(world.named("construct"), {contestant("tenfold", tenfold, copy, construct),
                                       contestant("tenfold copy", tenfold, nothing,
                                                  [](Banks const& banks, int) { return banks; })});
    auto const keepRules = [](Banks const& banks, int) { return byhand::keepRules(banks); };
    auto* const walk =
        compete(world.named("construct"), {contestant("walk", world.map(), nothing, keepRules)});
    if (world.size.banks > 100) {
      walk->Iterations(1)->Repetitions(1);
    }
  }

  // A refused construction ends with the end of the banks, so the accepted one beside it does as well.
  auto const clash = [map = world.map()] {
    auto banks = map();
    auto const last = banks.rbegin();
    auto accounts = last->second.accounts();
    accounts.insert(*std::next(last)->second.accounts().begin());
    last->second = Bank(last->first, std::move(accounts), false);
    return banks;
  };
  auto const constructAndEnd = [](Banks&, Banks& banks) {
    try {
      return BankMap(std::move(banks)).hasBank(BankName());
    } catch (BankError const&) {
      return true;
    }
  };
  compete(world.named("construct, refused"),
          {contestant("library", clash, copy, constructAndEnd),
           contestant("accepted", world.map(), copy, constructAndEnd)});
}

void find(World const& world)
{
  auto const last = world.map()().rbegin()->second.accounts().begin()->first;
  for (auto const& [operation, number] :
       {std::pair("find, absent", AccountNumber(firstFreeNumber)), {"find, last bank", last}}) {
    auto const find = [number = number](auto& banks) { return banks.find(number); };
    auto const findByHand = [number = number](auto& banks) { return byhand::find(banks, number); };
    compete(world.named(operation), {contestant("library", world.library(), find),
                                     contestant("floor", world.byHand(), findByHand),
                                     contestant("table", world.table(), find)});
  }
}

void addNumber(World const& world)
{
  AccountNumber const number(firstFreeNumber);
  auto const name = world.shared->front().name();
  auto const with = [=](auto const& subject) {
    return [=] {
      auto banks = subject();
      banks.add(name, number, loan);
      return banks;
    };
  };
  auto const add = [=](auto& banks, int) { return banks.add(name, number, loan), 0; };
  compete(world.named("add a number"),
          {contestant(
               "library", with(world.library()),
               [=](BankMap& banks) { return banks.remove(name, number), 0; }, add),
           contestant(
               "table", with(world.table()), [=](Table& table) { return table.remove(number), 0; },
               add),
           contestant(
               "floor", world.byHand(),
               [=](auto& banks) { return banks.at(name).accounts.erase(number); },
               [=](auto& banks, std::size_t) { return byhand::add(banks, name, number, loan); })});
}

void update(World const& world)
{
  Bank const bank(world.shared->front().name(), makeFreeAccounts(1'000), false);
  compete(world.named("update, 1,000 numbers"),
          {contestant(
               "library", world.library(), [=](auto&) { return Bank(bank); },
               [](BankMap& banks, Bank& bank) { return banks.update(std::move(bank)), 0; }),
           contestant(
               "floor", world.byHand(), [=](auto&) { return byhand::Bank(bank); },
               [](auto& banks, auto& bank) { return byhand::update(banks, std::move(bank)); })});
}

void addBank(World const& world)
{
  auto const bank = world.shared->front();
  compete(world.named("add a bank"),
          {contestant(
               "library", world.library(),
               [=](BankMap& banks) { return banks.remove(bank.name()), bank; },
               [](BankMap& banks, Bank& bank) { return banks.add(std::move(bank)), 0; }),
           contestant(
               "floor", world.byHand(),
               [=](auto& banks) { return banks.erase(bank.name()), byhand::Bank(bank); },
               [](auto& banks, auto& bank) { return byhand::add(banks, std::move(bank)); })});
}

void addBanks(World const& world)
{
  auto const addTo = [](auto make) {
    return [=](auto const& banks, int) {
      auto registry = make();
      for (auto const& bank : banks) {
        registry.add(bank);
      }
      return registry;
    };
  };
  if (world.size.banks <= 4'500) {
    auto* const built =
        compete(world.named("add every bank"),
                {contestant("library", world.list(), nothing, addTo([] { return BankMap(); })),
                 contestant("table", world.list(), nothing, addTo([] { return Table(); }))});
    if (world.size.banks > 100) {
      built->Iterations(2)->Repetitions(1);
    }
  }
}

void rename(World const& world)
{
  BankName const from("Main Street Credit Union");
  BankName const to("Side Street Credit Union");
  auto const thereAndBack = [=](auto& banks) {
    banks.rename(from, to);
    banks.rename(to, from);
    return 0;
  };
  auto const with = [=](auto const& subject, unsigned int accounts) {
    return [=] {
      auto banks = subject();
      banks.add(Bank(from, makeFreeAccounts(accounts), false));
      return banks;
    };
  };
  compete(world.named("rename"),
          {contestant("10 accounts", with(world.library(), 10), thereAndBack),
           contestant("10,000 accounts", with(world.library(), 10'000), thereAndBack),
           contestant("table", with(world.table(), 10), thereAndBack)});
}

void names(World const& world)
{
  auto const names = [](auto& banks, int) { return banks.names(); };
  auto const set = [library = world.library()] { return library().names(); };
  compete(world.named("names"),
          {contestant("library", world.library(), nothing, names),
           contestant("copy", set, nothing, [](auto const& names, int) { return names; }),
           contestant("table", world.table(), nothing, names)});
}

void compare(World const& world)
{
  // Equal texts that share no memory.
  World const twin(world.size);
  auto const equal = [](auto const& both) { return both.first == both.second; };
  auto const both = [](auto lhs, auto rhs) { return [=] { return std::pair(lhs(), rhs()); }; };
  compete(world.named("=="), {contestant("library", both(world.library(), twin.library()), equal),
                              contestant("floor", both(world.byHand(), twin.byHand()), equal)});
}

void write(World const& world)
{
  compete(world.named("write"),
          {contestant("library", world.library(), nothing,
                      [](auto const& banks, int) {
                        std::ostringstream stream;
                        stream << banks;
                        return stream;
                      }),
           contestant("floor", world.byHand(), nothing, [](auto const& banks, int) {
             std::ostringstream stream;
             byhand::write(stream, banks);
             return stream;
           })});
}

} // namespace

int main(int argc, char** argv)
{
  QCoreApplication const application(argc, argv);
  // The log messages are made and go nowhere.
  qInstallMessageHandler([](QtMsgType, QMessageLogContext const&, QString const&) {});

  for (auto const& size : sizes) {
    World const world(size);
    for (auto* const operation :
         {construct, find, addNumber, update, addBank, addBanks, rename, names, compare, write}) {
      operation(world);
    }
  }

  std::vector<std::string> arguments{argv[0], "--benchmark_repetitions=5",
                                     "--benchmark_min_time=0.4"};
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  std::vector<char*> pointers;
  for (auto& argument : arguments) {
    pointers.push_back(argument.data());
  }
  auto count = static_cast<int>(pointers.size());
  benchmark::Initialize(&count, pointers.data());
  if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) {
    return 1;
  }
  Ratios ratios;
  benchmark::RunSpecifiedBenchmarks(&ratios);
  ratios.write(std::cout);
}
