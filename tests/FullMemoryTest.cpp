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

// Carries out the operation with each of its allocations failing, alone or with all that follow: either
// nothing changes, or all is as if there had been memory. Gives the number of failures.
long expectSurvives(BankMap const& before, MapOperation const& operation)
{
  long survived = 0;
  auto after = before;
  std::string refusal;
  try {
    operation(after);
  } catch (std::exception const& error) {
    refusal = error.what();
  }
  auto const message = std::exchange(lastMessage, {});
  for (auto const stays : {false, true}) {
    for (long room = 0;; ++room) {
      auto const live = Allocations::live;
      auto isAsItWas = false;
      auto isDone = false;
      {
        auto subject = before;
        try {
          FullMemory const full(room, stays);
          operation(subject);
          isDone = refusal.empty();
        } catch (std::bad_alloc const&) {
          isAsItWas = subject == before;
        } catch (std::exception const& error) {
          isDone = refusal == error.what();
        }
        isDone = isDone && subject == after && lastMessage == message;
      }
      lastMessage = {};
      auto const leaked = Allocations::live - live;
      EXPECT_EQ(leaked, 0) << room;
      EXPECT_TRUE(isAsItWas || isDone) << room;
      if (Allocations::failed == 0) {
        break;
      }
      ++survived;
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
