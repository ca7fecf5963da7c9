#include <gmock/gmock.h>

#include <utility>
#include <vector>

#include "text/Owned.h"

namespace vantrel::text {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<int> closed;

struct Number {
  using Type = int;
  static Type Invalid() { return -1; }
  static void Close(Type number) { closed.push_back(number); }
};
using OwnedNumber = Owned<Number>;

class OwnedTest : public testing::Test {
 protected:
  void SetUp() override { closed.clear(); }
};

TEST_F(OwnedTest, ClosesWhatItHoldsWhenItGoes) {
  {
    const OwnedNumber number(7);
    EXPECT_TRUE(number.Valid());
    EXPECT_EQ(number.Get(), 7);
  }
  EXPECT_THAT(closed, ElementsAre(7));
}

TEST_F(OwnedTest, ClosesNothingWithoutAHandle) {
  {
    const OwnedNumber none;
    const OwnedNumber failed(-1);
    EXPECT_FALSE(none.Valid());
    EXPECT_FALSE(failed.Valid());
  }
  EXPECT_THAT(closed, IsEmpty());
}

// 0 is a handle like any other where the traits say so.
TEST_F(OwnedTest, TheTraitsSayWhatIsNoHandle) {
  EXPECT_TRUE(OwnedNumber(0).Valid());
  EXPECT_THAT(closed, ElementsAre(0));
}

TEST_F(OwnedTest, AMoveHandsTheHandleOver) {
  OwnedNumber first(1);
  {
    const OwnedNumber second(std::move(first));
    EXPECT_EQ(second.Get(), 1);
    EXPECT_THAT(closed, IsEmpty());
  }
  EXPECT_THAT(closed, ElementsAre(1));
}

TEST_F(OwnedTest, AMoveOntoAHandleClosesThatOne) {
  OwnedNumber first(1);
  OwnedNumber second(2);
  second = std::move(first);
  EXPECT_THAT(closed, ElementsAre(2));
  EXPECT_EQ(second.Get(), 1);
}

TEST_F(OwnedTest, AMoveOntoItselfKeepsTheHandle) {
  OwnedNumber number(3);
  OwnedNumber& same = number;
  number = std::move(same);
  EXPECT_EQ(number.Get(), 3);
  EXPECT_THAT(closed, IsEmpty());
}

TEST_F(OwnedTest, ResetClosesAndTakes) {
  OwnedNumber number(4);
  number.Reset(5);
  EXPECT_THAT(closed, ElementsAre(4));
  number.Reset();
  EXPECT_THAT(closed, ElementsAre(4, 5));
  EXPECT_FALSE(number.Valid());
}

}  // namespace
}  // namespace vantrel::text
