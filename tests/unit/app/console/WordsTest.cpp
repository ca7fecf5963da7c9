#include <gmock/gmock.h>

#include "app/console/Words.h"

namespace vantrel::console {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Words, AreSeparatedByBlanksAndTabs) {
  EXPECT_THAT(SplitWords("  click \t cmdstart "), ElementsAre("click", "cmdstart"));
  EXPECT_THAT(SplitWords(""), IsEmpty());
  EXPECT_THAT(SplitWords(" \t"), IsEmpty());
}

TEST(Words, InQuotesHoldBlanksQuotesAndNothing) {
  EXPECT_THAT(SplitWords(R"(menu "File/Start Blocking")"),
              ElementsAre("menu", "File/Start Blocking"));
  EXPECT_THAT(SplitWords(R"(type a "say ""yes""" "")"),
              ElementsAre("type", "a", "say \"yes\"", ""));
}

TEST(Words, TakeABackslashAsItStands) {
  EXPECT_THAT(SplitWords(R"("C:\Program Files\" x)"), ElementsAre("C:\\Program Files\\", "x"));
}

TEST(Words, OfARemarkAreNone) {
  EXPECT_THAT(SplitWords("# start"), IsEmpty());
  EXPECT_THAT(SplitWords("start #1"), ElementsAre("start", "#1"));
}

TEST(Words, RefuseBadQuoting) {
  EXPECT_THROW(SplitWords("type a \"open"), CommandError);
  EXPECT_THROW(SplitWords("\""), CommandError);
  EXPECT_THROW(SplitWords("\"a\"b"), CommandError);
}

TEST(Words, RefuseNulAndLinesWithoutEnd) {
  EXPECT_THROW(SplitWords(std::string_view("a\0b", 3)), CommandError);
  EXPECT_EQ(SplitWords(std::string(LongestLine, 'a')).size(), 1U);
  EXPECT_THROW(SplitWords(std::string(LongestLine + 1, 'a')), CommandError);
}

TEST(Printable, KeepsEverythingOnOneLine) {
  EXPECT_EQ(Printable("a\r\n\t\x01\xE9 ~"), R"(a\r\n\t\x01\xE9 ~)");
  EXPECT_EQ(Quoted("x"), "\"x\"");
}

TEST(ParseNumber, TakesDecimalAndHexadecimal) {
  EXPECT_EQ(ParseNumber("42", 0, 100, "n"), 42);
  EXPECT_EQ(ParseNumber("0x2A", 0, 100, "n"), 42);
  EXPECT_EQ(ParseNumber("-5", -10, 0, "n"), -5);
}

TEST(ParseNumber, RefusesTheRest) {
  for (const char* word : {"", "-", "--1", "0x", "1a", "101", "-1", "99999999999999999999", " 1"}) {
    EXPECT_THROW(ParseNumber(word, 0, 100, "n"), CommandError) << word;
  }
}

const Words Fruit{"apple", "apricot", "pear", "app"};

std::string Refusal(const std::string& wanted, const Words& names = Fruit) {
  try {
    PickName("fruit", wanted, names);
  } catch (const CommandError& error) {
    return error.what();
  }
  return {};
}

TEST(PickName, TakesNamesAndTheirBeginningsWithoutRegardToCase) {
  EXPECT_EQ(PickName("fruit", "PEAR", Fruit), 2U);
  EXPECT_EQ(PickName("fruit", "apr", Fruit), 1U);
}

TEST(PickName, TakesAWholeNameThatBeginsAnother) { EXPECT_EQ(PickName("fruit", "app", Fruit), 3U); }

TEST(PickName, TakesTheFirstOfEqualNames) {
  EXPECT_EQ(PickName("fruit", "pe", {"apple", "pear", "pear"}), 1U);
}

TEST(PickName, NamesAllThatABeginningFits) {
  EXPECT_EQ(Refusal("ap"), "more than one fruit is \"ap\": apple, apricot or app");
}

TEST(PickName, NamesTheNearest) {
  EXPECT_EQ(Refusal("peer"), "no fruit \"peer\"; did you mean pear?");
  EXPECT_EQ(Refusal("appel", {"apple", "apple", "pear"}),
            "no fruit \"appel\"; did you mean apple?");
  EXPECT_EQ(Refusal("cmdstrt", {"cmdtest", "cmdstop", "cmdstart", "cmdDummy"}),
            "no fruit \"cmdstrt\"; did you mean cmdstart, cmdstop or cmdtest?");
}

TEST(PickName, NamesAllWhereNoneIsNearAndTheyAreFew) {
  EXPECT_EQ(Refusal("zzzzzz"), "no fruit \"zzzzzz\"; there are apple, apricot, pear and app");
  EXPECT_EQ(Refusal("", {"", "one"}), "no fruit \"\"; there are one");
  EXPECT_EQ(Refusal("x", {}), "no fruit \"x\"");
  Words many;
  for (int i = 0; i < 101; ++i) many.push_back(std::to_string(1000 + i));
  EXPECT_EQ(Refusal("x", many), "no fruit \"x\"");
}

TEST(PickName, TakesNoLongNameForNearByItsLengthAlone) {
  const std::string caption(130, 'a');
  EXPECT_EQ(Refusal("cmdstart", {caption, "b"}),
            "no fruit \"cmdstart\"; there are " + caption + " and b");
  EXPECT_EQ(Refusal(std::string(130, 'b'), {caption, "pear"}).find("did you mean"),
            std::string::npos);
}

TEST(PickName, IsQuickForAnyLength) {
  EXPECT_NE(Refusal(std::string(1000000, 'a'), {std::string(1000000, 'b')}), "");
}

TEST(Joined, PutsTheSeparatorBetween) {
  EXPECT_EQ(Joined({}), "");
  EXPECT_EQ(Joined({"a", "", "b"}), "a  b");
  EXPECT_EQ(Joined({"a", "b"}, ", "), "a, b");
}

}  // namespace
}  // namespace vantrel::console
