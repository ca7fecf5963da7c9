#include <gmock/gmock.h>

#include "engine/AllowList.h"

namespace vantrel::engine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr AllowedKinds Nothing{};

TEST(AllowListOfTheDouble, ReadsARecordByPosition) {
  const auto sites = ParseAllowList(
      "id =2, Popup= 1 ,DHTML = 0, WebDialog =0 ,Banner = 1, Flash = 0 , mysite\r\n");
  ASSERT_EQ(sites.size(), 1u);
  EXPECT_EQ(sites[0].name, "mysite");
  EXPECT_THAT(sites[0].allowed, ElementsAre(true, false, false, true, false));
}

TEST(AllowListOfTheDouble, LooksAtNoKeyWord) {
  const auto sites = ParseAllowList("x,Flash=1,what ever=0,0,1,= 1 ,s\r\n");
  ASSERT_EQ(sites.size(), 1u);
  EXPECT_THAT(sites[0].allowed, ElementsAre(true, false, false, true, true));
}

TEST(AllowListOfTheDouble, TakesWhatStandsBehindTheLastEqualsSign) {
  const auto sites = ParseAllowList("i,a=0=1,a=1=0,0,0,0,s\r\n");
  ASSERT_EQ(sites.size(), 1u);
  EXPECT_THAT(sites[0].allowed, ElementsAre(true, false, false, false, false));
}

TEST(AllowListOfTheDouble, AllowsNothingForAnyOtherFlag) {
  const auto sites = ParseAllowList("id =1,2,-1,yes,,01,s\r\n");
  ASSERT_EQ(sites.size(), 1u);
  EXPECT_EQ(sites[0].allowed, Nothing);
}

TEST(AllowListOfTheDouble, StopsAtABlankLine) {
  EXPECT_EQ(ParseAllowList("1,0,0,0,0,0,a\r\n   \r\n2,0,0,0,0,0,b\r\n").size(), 1u);
  EXPECT_EQ(ParseAllowList("1,0,0,0,0,0,a\r\n\r\n2,0,0,0,0,0,b\r\n").size(), 1u);
}

TEST(AllowListOfTheDouble, StopsAtALineOfFewerThanSevenFields) {
  EXPECT_EQ(ParseAllowList("1,0,0,0,0,0,a\r\n1,0,0,0,0,b\r\n2,0,0,0,0,0,c\r\n").size(), 1u);
}

TEST(AllowListOfTheDouble, CutsANameAtItsComma) {
  const auto sites = ParseAllowList("1,0,0,0,0,0, a,b\r\n");
  ASSERT_EQ(sites.size(), 1u);
  EXPECT_EQ(sites[0].name, "a");
}

TEST(AllowListOfTheDouble, IsEmptyForAnEmptyFile) { EXPECT_THAT(ParseAllowList(""), IsEmpty()); }

TEST(AllowListOfTheDouble, ReadsALastLineWithoutAnEnd) {
  EXPECT_EQ(ParseAllowList("1,0,0,0,0,0,a\r\n2,0,0,0,0,0,b").size(), 2u);
}

TEST(AllowListOfTheDouble, FindsASiteWithoutRegardToCaseAndBlanks) {
  const auto sites = ParseAllowList("1,1,0,0,0,0,  My.Site  \r\n");
  EXPECT_TRUE(AllowedOn(sites, " my.SITE")[0]);
  EXPECT_EQ(AllowedOn(sites, "my.site.org"), Nothing);
}

TEST(AllowListOfTheDouble, TakesTheFirstRecordOfAName) {
  const auto sites = ParseAllowList("1,1,0,0,0,0,a\r\n2,0,1,0,0,0,a\r\n");
  EXPECT_THAT(AllowedOn(sites, "a"), ElementsAre(true, false, false, false, false));
}

}  // namespace
}  // namespace vantrel::engine
