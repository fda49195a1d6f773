#include "ByHand.hpp"
#include "Database.hpp"

#include <banking/BankError.hpp>

#include <benchmark/benchmark.h>
#include <chrono>
#include <sstream>

using benchmark::State;

namespace {

// The log messages are made and go nowhere.
auto const logger = qInstallMessageHandler([](auto, auto const&, auto const&) {});

// Neither this nor a larger number is held at a bank.
AccountNumber const freeNumber(10'000'000);

Bank makeFreeBank(int accounts)
{
  return makeBanks(1, accounts, freeNumber.integer()).begin()->second;
}

Banks banksOf(State const& state)
{
  return makeBanks(state.range(0), state.range(1));
}

// Measures the operation alone. To pause the clock of the benchmark library takes microseconds.
template <typename Operation>
void time(State& state, Operation operation)
{
  auto const start = std::chrono::steady_clock::now();
  operation();
  std::chrono::duration<double> const taken = std::chrono::steady_clock::now() - start;
  state.SetIterationTime(taken.count());
}

void copyMap(State& state)
{
  auto const banks = banksOf(state);
  for (auto _ : state) {
    Banks copy;
    time(state, [&] { copy = banks; });
  }
}

template <typename Registry>
void construct(State& state)
{
  auto const banks = banksOf(state);
  for (auto _ : state) {
    auto copy = banks;
    std::optional<Registry> registry;
    time(state, [&] { registry.emplace(std::move(copy)); });
  }
}

// With the end of the banks, which is part of a refusal.
void constructAndEnd(State& state, bool isRefused)
{
  auto banks = banksOf(state);
  if (isRefused) {
    auto const& [number, type] = *std::next(banks.rbegin())->second.accounts().begin();
    banks.rbegin()->second.add(number, type);
  }
  for (auto _ : state) {
    auto copy = banks;
    time(state, [&] {
      try {
        BankMap const registry(std::move(copy));
      } catch (BankError const&) {
      }
    });
  }
}

template <typename Registry>
void addEveryBank(State& state)
{
  auto const banks = banksOf(state);
  for (auto _ : state) {
    Registry registry;
    for (auto const& [name, bank] : banks) {
      registry.add(bank);
    }
  }
}

template <typename Registry>
constexpr auto with = [](State& state, auto run) {
  Registry registry{banksOf(state)};
  run(state, registry);
};

constexpr auto library = with<BankMap>;
constexpr auto byHand = with<ByHand>;
constexpr auto database = with<Database>;

template <bool isAbsent>
constexpr auto find = [](State& state, auto& registry) {
  auto const last = banksOf(state).rbegin()->second.accounts().begin()->first;
  for (auto _ : state) {
    benchmark::DoNotOptimize(registry.find(isAbsent ? freeNumber : last));
  }
};

auto const addNumber = [](State& state, auto& registry) {
  auto const name = banksOf(state).begin()->first;
  for (auto _ : state) {
    time(state, [&] { registry.add(name, freeNumber, BankAccountTypes::Loan); });
    registry.remove(name, freeNumber);
  }
};

auto const updateBank = [](State& state, auto& registry) {
  auto const bank = makeFreeBank(1'000);
  registry.add(bank);
  for (auto _ : state) {
    auto copy = bank;
    time(state, [&] { registry.update(std::move(copy)); });
  }
};

auto const addBank = [](State& state, auto& registry) {
  auto const bank = makeFreeBank(10);
  for (auto _ : state) {
    auto copy = bank;
    time(state, [&] { registry.add(std::move(copy)); });
    registry.remove(bank.name());
  }
};

template <int accounts>
constexpr auto renameThereAndBack = [](State& state, auto& registry) {
  auto const bank = makeFreeBank(accounts);
  BankName const other("Side Street Credit Union");
  registry.add(bank);
  for (auto _ : state) {
    registry.rename(bank.name(), other);
    registry.rename(other, bank.name());
  }
};

auto const names = [](State& state, auto& registry) {
  for (auto _ : state) {
    std::set<BankName> names;
    time(state, [&] { names = registry.names(); });
  }
};

auto const equal = [](State& state, auto& registry) {
  std::remove_cvref_t<decltype(registry)> const other{banksOf(state)};
  for (auto _ : state) {
    benchmark::DoNotOptimize(registry == other);
  }
};

auto const write = [](State& state, auto& registry) {
  for (auto _ : state) {
    std::ostringstream() << registry;
  }
};

auto const upToCountry = [](auto* it) { it->Args({5, 4})->Args({100, 25})->Args({4'500, 10}); };
auto const everySize = [](auto* it) { it->Apply(upToCountry)->Args({12'000, 10}); };
auto const timed = [](auto* it) { it->Apply(everySize)->UseManualTime(); };
auto const tenfold = [](auto* it) { it->Args({50, 4})->Args({1'000, 25})->Args({45'000, 10}); };

BENCHMARK(copyMap)->Apply(timed)->Apply(tenfold);
BENCHMARK_TEMPLATE(construct, BankMap)->Apply(timed)->Apply(tenfold);
BENCHMARK_TEMPLATE(construct, Database)->Apply(timed);
BENCHMARK_CAPTURE(constructAndEnd, accepted, false)->Apply(timed);
BENCHMARK_CAPTURE(constructAndEnd, refused, true)->Apply(timed);
BENCHMARK_TEMPLATE(addEveryBank, BankMap)->Apply(upToCountry)->Repetitions(3);
BENCHMARK_TEMPLATE(addEveryBank, Database)->Apply(upToCountry)->Repetitions(3);
BENCHMARK_CAPTURE(library, findAbsent, find<true>)->Apply(everySize);
BENCHMARK_CAPTURE(byHand, findAbsent, find<true>)->Apply(everySize);
BENCHMARK_CAPTURE(database, findAbsent, find<true>)->Apply(everySize);
BENCHMARK_CAPTURE(library, findInLastBank, find<false>)->Apply(everySize);
BENCHMARK_CAPTURE(byHand, findInLastBank, find<false>)->Apply(everySize);
BENCHMARK_CAPTURE(database, findInLastBank, find<false>)->Apply(everySize);
BENCHMARK_CAPTURE(library, addNumber, addNumber)->Apply(timed);
BENCHMARK_CAPTURE(byHand, addNumber, addNumber)->Apply(timed);
BENCHMARK_CAPTURE(database, addNumber, addNumber)->Apply(timed);
BENCHMARK_CAPTURE(library, updateBank, updateBank)->Apply(timed);
BENCHMARK_CAPTURE(byHand, updateBank, updateBank)->Apply(timed);
BENCHMARK_CAPTURE(library, addBank, addBank)->Apply(timed);
BENCHMARK_CAPTURE(byHand, addBank, addBank)->Apply(timed);
BENCHMARK_CAPTURE(library, rename10, renameThereAndBack<10>)->Apply(everySize);
BENCHMARK_CAPTURE(library, rename10000, renameThereAndBack<10'000>)->Apply(everySize);
BENCHMARK_CAPTURE(database, rename10, renameThereAndBack<10>)->Apply(everySize);
BENCHMARK_CAPTURE(library, names, names)->Apply(timed);
BENCHMARK_CAPTURE(byHand, names, names)->Apply(timed);
BENCHMARK_CAPTURE(database, names, names)->Apply(timed);
BENCHMARK_CAPTURE(library, equal, equal)->Apply(everySize);
BENCHMARK_CAPTURE(byHand, equal, equal)->Apply(everySize);
BENCHMARK_CAPTURE(library, write, write)->Apply(everySize);
BENCHMARK_CAPTURE(byHand, write, write)->Apply(everySize);

} // namespace

BENCHMARK_MAIN();
