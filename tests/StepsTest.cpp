#include "model/Steps.hpp"

#include "support/Testing.hpp"

#include <future>
#include <random>

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
