#include "model/Steps.hpp"

#include "support/ScopedTranslator.hpp"
#include "support/Testing.hpp"

#include <random>
#include <thread>

namespace {

void takeRandomSteps(unsigned int seed)
{
  std::vector<std::uint8_t> bytes(5000);
  std::generate(bytes.begin(), bytes.end(), std::mt19937(seed));
  EXPECT_NO_THROW(takeSteps(bytes)) << "seed " << seed;
}

} // namespace

TEST(Steps, LeaveWhatTheModelHolds)
{
  ScopedTranslator const translator(&placeholdersOf);
  for (unsigned int seed = 0; seed < 50; ++seed) {
    takeRandomSteps(seed);
  }
}

TEST(Threads, TakeStepsAtTheSameTime)
{
  ScopedTranslator const translator(&placeholdersOf);
  std::vector<std::jthread> threads;
  for (unsigned int seed = 0; seed < 4; ++seed) {
    threads.emplace_back(&takeRandomSteps, seed);
  }
}
