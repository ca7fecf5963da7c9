#include <gtest/gtest.h>

#include <stdexcept>

#include "text/ScopedFlag.h"

namespace vantrel::text {
namespace {

TEST(ScopedFlag, IsUpAsLongAsItLives) {
  bool flag = false;
  {
    const ScopedFlag scoped(flag);
    EXPECT_TRUE(flag);
  }
  EXPECT_FALSE(flag);
}

TEST(ScopedFlag, IsDownBehindAnError) {
  bool flag = false;
  const auto fail = [&flag] {
    const ScopedFlag scoped(flag);
    throw std::runtime_error("in between");
  };
  EXPECT_THROW(fail(), std::runtime_error);
  EXPECT_FALSE(flag);
}

TEST(ScopedFlag, AnInnerOneLowersTheFlagForTheOuterOneToo) {
  bool flag = false;
  const ScopedFlag outer(flag);
  { const ScopedFlag inner(flag); }
  EXPECT_FALSE(flag);
}

}  // namespace
}  // namespace vantrel::text
