#include <gmock/gmock.h>

#include "platform/memory/RegFile.h"

namespace vantrel::platform::memory {
namespace {

const char* const Sample =
    "REGEDIT4\r\n"
    "\r\n"
    "; a remark\r\n"
    "[HKEY_CURRENT_USER\\Software\\Sample]\r\n"
    "@=\"default\"\r\n"
    "\"Path\"=\"C:\\\\dir\\\\say \\\"hi\\\".exe\"\r\n"
    "\"Number\"=dword:0000012c\r\n"
    "\"Bytes\"=hex:00,ff,\\\r\n"
    "  10,20\r\n"
    "\"Expand\"=hex(2):25,41,25,00\r\n"
    "\r\n"
    "[HKEY_CURRENT_USER\\Software\\Sample\\Below]\r\n"
    "\r\n";

RegistryTree Imported(const std::string& bytes) {
  RegistryTree tree;
  EXPECT_TRUE(ImportReg(tree, bytes));
  return tree;
}

TEST(RegFile, ReadsEveryKindOfLine) {
  const RegistryTree tree = Imported(Sample);
  const std::string key = "Software\\Sample";
  EXPECT_EQ(tree.GetString(HKeyCurrentUser, key, ""), "default");
  EXPECT_EQ(tree.GetString(HKeyCurrentUser, key, "Path"), "C:\\dir\\say \"hi\".exe");
  EXPECT_EQ(tree.GetDword(HKeyCurrentUser, key, "Number"), 300U);
  EXPECT_EQ(tree.Get(HKeyCurrentUser, key, "Bytes")->data, std::string("\0\xFF\x10\x20", 4));
  EXPECT_EQ(tree.Get(HKeyCurrentUser, key, "Expand")->type, RegExpandSz);
  EXPECT_EQ(tree.GetString(HKeyCurrentUser, key, "Expand"), "%A%");
  EXPECT_TRUE(tree.HasKey(HKeyCurrentUser, key + "\\Below"));
}

TEST(RegFile, OldFormatComesBackByteForByte) {
  const RegistryTree tree = Imported(Sample);
  std::string expected = Sample;
  expected.erase(expected.find("; a remark\r\n"), 12);
  expected.replace(expected.find("ff,\\\r\n  "), 8, "ff,");
  EXPECT_EQ(ExportReg(tree, HKeyCurrentUser, "Software\\Sample", RegFormat::Regedit4), expected);
}

TEST(RegFile, AnyValueSurvivesTheRoundTripInBothFormats) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  RegistryTree tree;
  for (const std::uint32_t type : {0U, RegExpandSz, RegBinary, RegDword, RegMultiSz, 0x1234U}) {
    tree.Set(HKeyLocalMachine, "K\\Sub", "v" + std::to_string(type), type, all);
  }
  tree.Set(HKeyLocalMachine, "K", "inner", RegSz, std::string("a\0b\0", 4));
  tree.Set(HKeyLocalMachine, "K", "none", RegSz, "");
  tree.SetString(HKeyLocalMachine, "K", "lines \"\\\r\n[x]", "two\r\nlines \xE4\x80");
  for (const RegFormat format : {RegFormat::Regedit4, RegFormat::Version5}) {
    const RegistryTree back = Imported(ExportReg(tree, HKeyLocalMachine, "K", format));
    EXPECT_EQ(back.Values(HKeyLocalMachine, "K"), tree.Values(HKeyLocalMachine, "K"));
    EXPECT_EQ(back.Values(HKeyLocalMachine, "K\\Sub"), tree.Values(HKeyLocalMachine, "K\\Sub"));
  }
}

TEST(RegFile, TextWithoutTerminatorComesBackWithOne) {
  RegistryTree tree;
  tree.Set(HKeyCurrentUser, "K", "a", RegSz, "abc");
  const RegistryTree back = Imported(ExportReg(tree, HKeyCurrentUser, "K"));
  EXPECT_EQ(back.Get(HKeyCurrentUser, "K", "a")->data, std::string("abc\0", 4));
}

TEST(RegFile, NewFormatIsUtf16WithWideTexts) {
  RegistryTree tree;
  tree.Set(HKeyCurrentUser, "K", "e", RegExpandSz, std::string("\x80\0", 2));
  const std::string bytes = ExportReg(tree, HKeyCurrentUser, "K");
  EXPECT_EQ(bytes.substr(0, 2), "\xFF\xFE");
  const std::string text = FromUtf16(bytes.substr(2));
  EXPECT_TRUE(text.starts_with("Windows Registry Editor Version 5.00\r\n\r\n"));
  EXPECT_NE(text.find("\"e\"=hex(2):ac,20,00,00\r\n"), std::string::npos);
}

TEST(RegFile, DeletesValuesAndKeys) {
  RegistryTree tree = Imported(Sample);
  EXPECT_TRUE(ImportReg(tree,
                        "REGEDIT4\n[HKEY_CURRENT_USER\\Software\\Sample]\n\"Path\"=-\n@=-\n"
                        "[-HKEY_CURRENT_USER\\Software\\Sample\\Below]\n\"lost\"=\"x\"\n"));
  EXPECT_FALSE(tree.Get(HKeyCurrentUser, "Software\\Sample", "Path"));
  EXPECT_FALSE(tree.Get(HKeyCurrentUser, "Software\\Sample", ""));
  EXPECT_TRUE(tree.Get(HKeyCurrentUser, "Software\\Sample", "Number"));
  EXPECT_FALSE(tree.HasKey(HKeyCurrentUser, "Software\\Sample\\Below"));
  EXPECT_FALSE(tree.Get(HKeyCurrentUser, "Software\\Sample", "lost"));
}

TEST(RegFile, ImportMerges) {
  RegistryTree tree;
  tree.SetString(HKeyCurrentUser, "Software\\Sample", "kept", "yes");
  EXPECT_TRUE(ImportReg(tree, Sample));
  EXPECT_EQ(tree.GetString(HKeyCurrentUser, "Software\\Sample", "kept"), "yes");
}

TEST(RegFile, OtherFilesAreRefused) {
  RegistryTree tree;
  for (const char* bytes : {"", "REGEDIT", "regedit4\n", "[HKEY_CURRENT_USER\\A]\n", "\xFF\xFE"}) {
    EXPECT_FALSE(ImportReg(tree, bytes)) << bytes;
  }
  EXPECT_FALSE(tree.HasKey(HKeyCurrentUser, "A"));
}

TEST(RegFile, BrokenLinesAreSkipped) {
  const RegistryTree tree = Imported(
      "REGEDIT4\n\"homeless\"=\"x\"\n[HKEY_NOWHERE\\A]\n\"a\"=\"x\"\n[HKEY_CURRENT_USER\\A\n"
      "\"b\"=\"x\"\n[HKEY_CURRENT_USER\\B]\n\"c\"=dword:xyz\n\"d\"=hex(:00\n\"e\"\nnonsense\n"
      "\"f\"=hex:zz\n\"g\"=\"good\"\n\"open");
  EXPECT_FALSE(tree.HasKey(HKeyCurrentUser, "A"));
  EXPECT_EQ(tree.GetString(HKeyCurrentUser, "B", "g"), "good");
  EXPECT_EQ(tree.Values(HKeyCurrentUser, "B").size(), 2U);  // "f" has no bytes
}

TEST(RegFile, RootsAndTooDeepKeysAreLeftAlone) {
  std::string deep = "REGEDIT4\n[HKEY_CURRENT_USER";
  for (int i = 0; i < 600; ++i) deep += "\\a";
  const RegistryTree tree = Imported(deep + "]\n[-HKEY_CURRENT_USER]\n[HKEY_CURRENT_USER\\" +
                                     std::string(256, 'n') + "]\n");
  EXPECT_TRUE(tree.Subkeys(HKeyCurrentUser, "").empty());
}

TEST(RegFile, MissingKeyExportsNothing) {
  EXPECT_EQ(ExportReg(RegistryTree(), HKeyCurrentUser, "none"), "");
}

}  // namespace
}  // namespace vantrel::platform::memory
