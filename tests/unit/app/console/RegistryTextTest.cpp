#include <gtest/gtest.h>

#include "app/console/RegistryText.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

TEST(ParseKey, TakesShortAndLongRoots) {
  EXPECT_EQ(ParseKey("hkcu\\Software").Root, platform::HKeyCurrentUser);
  EXPECT_EQ(ParseKey("HKEY_LOCAL_MACHINE").Root, platform::HKeyLocalMachine);
  EXPECT_EQ(ParseKey("HKCU\\\\A\\B\\").Subkey, "A\\B");
}

TEST(ParseKey, RefusesWhatIsNoKey) {
  EXPECT_THROW(ParseKey(""), CommandError);
  EXPECT_THROW(ParseKey("HKXX\\A"), CommandError);
  EXPECT_THROW(ParseKey("HKCU\\" + std::string(256, 'a')), CommandError);
  std::string deep = "HKCU";
  for (int level = 0; level < 20000; ++level) deep += "\\a";
  EXPECT_THROW(ParseKey(deep), CommandError);
}

TEST(ParseValue, MakesTheBytesOfEachType) {
  EXPECT_EQ(ParseValue("n", "string", {"ab"}).data, std::string("ab\0", 3));
  EXPECT_EQ(ParseValue("n", "dword", {"0x01020304"}).data, "\x04\x03\x02\x01");
  EXPECT_EQ(ParseValue("n", "binary", {"01", "ffA0"}).data, "\x01\xFF\xA0");
  EXPECT_EQ(ParseValue("n", "multi", {"a", "b"}).data, std::string("a\0b\0\0", 5));
}

TEST(ParseValue, RefusesDataThatDoesNotFit) {
  EXPECT_THROW(ParseValue("n", "dword", {"x"}), CommandError);
  EXPECT_THROW(ParseValue("n", "dword", {"4294967296"}), CommandError);
  EXPECT_THROW(ParseValue("n", "binary", {"0"}), CommandError);
  EXPECT_THROW(ParseValue("n", "binary", {"-1"}), CommandError);
  EXPECT_THROW(ParseValue("n", "string", {"a", "b"}), CommandError);
  EXPECT_THROW(ParseValue("n", "float", {"1"}), CommandError);
}

TEST(ValueText, TellsTypeAndData) {
  EXPECT_EQ(ValueText({"n", platform::RegSz, "a"}), "string \"a\"");
  EXPECT_EQ(ValueText({"n", platform::RegSz, std::string("a\0", 2)}), "string \"a\\x00\"");
  EXPECT_EQ(ValueText({"n", platform::RegDword, std::string("\x01\0\0\x80", 4)}),
            "dword 2147483649");
  EXPECT_EQ(ValueText({"n", platform::RegDword, "\x01"}), "dword of 1 bytes 01");
  EXPECT_EQ(ValueText({"n", platform::RegBinary, "\x01\xFF"}), "binary 01 FF");
  EXPECT_EQ(ValueText({"n", platform::RegMultiSz, std::string("a\0b\0\0", 5)}),
            "multi \"a\" \"b\"");
  EXPECT_EQ(ValueText({"n", 11, "\x01"}), "type 11 01");
}

TEST(TreeText, TellsTheKeyAndAllBelow) {
  memory::RegistryTree registry;
  registry.SetDword(platform::HKeyCurrentUser, "A\\B", "n", 7);
  registry.Set(platform::HKeyCurrentUser, "A", "", platform::RegSz, "d");
  EXPECT_EQ(TreeText(registry, ParseKey("HKCU\\a")),
            "HKCU\\A\n  (default) = string \"d\"\nHKCU\\A\\B\n  n = dword 7\n");
  EXPECT_EQ(TreeText(registry, ParseKey("HKCU\\X\\Y")), "");
}

}  // namespace
}  // namespace vantrel::console
