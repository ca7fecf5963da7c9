#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "text/Strings.h"

namespace vantrel::text {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Trim, TakesBlanksOffBothEnds) {
  EXPECT_EQ("a b", Trim("  a b "));
  EXPECT_EQ("", Trim("   "));
  EXPECT_EQ("", Trim(""));
}

TEST(Trim, LeavesOtherWhiteSpace) { EXPECT_EQ("\ta\r\n", Trim(" \ta\r\n ")); }

TEST(Case, FoldsAsciiLettersOnly) {
  EXPECT_EQ("abc-\xC4", LowerCase("AbC-\xC4"));
  EXPECT_EQ("ABC-\xE4", UpperCase("aBc-\xE4"));
  EXPECT_EQ("@az[`az{", LowerCase("@AZ[`az{"));
  EXPECT_EQ("@AZ[`AZ{", UpperCase("@AZ[`az{"));
}

TEST(EqualIgnoringCase, ComparesWholeTexts) {
  EXPECT_TRUE(EqualIgnoringCase("BpId", "bPiD"));
  EXPECT_FALSE(EqualIgnoringCase("BpId", "BpIdx"));
  EXPECT_FALSE(EqualIgnoringCase("\xC4", "\xE4"));
  EXPECT_TRUE(EqualIgnoringCase("", ""));
}

TEST(Split, GivesThePiecesBetween) {
  EXPECT_THAT(Split("1,2,3", ','), ElementsAre("1", "2", "3"));
  EXPECT_THAT(Split("1", ','), ElementsAre("1"));
  EXPECT_THAT(Split(",1,", ','), ElementsAre("", "1", ""));
  EXPECT_THAT(Split("", ','), IsEmpty());
}

TEST(TakeLine, CutsTheFirstLineOff) {
  std::string_view text = "one\r\ntwo\n\r\nlast\r";
  EXPECT_EQ("one", TakeLine(text));
  EXPECT_EQ("two", TakeLine(text));
  EXPECT_EQ("", TakeLine(text));
  // Without a line feed the carriage return is no line end.
  EXPECT_EQ("last\r", TakeLine(text));
  EXPECT_EQ("", text);
}

TEST(GroupedNumber, GroupsByThousands) {
  EXPECT_EQ("0", GroupedNumber(0, ","));
  EXPECT_EQ("999", GroupedNumber(999, ","));
  EXPECT_EQ("1,000", GroupedNumber(1000, ","));
  EXPECT_EQ("1.234.567", GroupedNumber(1234567, "."));
  EXPECT_EQ("1234567", GroupedNumber(1234567, ""));
}

TEST(GroupedNumber, RoundsHalfAwayFromZero) {
  EXPECT_EQ("1,206", GroupedNumber(1234567 / 1024.0, ","));
  EXPECT_EQ("1", GroupedNumber(0.5, ","));
  EXPECT_EQ("3", GroupedNumber(2.5, ","));
  EXPECT_EQ("0", GroupedNumber(0.49, ","));
  EXPECT_EQ("-3", GroupedNumber(-2.5, ","));
  EXPECT_EQ("0", GroupedNumber(-0.4, ","));
}

TEST(GroupedNumber, HasNoLimitOfLength) {
  EXPECT_EQ("18,446,744,073,709,551,616", GroupedNumber(18446744073709551616.0, ","));
  EXPECT_EQ("0", GroupedNumber(std::numeric_limits<double>::infinity(), ","));
}

}  // namespace
}  // namespace vantrel::text
