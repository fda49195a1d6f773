#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

/// One way to do an operation: `start` gives what measures it once, in seconds, each time on the same
/// subject.
struct Contestant
{
  std::string name;
  std::function<std::function<double()>()> start;
};

inline double now()
{
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Measures `operate(subject, prepare(subject))` without the preparation, and without the end of what
/// the operation gives.
template <typename Subject, typename Prepare, typename Operate>
Contestant contestant(std::string name, Subject subject, Prepare prepare, Operate operate)
{
  return {std::move(name), [=] {
            auto const used = std::make_shared<decltype(subject())>(subject());
            return [=] {
              auto argument = prepare(*used);
              auto const start = now();
              auto result = operate(*used, argument);
              benchmark::DoNotOptimize(result);
              return now() - start;
            };
          }};
}

/// Measures `operate(subject)`, as many times in a row as reading the clock takes not to matter.
template <typename Subject, typename Operate>
Contestant contestant(std::string name, Subject subject, Operate operate)
{
  return {std::move(name), [=] {
            auto const used = std::make_shared<decltype(subject())>(subject());
            auto const timeOf = [=](int count) {
              auto const start = now();
              for (int i = 0; i < count; ++i) {
                benchmark::DoNotOptimize(operate(*used));
              }
              return now() - start;
            };
            int count = 1;
            while (timeOf(count) < 50e-6) {
              count *= 2;
            }
            return [=] { return timeOf(count) / count; };
          }};
}

/// Registers the operation. Its contestants take turns, so that what disturbs the machine disturbs all
/// alike; they start in random order, as where in memory a subject lies matters. The least time of each
/// is kept as a counter, in microseconds.
inline benchmark::internal::Benchmark* compete(std::string const& operation,
                                               std::vector<Contestant> const& contestants)
{
  auto const run = [=](benchmark::State& state) {
    struct Entry
    {
      std::string name;
      std::function<double()> measure;
      double least = std::numeric_limits<double>::max();
    };
    auto started = contestants;
    std::shuffle(started.begin(), started.end(), std::mt19937(std::random_device()()));
    std::vector<Entry> entries;
    for (auto const& contestant : started) {
      entries.push_back({contestant.name, contestant.start()});
      entries.back().measure(); // the first time differs from those after it
    }
    for (auto _ : state) {
      for (auto& entry : entries) {
        entry.least = std::min(entry.least, entry.measure());
      }
    }
    for (auto const& entry : entries) {
      state.counters[entry.name] = entry.least * 1e6;
    }
  };
  return benchmark::RegisterBenchmark(operation.c_str(), run)
      ->UseRealTime()
      ->Unit(benchmark::kMicrosecond);
}
