#include <gmock/gmock.h>

#include "platform/memory/Clock.h"

namespace vantrel::platform::memory {
namespace {

using testing::ElementsAre;

TEST(MemoryClock, StandsUntilTold) {
  Clock clock;
  EXPECT_EQ(clock.Now(), 0U);
  clock.Advance(1500);
  EXPECT_EQ(clock.Now(), 1500U);
}

TEST(MemoryClock, TimersTickInTheOrderOfTheirTimes) {
  Clock clock;
  std::vector<std::pair<char, std::uint64_t>> ticks;
  clock.SetTimer(1, 50, [&] { ticks.emplace_back('a', clock.Now()); });
  clock.SetTimer(1, 30, [&] { ticks.emplace_back('b', clock.Now()); });
  clock.Advance(100);
  EXPECT_THAT(ticks, ElementsAre(std::pair('b', 30U), std::pair('a', 50U), std::pair('b', 60U),
                                 std::pair('b', 90U), std::pair('a', 100U)));
}

TEST(MemoryClock, TimerMayKillItselfAndSetAnother) {
  Clock clock;
  int ticks = 0;
  TimerId timer = 0;
  timer = clock.SetTimer(1, 10, [&] {
    clock.KillTimer(timer);
    clock.SetTimer(1, 5, [&] { ++ticks; });
  });
  clock.Advance(21);
  EXPECT_EQ(ticks, 2);
  EXPECT_EQ(clock.TimersOf(1), 1U);
}

TEST(MemoryClock, TimersOfAProcessGoTogether) {
  Clock clock;
  int ticks = 0;
  clock.SetTimer(1, 10, [&] { ++ticks; });
  clock.SetTimer(2, 10, [&] { ticks += 100; });
  clock.KillTimersOf(2);
  clock.Advance(10);
  EXPECT_EQ(ticks, 1);
}

TEST(MemoryClock, LocalTimeCrossesMidnightAndMonths) {
  Clock clock;
  clock.SetLocalTime({2004, 2, 29, 23, 59, 58});
  clock.Advance(1999);
  EXPECT_EQ(clock.LocalNow(), (LocalTime{2004, 2, 29, 23, 59, 59}));
  clock.Advance(1);
  EXPECT_EQ(clock.LocalNow(), (LocalTime{2004, 3, 1, 0, 0, 0}));
}

TEST(MemoryClock, NoSuchDayIsAMisuse) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  Clock clock;
  EXPECT_DEATH(clock.SetLocalTime({2003, 2, 29, 0, 0, 0}), "no such day");
}

}  // namespace
}  // namespace vantrel::platform::memory
