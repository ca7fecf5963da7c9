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

}  // namespace
}  // namespace vantrel::console
