#include "model/Driver.hpp"
#include "support/ScopedTranslator.hpp"

#include <gmock/gmock.h>

TEST(Model, IsWhatTheLibraryDoes)
{
  std::size_t steps = 0;
  for (unsigned int seed = 0; seed < 100; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    EXPECT_NO_THROW(steps += holdAgainstModel(randomBytes(seed)));
    ScopedTranslator const translator;
    EXPECT_NO_THROW(steps += holdAgainstModel(randomBytes(seed), "~"));
  }
  EXPECT_GT(steps, 50000U);
}
