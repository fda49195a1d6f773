#include "model/Driver.hpp"
#include "support/Allocations.hpp"

#include <QString>
#include <QtGlobal>

#include <exception>
#include <gmock/gmock.h>
#include <new>
#include <string>
#include <utility>

using orv::banking::BankMap;

namespace {

// Keeping the last message takes no memory, as its text is shared.
QString lastMessage;

void keepMessage(QtMsgType, QMessageLogContext const&, QString const& text)
{
  lastMessage = text;
}

// What is thrown where memory has room for so many allocations, "full" where that is why, or nothing.
std::string outcome(BankMap& subject, MapOperation const& operation, long room, bool stays)
{
  try {
    FullMemory const full(room, stays);
    operation(subject);
    return {};
  } catch (std::bad_alloc const&) {
    return "full";
  } catch (std::exception const& error) {
    return error.what();
  }
}

// Carries out the operation with each of its allocations failing, alone or with all that follow: either
// nothing changes, or all is as if there had been memory. Gives the number of failures.
long expectSurvives(BankMap const& before, MapOperation const& operation)
{
  long survived = 0;
  auto after = before;
  auto const refusal = outcome(after, operation, -1, false);
  auto const message = std::exchange(lastMessage, {});
  for (auto const stays : {false, true}) {
    for (long room = 0; room == 0 || Allocations::failed > 0; ++room) {
      auto const live = Allocations::live;
      {
        auto subject = before;
        auto const seen = outcome(subject, operation, room, stays);
        survived += Allocations::failed > 0 ? 1 : 0;
        EXPECT_TRUE(seen == "full" ? subject == before
                                   : seen == refusal && subject == after && lastMessage == message)
            << room;
      }
      lastMessage = {};
      auto const leaked = Allocations::live - live;
      EXPECT_EQ(leaked, 0) << room;
    }
  }
  return survived;
}

} // namespace

TEST(FullMemory, LeavesTheRegistryAsItWas)
{
  long survived = 0;
  auto const rehearse = [&](BankMap const& map, MapOperation const& operation) {
    auto* const previous = qInstallMessageHandler(&keepMessage);
    survived += expectSurvives(map, operation);
    qInstallMessageHandler(previous);
  };
  for (unsigned int seed = 0; seed < 5; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    EXPECT_NO_THROW(holdAgainstModel(randomBytes(seed), "", rehearse));
  }
  EXPECT_GT(survived, 20000);
}
