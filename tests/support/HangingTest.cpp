// A test that never ends, for the watchdog to find.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

TEST(Hanging, NeverEnds) {
  for (;;) std::this_thread::sleep_for(std::chrono::seconds(1));
}
