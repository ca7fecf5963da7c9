#include <gtest/gtest.h>

#include <stdexcept>

#include "text/ErrorTrap.h"

namespace vantrel::text {
namespace {

TEST(ErrorTrap, GoesOnBehindAFailingStatement) {
  ErrorTrap trap;
  int done = 0;
  EXPECT_TRUE(trap([&] { ++done; }));
  EXPECT_FALSE(trap([&] { throw RuntimeError(ErrorNumber::PathNotFound); }));
  EXPECT_TRUE(trap([&] { ++done; }));
  EXPECT_EQ(2, done);
}

TEST(ErrorTrap, KeepsTheLastError) {
  ErrorTrap trap;
  EXPECT_FALSE(trap.Last());
  trap([] { throw RuntimeError(ErrorNumber::PathNotFound); });
  trap([] { throw RuntimeError(ErrorNumber::DiskFull); });
  trap([] {});
  EXPECT_EQ(ErrorNumber::DiskFull, trap.Last()->Number());
  trap.Clear();
  EXPECT_FALSE(trap.Last());
}

TEST(ErrorTrap, LetsEverythingElseThrough) {
  ErrorTrap trap;
  EXPECT_THROW(trap([] { throw std::logic_error("no run-time error"); }), std::logic_error);
}

}  // namespace
}  // namespace vantrel::text
