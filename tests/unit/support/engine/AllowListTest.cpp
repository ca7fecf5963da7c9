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

TEST(AllowListOfTheDouble, GoesOnBehindAnEmptyNameWhichMatchesNothing) {
  for (const char* empty : {"1,1,1,1,1,1,", "1,1,1,1,1,1,  ", "1,1,1,1,1,1, ,b", "1,1,1,1,1,1,,"}) {
    const auto sites = ParseAllowList(std::string(empty) + "\r\n2,1,0,0,0,0,a\r\n");
    ASSERT_EQ(sites.size(), 2u) << empty;
    EXPECT_EQ(AllowedOn(sites, ""), Nothing) << empty;
    EXPECT_EQ(AllowedOn(sites, " "), Nothing) << empty;
    EXPECT_EQ(AllowedOn(sites, "b"), Nothing) << empty;
    EXPECT_TRUE(AllowedOn(sites, "a")[0]) << empty;
  }
}

TEST(AllowListOfTheDouble, LooksAtNoNumber) {
  EXPECT_EQ(ParseAllowList("id =7,0,0,0,0,0,a\r\nid =2,0,0,0,0,0,b\r\nid =2,0,0,0,0,0,c\r\n"
                           "no number,0,0,0,0,0,d\r\n,0,0,0,0,0,e\r\n")
                .size(),
            5u);
}

// While the list is written its end may stand anywhere. What is read of it are whole records, but
// for the last, whose name may still grow.
TEST(AllowListOfTheDouble, ReadsEveryPartOfAList) {
  const std::string list =
      "id =1, Popup= 1 ,DHTML = 0, WebDialog =0 ,Banner = 1, Flash = 0 , one\r\n"
      "id =2, Popup= 0 ,DHTML = 1, WebDialog =1 ,Banner = 0, Flash = 1 , two,half\r\n"
      "id =2, Popup= 0 ,DHTML = 0, WebDialog =0 ,Banner = 0, Flash = 0 , three\r\n";
  const auto whole = ParseAllowList(list);
  ASSERT_EQ(whole.size(), 3u);
  for (std::size_t length = 0; length < list.size(); ++length) {
    const auto part = ParseAllowList(std::string_view(list).substr(0, length));
    ASSERT_LE(part.size(), whole.size()) << length;
    for (std::size_t at = 0; at < part.size(); ++at) {
      EXPECT_EQ(part[at].allowed, whole[at].allowed) << length;
      const bool last = at + 1 == part.size();
      EXPECT_TRUE(last ? whole[at].name.starts_with(part[at].name)
                       : whole[at].name == part[at].name)
          << length;
    }
  }
}

TEST(AllowListOfTheDouble, ReadsAnyBytes) {
  constexpr char Likely[] = {',', ',', ',',  '=',  '1',    ' ', '\r', '\n',
                             '0', ' ', '\n', '\0', '\xFF', 'x', ',',  '='};
  std::string bytes;
  std::uint32_t random = 1;
  for (int length = 0; length < 20000; ++length) {
    random = random * 1664525U + 1013904223U;
    bytes += Likely[random >> 28U];
  }
  for (std::size_t from = 0; from < bytes.size(); from += 97) {
    const auto sites = ParseAllowList(std::string_view(bytes).substr(from));
    EXPECT_EQ(AllowedOn(sites, ""), Nothing);
  }
  EXPECT_EQ(ParseAllowList(std::string(100000, ',')).size(), 1u);
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
