#include "model/Steps.hpp"

#include "support/ScopedTranslator.hpp"
#include "support/Testing.hpp"

#include <future>
#include <random>

// Each in its thread, as registries share nothing.
TEST(Steps, LeaveWhatTheModelHolds)
{
  ScopedTranslator const translator(&placeholdersOf);
  auto const takeRandomSteps = [](unsigned int seed) {
    std::mt19937 random(seed);
    auto const draw = [&](unsigned int bound) {
      return static_cast<unsigned int>(random() % bound);
    };
    EXPECT_NO_THROW(takeSteps(500, draw)) << "seed " << seed;
  };
  std::vector<std::future<void>> threads; // whose ends they wait for
  for (unsigned int seed = 0; seed < 50; ++seed) {
    threads.push_back(std::async(std::launch::async, takeRandomSteps, seed));
  }
}
