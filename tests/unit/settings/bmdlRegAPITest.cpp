// The other readers of the registry, and the calls of the start-with-Windows entry.
#include <gmock/gmock.h>

#include "platform/memory/RegistryView.h"
#include "settings/StartWithWindowsRegistry.h"
#include "settings/bmdlRegAPI.h"
#include "support/ComponentFixture.h"

namespace vantrel::settings {
namespace {

using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Key = "Software\\Somebody";
constexpr const char* RunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

class BmdlRegAPI : public test::ComponentFixture {
 protected:
  void Store(const std::string& name, std::uint32_t type, const std::string& data) {
    world.registry.Set(HKeyCurrentUser, Key, name, type, data);
  }
  std::string Read(const std::string& name) {
    return ReadRegistryString(program, HKeyCurrentUser, Key, name);
  }
  std::vector<std::string> Rows(platform::KeyHandle root, const std::string& subkey) {
    std::vector<std::string> rows;
    for (const auto& row : EnumerateRegistryValues(program.platform.registry, root, subkey)) {
      rows.push_back(row.Name + "=" + row.Data);
    }
    return rows;
  }
  platform::Registry& Registry() { return program.platform.registry; }
};

TEST_F(BmdlRegAPI, AStringIsReadWithoutItsLastByteWhateverItsType) {
  Store("text", platform::RegSz, std::string("Alert\0", 6));
  Store("unterminated", platform::RegSz, "Alert");
  Store("bytes", platform::RegBinary, "xyz");
  EXPECT_EQ(Read("text"), "Alert");
  EXPECT_EQ(Read("unterminated"), "Aler");
  EXPECT_EQ(Read("bytes"), "xy");
}

TEST_F(BmdlRegAPI, AStringOfAtMostOneByteOrOver255IsEmpty) {
  Store("none", platform::RegSz, "");
  Store("one", platform::RegSz, "A");
  Store("255", platform::RegSz, std::string(255, 'x'));
  Store("256", platform::RegSz, std::string(256, 'x'));
  EXPECT_EQ(Read("none"), "");
  EXPECT_EQ(Read("one"), "");
  EXPECT_EQ(Read("255"), std::string(254, 'x'));
  EXPECT_EQ(Read("256"), "");
  EXPECT_EQ(Read("missing"), "");
  EXPECT_EQ(process.OpenKeys(), 0U);
}

TEST_F(BmdlRegAPI, AStringOfAMissingKeyIsEmptyWithoutFurtherAction) {
  EXPECT_EQ(Read("text"), "");
  EXPECT_THAT(process.Trace().Names(), ElementsAre("RegOpenKeyA"));
}

TEST_F(BmdlRegAPI, AStringIsReadByTheOldOpen) {
  Store("text", platform::RegSz, std::string("Alert\0", 6));
  Read("text");
  EXPECT_THAT(process.Trace().Lines(),
              ElementsAre("RegOpenKeyA HKCU\\Software\\Somebody -> 0",
                          "RegQueryValueExA HKCU\\Software\\Somebody \"text\" 255 -> 0",
                          "RegCloseKey HKCU\\Software\\Somebody -> 0"));
}

TEST_F(BmdlRegAPI, ARefusedCloseShowsACriticalBox) {
  Store("text", platform::RegSz, std::string("Alert\0", 6));
  process.Faults().FailEvery("RegCloseKey", platform::ErrorInvalidHandle);
  EXPECT_EQ(Read("text"), "Alert");
  ASSERT_EQ(process.Boxes().size(), 1U);
  EXPECT_EQ(process.Boxes()[0].text, "RegCloseKey Failed: Software\\Somebody");
  EXPECT_EQ(process.Boxes()[0].style, platform::StyleCritical);
}

TEST_F(BmdlRegAPI, AnEnumerationGivesNamesAndDataByType) {
  Store("", platform::RegSz, std::string("C:\\x.exe\0", 9));
  Store("unterminated", platform::RegSz, "abc");
  Store("nothing", platform::RegSz, "");
  Store("number", platform::RegDword, "\xFE\xFF\xFF\xFF");
  Store("short number", platform::RegDword, "\x05");
  Store("bytes", platform::RegBinary, "xyz");
  EXPECT_THAT(Rows(HKeyCurrentUser, Key), ElementsAre("=C:\\x.exe", "unterminated=ab", "nothing=",
                                                      "number=-2", "short number=5", "bytes=xyz"));
  EXPECT_EQ(process.Trace().Lines().front(), "RegOpenKeyExA HKCU\\Software\\Somebody 0x20019 -> 0");
  EXPECT_EQ(process.Trace().Lines().back(), "RegCloseKey HKCU\\Software\\Somebody -> 0");
}

TEST_F(BmdlRegAPI, AnEnumerationOfAMissingKeyIsEmpty) {
  EXPECT_THAT(Rows(HKeyCurrentUser, Key), IsEmpty());
  EXPECT_THAT(process.Trace().Names(), ElementsAre("RegOpenKeyExA")) << "nothing to close";
}

TEST_F(BmdlRegAPI, AnEnumerationTakesNamesOf259BytesAndDataOf4096) {
  const std::string longest(259, 'n');
  Store(longest, platform::RegBinary, std::string(4096, 'x'));
  EXPECT_THAT(Rows(HKeyCurrentUser, Key), ElementsAre(longest + "=" + std::string(4096, 'x')));
  Store(longest + "n", platform::RegBinary, "x");
  Store("behind", platform::RegBinary, "x");
  EXPECT_THAT(Rows(HKeyCurrentUser, Key), testing::SizeIs(1));
}

TEST_F(BmdlRegAPI, AnEnumerationStopsAtTheFirstFailure) {
  Store("a", platform::RegSz, "1.");
  Store("long", platform::RegSz, std::string(4097, 'x'));
  Store("b", platform::RegSz, "2.");
  EXPECT_THAT(Rows(HKeyCurrentUser, Key), ElementsAre("a=1"));
}

TEST_F(BmdlRegAPI, AnEnumerationWithoutASubkeyReadsTheOpenKeyAndLeavesItOpen) {
  Store("a", platform::RegSz, "1.");
  platform::KeyHandle key = 0;
  Registry().RegOpenKeyExA(HKeyCurrentUser, Key, platform::KeyRead, key);
  EXPECT_THAT(Rows(key, ""), ElementsAre("a=1"));
  EXPECT_EQ(process.OpenKeys(), 1U);
}

TEST_F(BmdlRegAPI, AnEnumerationOfManyValuesGivesThemAll) {
  for (int i = 0; i < 250; ++i) Store(std::to_string(i), platform::RegSz, "x.");
  EXPECT_EQ(Rows(HKeyCurrentUser, Key).size(), 250U);
}

// A key whose values have no end.
class EndlessValues : public platform::memory::RegistryView {
 public:
  using RegistryView::RegistryView;
  std::int32_t RegEnumValueA(platform::KeyHandle, std::uint32_t, std::uint32_t, std::string& name,
                             std::uint32_t& type, std::uint32_t, std::string&) override {
    name = "v";
    type = platform::RegSz;
    return platform::ErrorSuccess;
  }
};

TEST_F(BmdlRegAPI, AnEnumerationStopsBehindTheIndex1000000) {
  EndlessValues endless(world.registry);
  EXPECT_EQ(EnumerateRegistryValues(endless, HKeyCurrentUser, "").size(), 1000001U);
}

TEST_F(BmdlRegAPI, OfANumberFourBytesCount) {
  Store("long", platform::RegDword, std::string("\1\0\0\0\2", 5));
  Store("short", platform::RegDword, "\3\1");
  EXPECT_THAT(Rows(HKeyCurrentUser, Key), ElementsAre("long=1", "short=259"));
}

TEST_F(BmdlRegAPI, TheRunKeyIsCreatedWithTheShortMask) {
  CreateRunKey(Registry(), "Software\\New", HKeyCurrentUser);
  EXPECT_THAT(process.Trace().Lines(), ElementsAre("RegCreateKeyExA HKCU\\Software\\New 0x3F -> 0",
                                                   "RegCloseKey HKCU\\Software\\New -> 0"));
}

TEST_F(BmdlRegAPI, ARunValueStoresItsTerminator) {
  world.registry.MakeKey(HKeyLocalMachine, RunKey);
  SetRunValue(program, HKeyLocalMachine, RunKey, "Vantrel", "C:\\Vantrel.exe", platform::RegSz);
  const auto value = world.registry.Get(HKeyLocalMachine, RunKey, "Vantrel");
  ASSERT_TRUE(value);
  EXPECT_EQ(value->data, std::string("C:\\Vantrel.exe\0", 15));
  EXPECT_EQ(process.Trace().Lines().front(),
            "RegOpenKeyExA HKLM\\" + std::string(RunKey) + " 0x3F -> 0");
  EXPECT_THAT(process.Trace().Names(),
              ElementsAre("RegOpenKeyExA", "RegSetValueExA", "RegCloseKey"));
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(BmdlRegAPI, ARunValueOfANumberOrAnotherType) {
  world.registry.MakeKey(HKeyLocalMachine, RunKey);
  SetRunValue(program, HKeyLocalMachine, RunKey, "a", 5, platform::RegDword);
  SetRunValue(program, HKeyLocalMachine, RunKey, "b", "x", platform::RegBinary);
  EXPECT_EQ(world.registry.GetDword(HKeyLocalMachine, RunKey, "a"), 5U);
  EXPECT_FALSE(world.registry.Get(HKeyLocalMachine, RunKey, "b"));
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(BmdlRegAPI, ARunValueTellsBothFailuresAndTriesTheWriteAllTheSame) {
  SetRunValue(program, HKeyLocalMachine, RunKey, "Vantrel", "x", platform::RegSz);
  EXPECT_THAT(BoxTexts(), ElementsAre("RegOpenKey error - 2", "SetValue error - 6"));
  EXPECT_EQ(process.Boxes()[0].style, platform::StylePlain);
  EXPECT_EQ(process.Boxes()[0].title, "Vantrel");
  EXPECT_THAT(process.Trace().LinesOf("RegSetValueExA"), testing::SizeIs(1));
  EXPECT_EQ(process.Trace().Names().back(), "RegCloseKey");
}

TEST_F(BmdlRegAPI, ARunValueIsDeletedSilently) {
  world.registry.SetString(HKeyLocalMachine, RunKey, "Vantrel", "x");
  DeleteRunValue(Registry(), HKeyLocalMachine, RunKey, "Vantrel");
  EXPECT_FALSE(world.registry.Get(HKeyLocalMachine, RunKey, "Vantrel"));
  EXPECT_EQ(process.Trace().Lines().front(),
            "RegOpenKeyExA HKLM\\" + std::string(RunKey) + " 0x3F -> 0");
  DeleteRunValue(Registry(), HKeyLocalMachine, RunKey, "Vantrel");
  EXPECT_THAT(process.Boxes(), IsEmpty());
  EXPECT_EQ(process.OpenKeys(), 0U);
}

}  // namespace
}  // namespace vantrel::settings
