#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>

#include "text/Numbers.h"
#include "text/RuntimeError.h"

namespace vantrel::text {
namespace {

// The number of the error that the statement ends with, 0 for none.
int ErrorOf(const std::function<void()>& statement) {
  try {
    statement();
    return 0;
  } catch (const RuntimeError& error) {
    return static_cast<int>(error.Number());
  }
}

int ErrorOfCInt(const std::string& text) {
  return ErrorOf([&] { CInt(text); });
}
int ErrorOfCLng(const std::string& text) {
  return ErrorOf([&] { CLng(text); });
}

TEST(CInt, TakesWholeNumbersWithSignAndBlanks) {
  EXPECT_EQ(0, CInt("0"));
  EXPECT_EQ(42, CInt("  42 "));
  EXPECT_EQ(-7, CInt("-7"));
  EXPECT_EQ(7, CInt("+7"));
  EXPECT_EQ(12, CInt("0012"));
}

TEST(CInt, RoundsHalfToEven) {
  EXPECT_EQ(0, CInt("0.5"));
  EXPECT_EQ(2, CInt("1.5"));
  EXPECT_EQ(2, CInt("2.5"));
  EXPECT_EQ(-2, CInt("-2.5"));
  EXPECT_EQ(3, CInt("2.500001"));
  EXPECT_EQ(3, CInt("2.51"));
  EXPECT_EQ(0, CInt("0.49999999999999994"));
}

TEST(CInt, TakesDecimalsAndExponents) {
  EXPECT_EQ(1, CInt(".7"));
  EXPECT_EQ(3, CInt("3."));
  EXPECT_EQ(1200, CInt("1.2e3"));
  EXPECT_EQ(1200, CInt("1.2D+3"));
  EXPECT_EQ(1, CInt("120E-2"));
  EXPECT_EQ(1200, CInt("12d2"));
}

TEST(CInt, EndsAtThe16BitRange) {
  EXPECT_EQ(32767, CInt("32767"));
  EXPECT_EQ(32767, CInt("32767.4"));
  EXPECT_EQ(-32768, CInt("-32768"));
  EXPECT_EQ(6, ErrorOfCInt("32767.5"));
  EXPECT_EQ(6, ErrorOfCInt("40000"));
  EXPECT_EQ(6, ErrorOfCInt("-32769"));
  EXPECT_EQ(6, ErrorOfCInt("1e300"));
  EXPECT_EQ(6, ErrorOfCInt("1e999"));
}

TEST(CInt, RaisesTypeMismatchForWhatIsNoNumber) {
  for (const char* text : {"", " ", "abc", "1a", "1 2", "-", "+", ".", "e5", "1e", "1e+", "--1",
                           "&h", "&hG", "0x10", "inf", "nan", "-inf", "1,5x"}) {
    EXPECT_EQ(13, ErrorOfCInt(text)) << text;
  }
}

TEST(CInt, ReadsHexadecimalAsTheBitsOfTheType) {
  EXPECT_EQ(31, CInt("&h1F"));
  EXPECT_EQ(31, CInt(" &H1f "));
  EXPECT_EQ(-1, CInt("&hFFFF"));
  EXPECT_EQ(6, ErrorOfCInt("&h10000"));
}

TEST(CInt, StopsAtNothingButTheEnd) {
  EXPECT_EQ(13, ErrorOfCInt(std::string("12\0", 3)));
  EXPECT_EQ(13, ErrorOfCInt("12\x80"));
}

TEST(CLng, EndsAtThe32BitRange) {
  EXPECT_EQ(2147483647, CLng("2147483647"));
  EXPECT_EQ(-2147483647 - 1, CLng("-2147483648"));
  EXPECT_EQ(6, ErrorOfCLng("2147483648"));
  EXPECT_EQ(6, ErrorOfCLng("2147483647.5"));
  EXPECT_EQ(13, ErrorOfCLng(""));
}

TEST(CLng, ReadsHexadecimal) {
  EXPECT_EQ(65535, CLng("&hFFFF"));
  EXPECT_EQ(-1, CLng("&hFFFFFFFF"));
  EXPECT_EQ(6, ErrorOfCLng("&h100000000"));
}

TEST(Val, ReadsTheNumberAtTheStart) {
  EXPECT_EQ(0, Val(""));
  EXPECT_EQ(0, Val("abc"));
  EXPECT_EQ(12, Val("12abc"));
  EXPECT_EQ(12, Val("  12"));
  EXPECT_EQ(-3.5, Val("-3.5kg"));
  EXPECT_EQ(1, Val("1e"));
  EXPECT_EQ(100, Val("1e2x"));
  EXPECT_EQ(0.5, Val(".5"));
  EXPECT_EQ(0, Val("."));
}

TEST(Val, SkipsBlanksInsideANumber) { EXPECT_EQ(1615, Val("1 6\t1\r\n5 street")); }

TEST(Val, ReadsHexadecimal) {
  EXPECT_EQ(255, Val("&hFF"));
  EXPECT_EQ(255, Val("&HffG"));
  EXPECT_EQ(0, Val("&h"));
  EXPECT_EQ(0xA00, Val("&ha00"));
  EXPECT_EQ(15, Val("&hfg"));
  EXPECT_EQ(1, Val("&h1.5"));
  EXPECT_EQ(0, Val("&o17"));
}

TEST(DecimalVal, ReadsNoHexadecimal) {
  EXPECT_EQ(0, DecimalVal("&h10"));
  EXPECT_EQ(-12.5, DecimalVal(" -1 2.5kg"));
}

TEST(HexToNumber, ReadsUpTo32Bits) {
  EXPECT_EQ(0U, HexToNumber("0"));
  EXPECT_EQ(0xFFFFFFFFU, HexToNumber("FFFFffff"));
  EXPECT_EQ(1U, HexToNumber("0000000001"));
  EXPECT_EQ(0xAAAAU, HexToNumber("aAAa"));
  EXPECT_EQ(6, ErrorOf([] { HexToNumber("100000000"); }));
  EXPECT_EQ(6, ErrorOf([] { HexToNumber("1000000000000"); }));
  EXPECT_EQ(13, ErrorOf([] { HexToNumber(""); }));
  EXPECT_EQ(13, ErrorOf([] { HexToNumber("FFFFFFFFFG"); }));
}

TEST(RuntimeError, EachNumberHasItsDescription) {
  const std::map<int, std::string> expected = {{5, "Invalid procedure call or argument"},
                                               {6, "Overflow"},
                                               {7, "Out of memory"},
                                               {9, "Subscript out of range"},
                                               {13, "Type mismatch"},
                                               {52, "Bad file name or number"},
                                               {53, "File not found"},
                                               {57, "Device I/O error"},
                                               {58, "File already exists"},
                                               {61, "Disk full"},
                                               {62, "Input past end of file"},
                                               {68, "Device unavailable"},
                                               {70, "Permission denied"},
                                               {75, "Path/File access error"},
                                               {76, "Path not found"},
                                               {380, "Invalid property value"},
                                               {35601, "Element not found"},
                                               {35602, "Key is not unique in collection"}};
  for (const auto& [number, description] : expected) {
    EXPECT_EQ(description, Describe(static_cast<ErrorNumber>(number))) << number;
  }
  EXPECT_STREQ("Application-defined or object-defined error", Describe(ErrorNumber{1}));
}

TEST(RoundToLong, RoundsHalfToEven) {
  EXPECT_EQ(2, RoundToLong(2.5));
  EXPECT_EQ(4, RoundToLong(3.5));
  EXPECT_EQ(-2, RoundToLong(-1.5));
  EXPECT_EQ(515, RoundToLong(515.0000001));
  EXPECT_EQ(6, ErrorOf([] { RoundToLong(3e9); }));
}

TEST(RuntimeError, CarriesTheDescriptionOfItsNumber) {
  const RuntimeError error(ErrorNumber::TypeMismatch);
  EXPECT_EQ("Type mismatch", error.Description());
  EXPECT_STREQ("Type mismatch", error.what());
  EXPECT_STREQ("Application-defined or object-defined error", Describe(ErrorNumber{12345}));
}

}  // namespace
}  // namespace vantrel::text
