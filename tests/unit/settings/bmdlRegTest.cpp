// The registry layer against the in-memory registry, call by call and byte by byte.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/Process.h"
#include "platform/memory/World.h"
#include "settings/RegistryConversions.h"
#include "settings/bmdlReg.h"
#include "text/RuntimeError.h"

namespace vantrel::settings {
namespace {

using platform::HKeyCurrentUser;
using platform::KeyHandle;
using platform::memory::Refusal;
using testing::ElementsAre;
using text::ErrorNumber;
using text::RuntimeError;

constexpr const char* Key = "Software\\Qorvel Softwares\\Block Log";

std::string Bytes(std::initializer_list<int> bytes) {
  std::string text;
  for (const int byte : bytes) text += static_cast<char>(byte);
  return text;
}

TEST(NumberFromDwordBytes, TakesAtMostTheFirstFourBytes) {
  const std::string bytes = Bytes({1, 2, 3, 4, 5});
  EXPECT_EQ(NumberFromDwordBytes(bytes), 0x04030201);
  EXPECT_EQ(NumberFromDwordBytes(std::string_view(bytes).substr(0, 2)), 0x0201);
  EXPECT_EQ(NumberFromDwordBytes({}), 0);
}

class BmdlReg : public testing::Test {
 protected:
  BmdlReg() { process.Trace().Start(); }
  ~BmdlReg() override { EXPECT_EQ(process.OpenKeys(), 0U) << "a key was left open"; }

  std::string Read(const std::string& name) {
    return ReadRegistryValue(registry, HKeyCurrentUser, Key, name);
  }
  bool Update(const std::string& name, const std::string& text) {
    return UpdateRegistryValue(registry, HKeyCurrentUser, Key, name, text);
  }
  void Write(const std::string& name, const RegistryData& value, std::uint32_t type) {
    WriteRegistryValue(registry, HKeyCurrentUser, Key, name, value, type);
  }
  void Store(const std::string& name, std::uint32_t type, const std::string& data) {
    tree.Set(HKeyCurrentUser, Key, name, type, data);
  }
  std::string Stored(const std::string& name) {
    const auto value = tree.Get(HKeyCurrentUser, Key, name);
    return value ? std::to_string(value->type) + ":" + value->data : "absent";
  }
  ErrorNumber ReadError(const std::string& name) {
    try {
      Read(name);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return {};
  }
  const std::vector<std::string>& Calls() { return process.Trace().Lines(); }

  platform::memory::World world;
  platform::memory::Process process{world};
  platform::memory::RegistryTree& tree = world.registry;
  platform::Registry& registry = process.Platform().registry;
};

struct DwordReading {
  std::uint32_t Stored;
  const char* Read;
};

class BmdlRegDword : public BmdlReg, public testing::WithParamInterface<DwordReading> {};

TEST_P(BmdlRegDword, ReadsTheDigitsWithoutPadding) {
  tree.SetDword(HKeyCurrentUser, Key, "Popup", GetParam().Stored);
  EXPECT_EQ(Read("Popup"), GetParam().Read);
}

INSTANTIATE_TEST_SUITE_P(
    , BmdlRegDword,
    testing::Values(DwordReading{0, "0"}, DwordReading{1, "1"}, DwordReading{15, "15"},
                    DwordReading{16, "16"}, DwordReading{255, "255"}, DwordReading{300, "300"},
                    DwordReading{261, "21"}, DwordReading{0x010F, "31"},
                    DwordReading{0x0110, "272"}, DwordReading{515, "35"}, DwordReading{4096, "256"},
                    DwordReading{32767, "32767"}, DwordReading{40000, "40000"},
                    DwordReading{65535, "65535"}, DwordReading{0x12345678, "305419896"},
                    DwordReading{0x7FFFFFFF, "2147483647"}, DwordReading{0x80FFFFFF, "2164260863"},
                    DwordReading{0xFFFFFFFF, "4294967295"}, DwordReading{0x01000000, "4096"}));

TEST_F(BmdlReg, ReadOpensQueriesAndCloses) {
  tree.SetDword(HKeyCurrentUser, Key, "Popup", 7);
  EXPECT_EQ(Read("Popup"), "7");
  EXPECT_THAT(
      Calls(),
      ElementsAre(
          "RegOpenKeyExA HKCU\\Software\\Qorvel Softwares\\Block Log 0xF003F -> 0",
          "RegQueryValueExA HKCU\\Software\\Qorvel Softwares\\Block Log \"Popup\" 1024 -> 0",
          "RegCloseKey HKCU\\Software\\Qorvel Softwares\\Block Log -> 0"));
}

TEST_F(BmdlReg, ReadOfAMissingKeyIsEmptyAndClosesTheNullHandle) {
  EXPECT_EQ(Read("Popup"), "");
  EXPECT_THAT(Calls(),
              ElementsAre("RegOpenKeyExA HKCU\\Software\\Qorvel Softwares\\Block Log 0xF003F -> 2",
                          "RegCloseKey 0x0 -> 6"));
}

TEST_F(BmdlReg, ReadOfAKeyThatMayNotBeWrittenIsEmpty) {
  tree.SetDword(HKeyCurrentUser, Key, "Popup", 7);
  tree.Refuse(HKeyCurrentUser, Key, Refusal::Write);
  EXPECT_EQ(Read("Popup"), "");
}

TEST_F(BmdlReg, ReadOfAMissingValueIsEmpty) {
  tree.MakeKey(HKeyCurrentUser, Key);
  EXPECT_EQ(Read("Popup"), "");
}

TEST_F(BmdlReg, ReadsATextWithAndWithoutTerminatorAlike) {
  Store("a", platform::RegSz, "Alert");
  Store("b", platform::RegSz, std::string("Alert\0", 6));
  EXPECT_EQ(Read("a"), "Alert");
  EXPECT_EQ(Read("b"), "Alert");
}

TEST_F(BmdlReg, KeepsTheSecondOfTwoTrailingNuls) {
  Store("a", platform::RegSz, std::string("Alert\0\0", 7));
  EXPECT_EQ(Read("a"), std::string("Alert\0", 6));
}

TEST_F(BmdlReg, ReadsATextOfOneNulAsEmpty) {
  Store("a", platform::RegSz, std::string(1, '\0'));
  EXPECT_EQ(Read("a"), "");
}

TEST_F(BmdlReg, ReadsOtherTypesAsEmpty) {
  for (const std::uint32_t type : {platform::RegExpandSz, platform::RegBinary, platform::RegMultiSz,
                                   std::uint32_t{0}, std::uint32_t{5}, std::uint32_t{11}}) {
    Store("a", type, "Alert");
    EXPECT_EQ(Read("a"), "") << type;
  }
}

TEST_F(BmdlReg, Reads1024BytesButNot1025) {
  Store("a", platform::RegSz, std::string(1024, 'x'));
  EXPECT_EQ(Read("a"), std::string(1024, 'x'));
  Store("a", platform::RegSz, std::string(1025, 'x'));
  EXPECT_EQ(Read("a"), "");
}

TEST_F(BmdlReg, AValueOfNoBytesIsAnInvalidArgumentWhateverItsType) {
  for (const std::uint32_t type : {platform::RegSz, platform::RegDword, platform::RegBinary}) {
    Store("a", type, "");
    EXPECT_EQ(ReadError("a"), ErrorNumber::InvalidProcedureCall) << type;
  }
  EXPECT_EQ(process.Trace().Names().back(), "RegCloseKey");
}

TEST_F(BmdlReg, ANumberOfOddLengthReadsByItsBytesOrFailsWithoutHarm) {
  Store("short", platform::RegDword, Bytes({0x2C, 0x01}));
  EXPECT_EQ(Read("short"), "300");
  Store("long", platform::RegDword, std::string(8, '\xFF'));
  EXPECT_EQ(ReadError("long"), ErrorNumber::Overflow);
  Store("huge", platform::RegDword, std::string(1024, '\xFF'));
  EXPECT_EQ(ReadError("huge"), ErrorNumber::Overflow);
  Store("nothing", platform::RegDword, Bytes({0}));
  EXPECT_EQ(ReadError("nothing"), ErrorNumber::TypeMismatch);
}

TEST_F(BmdlReg, NamesThatDifferInCaseAreOneValue) {
  tree.MakeKey(HKeyCurrentUser, Key);
  Write("BpID", 1, platform::RegDword);
  EXPECT_EQ(Read("BpId"), "1");
  EXPECT_EQ(
      ReadRegistryValue(registry, HKeyCurrentUser, "SOFTWARE\\QORVEL softwares\\block LOG", "bpid"),
      "1");
  EXPECT_EQ(tree.Values(HKeyCurrentUser, Key).size(), 1U);
}

TEST_F(BmdlReg, WritesATextWithoutTerminator) {
  tree.MakeKey(HKeyCurrentUser, Key);
  Write("a", "Alert", platform::RegSz);
  EXPECT_EQ(Stored("a"), "1:Alert");
  EXPECT_THAT(Calls(),
              ElementsAre("RegOpenKeyExA HKCU\\Software\\Qorvel Softwares\\Block Log 0xF003F -> 0",
                          "RegSetValueExA HKCU\\Software\\Qorvel Softwares\\Block Log \"a\" 1 "
                          "\"Alert\" -> 0",
                          "RegCloseKey HKCU\\Software\\Qorvel Softwares\\Block Log -> 0"));
}

TEST_F(BmdlReg, WritesANumberLowByteFirst) {
  tree.MakeKey(HKeyCurrentUser, Key);
  Write("a", 0x01020304, platform::RegDword);
  EXPECT_EQ(Stored("a"), "4:\x04\x03\x02\x01");
  Write("a", -1, platform::RegDword);
  EXPECT_EQ(Stored("a"), "4:\xFF\xFF\xFF\xFF");
}

TEST_F(BmdlReg, WriteConvertsBetweenTextAndNumber) {
  tree.MakeKey(HKeyCurrentUser, Key);
  Write("a", 42, platform::RegSz);
  EXPECT_EQ(Stored("a"), "1:42");
  Write("a", "42", platform::RegDword);
  EXPECT_EQ(Stored("a"), "4:" + Bytes({42, 0, 0, 0}));
  EXPECT_THROW(Write("a", "Alert", platform::RegDword), RuntimeError);
  EXPECT_EQ(process.Trace().Names().back(), "RegCloseKey");
}

TEST_F(BmdlReg, WriteOfAnyOtherTypeStoresNothing) {
  tree.MakeKey(HKeyCurrentUser, Key);
  Write("a", "Alert", platform::RegBinary);
  EXPECT_EQ(Stored("a"), "absent");
  EXPECT_THAT(process.Trace().Names(), ElementsAre("RegOpenKeyExA", "RegCloseKey"));
  EXPECT_EQ(SetRegistryValueEx(registry, HKeyCurrentUser, "a", platform::RegBinary, "x"), 0);
}

TEST_F(BmdlReg, WriteToAMissingKeyGoesOnSilentlyAndCreatesNothing) {
  Write("a", 1, platform::RegDword);
  EXPECT_FALSE(tree.HasKey(HKeyCurrentUser, Key));
  EXPECT_THAT(process.Trace().Names(),
              ElementsAre("RegOpenKeyExA", "RegSetValueExA", "RegCloseKey"));
}

TEST_F(BmdlReg, SetRegistryValueExGivesTheStatusOfTheWrite) {
  EXPECT_EQ(SetRegistryValueEx(registry, 0, "a", platform::RegSz, "x"),
            platform::ErrorInvalidHandle);
  EXPECT_EQ(SetRegistryValueEx(registry, HKeyCurrentUser, "a", platform::RegSz, "x"), 0);
}

TEST_F(BmdlReg, UpdateOfAMissingKeyIsFalseAndCreatesNothing) {
  EXPECT_FALSE(Update("a", "Alert"));
  EXPECT_FALSE(tree.HasKey(HKeyCurrentUser, Key));
  EXPECT_THAT(process.Trace().Names(), ElementsAre("RegOpenKeyExA", "RegCloseKey"));
}

TEST_F(BmdlReg, UpdateOfAMissingValueMakesATextEvenOfANumber) {
  tree.MakeKey(HKeyCurrentUser, Key);
  EXPECT_TRUE(Update("a", "12"));
  EXPECT_EQ(Stored("a"), "1:12");
  EXPECT_THAT(process.Trace().Names(),
              ElementsAre("RegOpenKeyExA", "RegQueryValueExA", "RegSetValueExA", "RegCloseKey"));
}

TEST_F(BmdlReg, UpdateOfATextStoresNoTerminator) {
  tree.SetString(HKeyCurrentUser, Key, "a", "long before");
  EXPECT_TRUE(Update("a", "new"));
  EXPECT_EQ(Stored("a"), "1:new");
}

TEST_F(BmdlReg, UpdateWithTheEmptyTextLeavesAValueThatCannotBeRead) {
  tree.MakeKey(HKeyCurrentUser, Key);
  EXPECT_TRUE(Update("a", ""));
  EXPECT_EQ(Stored("a"), "1:");
  EXPECT_EQ(ReadError("a"), ErrorNumber::InvalidProcedureCall);
}

TEST_F(BmdlReg, UpdateKeepsTheTypeOfANumber) {
  tree.SetDword(HKeyCurrentUser, Key, "a", 7);
  EXPECT_TRUE(Update("a", "16909060"));
  EXPECT_EQ(Stored("a"), "4:" + Bytes({4, 3, 2, 1}));
  EXPECT_TRUE(Update("a", "Alert"));
  EXPECT_EQ(Stored("a"), "4:" + Bytes({0, 0, 0, 0}));
  EXPECT_TRUE(Update("a", "2.5 apples"));
  EXPECT_EQ(Stored("a"), "4:" + Bytes({2, 0, 0, 0}));
}

TEST_F(BmdlReg, UpdateRoundsHalfToEven) {
  tree.SetDword(HKeyCurrentUser, Key, "a", 7);
  const std::pair<const char*, int> numbers[] = {{"2.4", 2}, {"2.5", 2}, {"2.6", 3},
                                                 {"3.5", 4}, {"0.5", 0}, {"1e2", 100}};
  for (const auto& [text, number] : numbers) {
    EXPECT_TRUE(Update("a", text));
    EXPECT_EQ(Stored("a"), "4:" + Bytes({number, 0, 0, 0})) << text;
  }
}

TEST_F(BmdlReg, UpdateReadsDecimalNumbersAlone) {
  tree.SetDword(HKeyCurrentUser, Key, "a", 7);
  for (const char* text : {"&h10", "&H10", " & h10", "&o10"}) {
    EXPECT_TRUE(Update("a", text));
    EXPECT_EQ(Stored("a"), "4:" + Bytes({0, 0, 0, 0})) << text;
  }
  EXPECT_TRUE(Update("a", " 1 0"));
  EXPECT_EQ(Stored("a"), "4:" + Bytes({10, 0, 0, 0}));
}

TEST_F(BmdlReg, UpdateOpensWithTheFullMask) {
  tree.SetDword(HKeyCurrentUser, Key, "a", 7);
  EXPECT_TRUE(Update("a", "8"));
  EXPECT_THAT(
      Calls(),
      ElementsAre("RegOpenKeyExA HKCU\\Software\\Qorvel Softwares\\Block Log 0xF003F -> 0",
                  "RegQueryValueExA HKCU\\Software\\Qorvel Softwares\\Block Log \"a\" 1024 -> 0",
                  "RegSetValueExA HKCU\\Software\\Qorvel Softwares\\Block Log \"a\" 4 8 0 0 0 -> 0",
                  "RegCloseKey HKCU\\Software\\Qorvel Softwares\\Block Log -> 0"));
}

TEST_F(BmdlReg, UpdateDividesANegativeNumberWithTruncation) {
  tree.SetDword(HKeyCurrentUser, Key, "a", 7);
  EXPECT_TRUE(Update("a", "-1"));
  EXPECT_EQ(Stored("a"), "4:" + Bytes({0xFF, 0, 0, 0}));
  EXPECT_TRUE(Update("a", "-300"));
  EXPECT_EQ(Stored("a"), "4:" + Bytes({0xD4, 0xFF, 0, 0}));
}

TEST_F(BmdlReg, UpdateOfANumberBeyond32BitsOverflowsAndClosesTheKey) {
  tree.SetDword(HKeyCurrentUser, Key, "a", 7);
  EXPECT_THROW(Update("a", "4000000000"), RuntimeError);
  EXPECT_EQ(process.Trace().Names().back(), "RegCloseKey");
}

TEST_F(BmdlReg, UpdateOfAnotherTypeWritesTheWholeBufferBack) {
  Store("a", platform::RegBinary, "xyz");
  EXPECT_TRUE(Update("a", "Alert"));
  EXPECT_EQ(Stored("a"), "3:xyz" + std::string(1021, '\0'));
}

TEST_F(BmdlReg, UpdateOfAValueOver1024BytesIsFalse) {
  Store("a", platform::RegSz, std::string(1025, 'x'));
  EXPECT_FALSE(Update("a", "Alert"));
  EXPECT_THAT(process.Trace().Names(),
              ElementsAre("RegOpenKeyExA", "RegQueryValueExA", "RegCloseKey"));
}

TEST_F(BmdlReg, UpdateThatIsRefusedIsFalse) {
  tree.MakeKey(HKeyCurrentUser, Key);
  process.Faults().FailCall("RegSetValueExA", 1, platform::ErrorAccessDenied);
  EXPECT_FALSE(Update("a", "Alert"));
  EXPECT_EQ(process.Trace().Names().back(), "RegCloseKey");
}

TEST_F(BmdlReg, CreatesAKeyWithItsParentsAndClosesIt) {
  CreateRegistryKey(registry, HKeyCurrentUser, Key);
  EXPECT_TRUE(tree.HasKey(HKeyCurrentUser, Key));
  EXPECT_THAT(Calls(), ElementsAre("RegCreateKeyExA HKCU\\Software\\Qorvel Softwares\\Block Log "
                                   "0xF003F with a security record -> 0",
                                   "RegCloseKey HKCU\\Software\\Qorvel Softwares\\Block Log -> 0"));
}

TEST_F(BmdlReg, ACreationThatIsRefusedIsSilent) {
  tree.Refuse(HKeyCurrentUser, "", Refusal::Write);
  CreateRegistryKey(registry, HKeyCurrentUser, Key);
  EXPECT_FALSE(tree.HasKey(HKeyCurrentUser, Key));
  EXPECT_THAT(process.Trace().Names(), ElementsAre("RegCreateKeyExA", "RegCloseKey"));
}

TEST_F(BmdlReg, DeletesOnlyAKeyWithoutSubkeys) {
  tree.MakeKey(HKeyCurrentUser, Key);
  DeleteRegistryKey(registry, HKeyCurrentUser, "Software\\Qorvel Softwares");
  EXPECT_TRUE(tree.HasKey(HKeyCurrentUser, Key));
  DeleteRegistryKey(registry, HKeyCurrentUser, Key);
  EXPECT_FALSE(tree.HasKey(HKeyCurrentUser, Key));
  EXPECT_THAT(process.Trace().Names(), ElementsAre("RegDeleteKeyA", "RegDeleteKeyA"));
}

TEST_F(BmdlReg, DeletesAValueAndIgnoresAMissingOne) {
  tree.SetDword(HKeyCurrentUser, Key, "Popup", 7);
  DeleteRegistryValue(registry, HKeyCurrentUser, Key, "POPUP");
  EXPECT_EQ(Stored("Popup"), "absent");
  DeleteRegistryValue(registry, HKeyCurrentUser, Key, "Popup");
  DeleteRegistryValue(registry, HKeyCurrentUser, "No\\Such\\Key", "Popup");
  EXPECT_EQ(Calls()[0], "RegOpenKeyExA HKCU\\Software\\Qorvel Softwares\\Block Log 0xF003F -> 0");
  EXPECT_THAT(process.Trace().Names(),
              ElementsAre("RegOpenKeyExA", "RegDeleteValueA", "RegCloseKey", "RegOpenKeyExA",
                          "RegDeleteValueA", "RegCloseKey", "RegOpenKeyExA", "RegDeleteValueA",
                          "RegCloseKey"));
}

}  // namespace
}  // namespace vantrel::settings
