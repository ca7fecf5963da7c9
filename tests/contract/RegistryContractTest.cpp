// What the registry promises, case by case.
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <vector>

#include "contract/Subject.h"

namespace vantrel::platform::contract {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr std::int32_t ErrorBadPathName = 161;

struct Answer {
  std::int32_t code = -1;
  std::uint32_t type = 0;
  std::uint32_t length = 0;
  std::string data;  // on success
};

class RegistryContract : public ContractTest {
 protected:
  ~RegistryContract() override {
    for (const KeyHandle key : opened_) registry_.RegCloseKey(key);
  }

  KeyHandle Create(const std::string& subkey, std::uint32_t access = KeyAllAccess) {
    KeyHandle key = 0;
    EXPECT_EQ(registry_.RegCreateKeyExA(HKeyCurrentUser, subkey, access, true, key), 0) << subkey;
    opened_.push_back(key);
    return key;
  }

  KeyHandle Open(const std::string& subkey, std::uint32_t access) {
    KeyHandle key = 0;
    EXPECT_EQ(registry_.RegOpenKeyExA(HKeyCurrentUser, subkey, access, key), 0) << subkey;
    opened_.push_back(key);
    return key;
  }

  std::int32_t OpenCode(const std::string& subkey, KeyHandle root = HKeyCurrentUser) {
    KeyHandle key = 0;
    const std::int32_t code = registry_.RegOpenKeyExA(root, subkey, KeyRead, key);
    if (code == 0) registry_.RegCloseKey(key);
    return code;
  }

  Answer Query(KeyHandle key, const std::string& name, std::uint32_t room = 1024) {
    Answer answer;
    std::vector<char> buffer(room + 1, '#');
    answer.length = room;
    answer.code = registry_.RegQueryValueExA(key, name, answer.type, buffer, answer.length);
    if (answer.code == 0) answer.data.assign(buffer.begin(), buffer.begin() + answer.length);
    return answer;
  }

  std::vector<std::string> SubkeysOf(KeyHandle key) {
    std::vector<std::string> names;
    std::string name;
    for (std::uint32_t i = 0; registry_.RegEnumKeyA(key, i, 300, name) == 0; ++i) {
      names.push_back(name);
    }
    return names;
  }

  Registry& registry_ = platform_.registry;
  std::vector<KeyHandle> opened_;
};

INSTANTIATE_TEST_SUITE_P(All, RegistryContract, AllKinds, KindName);

TEST_P(RegistryContract, MissingKeyIsNotFound) {
  KeyHandle key = 77;
  EXPECT_EQ(registry_.RegOpenKeyExA(HKeyCurrentUser, OwnKey, KeyAllAccess, key), 2);
  EXPECT_EQ(key, 77U);
  EXPECT_EQ(registry_.RegOpenKeyA(HKeyCurrentUser, OwnKey, key), 2);
}

TEST_P(RegistryContract, CreateMakesMissingParents) {
  Create(OwnKey + "\\One\\Two\\Three");
  EXPECT_EQ(OpenCode(OwnKey + "\\One"), 0);
  EXPECT_EQ(OpenCode(OwnKey + "\\One\\Two\\Three"), 0);
}

TEST_P(RegistryContract, CreateOpensWhatExists) {
  EXPECT_EQ(registry_.RegSetValueExA(Create(OwnKey), "a", RegSz, "kept"), 0);
  KeyHandle key = 0;
  EXPECT_EQ(registry_.RegCreateKeyExA(HKeyCurrentUser, OwnKey, KeyShortAccess, false, key), 0);
  opened_.push_back(key);
  EXPECT_EQ(Query(key, "a").data, "kept");
}

TEST_P(RegistryContract, CreateRelativeToOpenKey) {
  KeyHandle key = 0;
  EXPECT_EQ(registry_.RegCreateKeyExA(Create(OwnKey), "Below", KeyAllAccess, false, key), 0);
  opened_.push_back(key);
  EXPECT_EQ(OpenCode(OwnKey + "\\Below"), 0);
}

TEST_P(RegistryContract, BackslashesAtTheEndAndDoubledOnesCountForNothing) {
  Create(OwnKey + "\\One\\\\Two\\");
  EXPECT_EQ(OpenCode(OwnKey + "\\One\\Two"), 0);
  EXPECT_EQ(OpenCode(OwnKey + "\\One\\Two\\"), 0);
  EXPECT_EQ(OpenCode(OwnKey + "\\\\One"), 0);
}

TEST_P(RegistryContract, BackslashInFrontIsABadPath) {
  Create(OwnKey);
  KeyHandle key = 0;
  EXPECT_EQ(OpenCode("\\" + OwnKey), ErrorBadPathName);
  EXPECT_EQ(registry_.RegOpenKeyA(HKeyCurrentUser, "\\" + OwnKey, key), ErrorBadPathName);
  EXPECT_EQ(registry_.RegCreateKeyExA(HKeyCurrentUser, "\\" + OwnKey, KeyAllAccess, false, key),
            ErrorBadPathName);
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, "\\" + OwnKey), ErrorBadPathName);
}

TEST_P(RegistryContract, SlashSeparatesNothing) {
  Create(OwnKey + "\\One");
  EXPECT_EQ(OpenCode(OwnKey + "/One"), 2);
}

TEST_P(RegistryContract, PathLongerThanTheSystemTakesIsMoreData) {
  const std::string fits = OwnKey + "\\" + std::string(260 - OwnKey.size() - 1, 'x');
  EXPECT_EQ(OpenCode(fits), 2);
  EXPECT_EQ(OpenCode(fits + "x"), ErrorMoreData);
  KeyHandle key = 0;
  EXPECT_EQ(registry_.RegCreateKeyExA(HKeyCurrentUser, fits + "x", KeyAllAccess, false, key),
            ErrorMoreData);
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, fits + "x"), ErrorMoreData);
}

TEST_P(RegistryContract, KeyNamesFoldCase) {
  Create(OwnKey + "\\Mixed");
  EXPECT_EQ(OpenCode(OwnKey + "\\mIXED"), 0);
  Create(OwnKey + "\\MIXED");
  EXPECT_THAT(SubkeysOf(Open(OwnKey, KeyRead)), ElementsAre("Mixed"));
}

TEST_P(RegistryContract, ValueNamesFoldCaseAndKeepTheFirstSpelling) {
  const KeyHandle key = Create(OwnKey);
  EXPECT_EQ(registry_.RegSetValueExA(key, "BpId", RegSz, "one"), 0);
  EXPECT_EQ(registry_.RegSetValueExA(key, "BpID", RegSz, "two"), 0);
  EXPECT_EQ(Query(key, "bpid").data, "two");
  std::string name;
  std::string data;
  std::uint32_t type = 0;
  EXPECT_EQ(registry_.RegEnumValueA(key, 0, 260, name, type, 4096, data), 0);
  EXPECT_EQ(name, "BpId");
  EXPECT_EQ(registry_.RegEnumValueA(key, 1, 260, name, type, 4096, data), ErrorNoMoreItems);
}

TEST_P(RegistryContract, StoresExactlyTheBytesGiven) {
  const KeyHandle key = Create(OwnKey);
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  for (const std::uint32_t type : {0U, RegSz, RegExpandSz, RegBinary, RegMultiSz, 11U, 77U}) {
    EXPECT_EQ(registry_.RegSetValueExA(key, "all", type, all), 0);
    const Answer answer = Query(key, "all");
    EXPECT_EQ(answer.code, 0);
    EXPECT_EQ(answer.type, type);
    EXPECT_EQ(answer.data, all) << type;
  }
}

TEST_P(RegistryContract, NoTerminatorIsAddedAndNoneTaken) {
  const KeyHandle key = Create(OwnKey);
  const std::array<std::string, 4> texts{"abc", std::string("abc\0", 4), std::string("abc\0\0", 5),
                                         std::string("a\0c", 3)};
  for (const std::string& text : texts) {
    EXPECT_EQ(registry_.RegSetValueExA(key, "text", RegSz, text), 0);
    EXPECT_EQ(Query(key, "text").data, text);
  }
  // A text whose caller keeps a terminator behind it, as most do.
  EXPECT_EQ(registry_.RegSetValueExA(key, "text", RegSz, std::string_view("abc", 3)), 0);
  EXPECT_EQ(Query(key, "text").length, 3U);
}

TEST_P(RegistryContract, DwordOfAnyLength) {
  const KeyHandle key = Create(OwnKey);
  EXPECT_EQ(registry_.RegSetValueExA(key, "n", RegDword, std::string_view("\x2C\x01\0\0", 4)), 0);
  EXPECT_EQ(Query(key, "n").data, std::string("\x2C\x01\0\0", 4));
  EXPECT_EQ(registry_.RegSetValueExA(key, "n", RegDword, "ab"), 0);
  EXPECT_EQ(Query(key, "n").type, RegDword);
  EXPECT_EQ(Query(key, "n").data, "ab");
}

TEST_P(RegistryContract, DataOfNoBytes) {
  const KeyHandle key = Create(OwnKey);
  EXPECT_EQ(registry_.RegSetValueExA(key, "empty", RegSz, ""), 0);
  const Answer answer = Query(key, "empty");
  EXPECT_EQ(answer.code, 0);
  EXPECT_EQ(answer.type, RegSz);
  EXPECT_EQ(answer.length, 0U);
}

TEST_P(RegistryContract, RewritingChangesTypeAndLength) {
  const KeyHandle key = Create(OwnKey);
  EXPECT_EQ(registry_.RegSetValueExA(key, "v", RegSz, "a long text"), 0);
  EXPECT_EQ(registry_.RegSetValueExA(key, "v", RegBinary, "b"), 0);
  EXPECT_EQ(Query(key, "v").type, RegBinary);
  EXPECT_EQ(Query(key, "v").data, "b");
}

TEST_P(RegistryContract, DataLongerThanTheRoomIsMoreDataWithItsLength) {
  const KeyHandle key = Create(OwnKey);
  for (const std::uint32_t type : {RegSz, RegBinary}) {
    EXPECT_EQ(registry_.RegSetValueExA(key, "long", type, std::string(1025, 'x')), 0);
    const Answer answer = Query(key, "long", 1024);
    EXPECT_EQ(answer.code, ErrorMoreData);
    EXPECT_EQ(answer.type, type);
    EXPECT_EQ(answer.length, 1025U);
    EXPECT_EQ(Query(key, "long", 1025).data, std::string(1025, 'x'));
    EXPECT_EQ(Query(key, "long", 0).code, ErrorMoreData);
  }
}

TEST_P(RegistryContract, MissingValueIsNotFoundAndTouchesNothing) {
  const KeyHandle key = Create(OwnKey);
  const Answer answer = Query(key, "none", 10);
  EXPECT_EQ(answer.code, 2);
  EXPECT_EQ(answer.type, 0U);
  EXPECT_EQ(answer.length, 10U);
  EXPECT_EQ(registry_.RegDeleteValueA(key, "none"), 2);
}

TEST_P(RegistryContract, EmptyNameIsTheDefaultValue) {
  const KeyHandle key = Create(OwnKey);
  EXPECT_EQ(Query(key, "").code, 2);
  EXPECT_EQ(registry_.RegSetValueExA(key, "", RegSz, "default"), 0);
  EXPECT_EQ(Query(key, "").data, "default");
  std::string name = "before";
  std::string data;
  std::uint32_t type = 0;
  EXPECT_EQ(registry_.RegEnumValueA(key, 0, 260, name, type, 4096, data), 0);
  EXPECT_EQ(name, "");
  EXPECT_EQ(registry_.RegDeleteValueA(key, ""), 0);
  EXPECT_EQ(Query(key, "").code, 2);
}

TEST_P(RegistryContract, ValueNamesUpToTheirLimit) {
  const KeyHandle key = Create(OwnKey);
  const std::string longest(16383, 'v');
  EXPECT_EQ(registry_.RegSetValueExA(key, longest, RegSz, "x"), 0);
  EXPECT_EQ(Query(key, longest).data, "x");
  EXPECT_EQ(registry_.RegSetValueExA(key, longest + "v", RegSz, "x"), ErrorInvalidParameter);
  EXPECT_EQ(Query(key, longest + "v").code, 2);
  EXPECT_EQ(registry_.RegDeleteValueA(key, longest + "v"), 2);
}

TEST_P(RegistryContract, NamesEndAtTheirNul) {
  const KeyHandle key = Create(OwnKey + std::string("\\One\0Two", 8));
  EXPECT_EQ(OpenCode(OwnKey + "\\One"), 0);
  EXPECT_EQ(registry_.RegSetValueExA(key, std::string("name\0more", 9), RegSz, "x"), 0);
  EXPECT_EQ(Query(key, "name").data, "x");
}

TEST_P(RegistryContract, DeletingAValueLeavesTheOthers) {
  const KeyHandle key = Create(OwnKey);
  EXPECT_EQ(registry_.RegSetValueExA(key, "a", RegSz, "1"), 0);
  EXPECT_EQ(registry_.RegSetValueExA(key, "b", RegSz, "2"), 0);
  EXPECT_EQ(registry_.RegDeleteValueA(key, "A"), 0);
  EXPECT_EQ(Query(key, "a").code, 2);
  EXPECT_EQ(Query(key, "b").data, "2");
}

TEST_P(RegistryContract, KeyWithSubkeysRefusesToBeDeleted) {
  Create(OwnKey + "\\One\\Two");
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, OwnKey + "\\One"), 5);
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, OwnKey + "\\One\\Two"), 0);
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, OwnKey + "\\One\\"), 0);
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, OwnKey + "\\One"), 2);
}

TEST_P(RegistryContract, KeyWithValuesIsDeletedWithThem) {
  EXPECT_EQ(registry_.RegSetValueExA(Create(OwnKey + "\\One"), "a", RegSz, "1"), 0);
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, OwnKey + "\\One"), 0);
  EXPECT_EQ(Query(Create(OwnKey + "\\One"), "a").code, 2);
}

TEST_P(RegistryContract, EmptySubkeyDeletesTheOpenKeyItself) {
  const KeyHandle key = Create(OwnKey + "\\One");
  EXPECT_EQ(registry_.RegDeleteKeyA(key, ""), 0);
  EXPECT_EQ(OpenCode(OwnKey + "\\One"), 2);
}

TEST_P(RegistryContract, HandleOfADeletedKeyIsGoodForClosingOnly) {
  const KeyHandle key = Create(OwnKey + "\\One");
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, OwnKey + "\\One"), 0);
  KeyHandle below = 0;
  std::string name;
  std::string data;
  std::uint32_t type = 0;
  EXPECT_EQ(Query(key, "a").code, ErrorKeyDeleted);
  EXPECT_EQ(registry_.RegSetValueExA(key, "a", RegSz, "1"), ErrorKeyDeleted);
  EXPECT_EQ(registry_.RegDeleteValueA(key, "a"), ErrorKeyDeleted);
  EXPECT_EQ(registry_.RegEnumValueA(key, 0, 10, name, type, 10, data), ErrorKeyDeleted);
  EXPECT_EQ(registry_.RegEnumKeyA(key, 0, 10, name), ErrorKeyDeleted);
  EXPECT_EQ(registry_.RegOpenKeyExA(key, "a", KeyRead, below), ErrorKeyDeleted);
  EXPECT_EQ(registry_.RegCreateKeyExA(key, "a", KeyAllAccess, false, below), ErrorKeyDeleted);
  EXPECT_EQ(registry_.RegDeleteKeyA(key, "a"), ErrorKeyDeleted);
}

TEST_P(RegistryContract, ClosedHandleIsInvalid) {
  KeyHandle key = 0;
  EXPECT_EQ(registry_.RegCreateKeyExA(HKeyCurrentUser, OwnKey, KeyAllAccess, false, key), 0);
  EXPECT_EQ(registry_.RegCloseKey(key), 0);
  EXPECT_EQ(registry_.RegCloseKey(key), ErrorInvalidHandle);
  EXPECT_EQ(Query(key, "a").code, ErrorInvalidHandle);
  EXPECT_EQ(registry_.RegSetValueExA(key, "a", RegSz, "1"), ErrorInvalidHandle);
  std::string name;
  EXPECT_EQ(registry_.RegEnumKeyA(key, 0, 10, name), ErrorInvalidHandle);
}

TEST_P(RegistryContract, NoHandleIsInvalid) {
  EXPECT_EQ(registry_.RegCloseKey(0), ErrorInvalidHandle);
  EXPECT_EQ(OpenCode("Software", 0), ErrorInvalidHandle);
  EXPECT_EQ(Query(0, "a").code, ErrorInvalidHandle);
  EXPECT_EQ(registry_.RegDeleteKeyA(0, "a"), ErrorInvalidHandle);
  EXPECT_EQ(registry_.RegDeleteValueA(0, "a"), ErrorInvalidHandle);
}

TEST_P(RegistryContract, PredefinedRootsAreNeverClosed) {
  Create(OwnKey);
  EXPECT_EQ(registry_.RegCloseKey(HKeyCurrentUser), 0);
  EXPECT_EQ(OpenCode(OwnKey), 0);
}

TEST_P(RegistryContract, RootsCannotBeDeleted) {
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, ""), 5);
}

TEST_P(RegistryContract, EmptySubkeyOfARootIsTheRoot) {
  KeyHandle key = 0;
  EXPECT_EQ(registry_.RegOpenKeyA(HKeyCurrentUser, "", key), 0);
  EXPECT_EQ(key, HKeyCurrentUser);
  EXPECT_EQ(registry_.RegOpenKeyExA(HKeyClassesRoot, "", KeyRead, key), 0);
  EXPECT_EQ(key, HKeyClassesRoot);
}

TEST_P(RegistryContract, EmptySubkeyOfAnOpenKey) {
  const KeyHandle key = Create(OwnKey);
  KeyHandle same = 0;
  EXPECT_EQ(registry_.RegOpenKeyA(key, "", same), 0);
  EXPECT_EQ(same, key);
  KeyHandle other = 0;
  EXPECT_EQ(registry_.RegOpenKeyExA(key, "", KeyRead, other), 0);
  EXPECT_NE(other, key);
  EXPECT_EQ(registry_.RegCloseKey(other), 0);
}

TEST_P(RegistryContract, BackslashInFrontIsForgivenForClasses) {
  EXPECT_EQ(OpenCode("\\VantrelContractNothing", HKeyClassesRoot), 2);
}

TEST_P(RegistryContract, HandleWithoutRightsRefuses) {
  EXPECT_EQ(registry_.RegSetValueExA(Create(OwnKey + "\\One"), "a", RegSz, "1"), 0);
  const KeyHandle key = Open(OwnKey + "\\One", 0);
  std::string name;
  std::string data;
  std::uint32_t type = 0;
  EXPECT_EQ(Query(key, "a").code, 5);
  EXPECT_EQ(registry_.RegSetValueExA(key, "a", RegSz, "2"), 5);
  EXPECT_EQ(registry_.RegDeleteValueA(key, "a"), 5);
  EXPECT_EQ(registry_.RegEnumValueA(key, 0, 10, name, type, 10, data), 5);
  EXPECT_EQ(registry_.RegEnumKeyA(key, 0, 10, name), 5);
}

TEST_P(RegistryContract, ReadingHandleReadsOnly) {
  EXPECT_EQ(registry_.RegSetValueExA(Create(OwnKey), "a", RegSz, "1"), 0);
  const KeyHandle key = Open(OwnKey, KeyRead);
  EXPECT_EQ(Query(key, "a").data, "1");
  EXPECT_EQ(registry_.RegSetValueExA(key, "a", RegSz, "2"), 5);
  EXPECT_EQ(registry_.RegDeleteValueA(key, "a"), 5);
}

TEST_P(RegistryContract, ShortAccessReadsAndWrites) {
  const KeyHandle key = Create(OwnKey, KeyShortAccess);
  EXPECT_EQ(registry_.RegSetValueExA(key, "a", RegSz, "1"), 0);
  EXPECT_EQ(Query(key, "a").data, "1");
  EXPECT_EQ(registry_.RegDeleteValueA(key, "a"), 0);
}

TEST_P(RegistryContract, OldOpenGrantsReadingAndWriting) {
  EXPECT_EQ(registry_.RegSetValueExA(Create(OwnKey), "a", RegSz, "1"), 0);
  KeyHandle key = 0;
  EXPECT_EQ(registry_.RegOpenKeyA(HKeyCurrentUser, OwnKey, key), 0);
  EXPECT_EQ(Query(key, "a").data, "1");
  EXPECT_EQ(registry_.RegSetValueExA(key, "a", RegSz, "2"), 0);
  EXPECT_EQ(registry_.RegCloseKey(key), 0);
}

TEST_P(RegistryContract, EnumeratesAllValues) {
  const KeyHandle key = Create(OwnKey);
  EXPECT_EQ(registry_.RegSetValueExA(key, "text", RegSz, "abc"), 0);
  EXPECT_EQ(registry_.RegSetValueExA(key, "number", RegDword, std::string_view("\1\0\0\0", 4)), 0);
  EXPECT_EQ(registry_.RegSetValueExA(key, "bytes", RegBinary, std::string_view("\0\xFF", 2)), 0);
  std::vector<std::tuple<std::string, std::uint32_t, std::string>> values;
  std::string name;
  std::string data;
  std::uint32_t type = 0;
  std::uint32_t index = 0;
  while (registry_.RegEnumValueA(key, index, 260, name, type, 4096, data) == 0) {
    values.emplace_back(name, type, data);
    ++index;
  }
  EXPECT_THAT(values,
              UnorderedElementsAre(std::tuple("text", RegSz, "abc"),
                                   std::tuple("number", RegDword, std::string("\1\0\0\0", 4)),
                                   std::tuple("bytes", RegBinary, std::string("\0\xFF", 2))));
  EXPECT_EQ(registry_.RegEnumValueA(key, index, 260, name, type, 4096, data), ErrorNoMoreItems);
}

TEST_P(RegistryContract, EnumeratedValueThatDoesNotFitIsMoreData) {
  const KeyHandle key = Create(OwnKey);
  EXPECT_EQ(registry_.RegSetValueExA(key, "ab", RegBinary, "12345"), 0);
  std::string name;
  std::string data;
  std::uint32_t type = 0;
  EXPECT_EQ(registry_.RegEnumValueA(key, 0, 2, name, type, 5, data), ErrorMoreData);
  EXPECT_EQ(registry_.RegEnumValueA(key, 0, 3, name, type, 4, data), ErrorMoreData);
  EXPECT_EQ(registry_.RegEnumValueA(key, 0, 3, name, type, 5, data), 0);
  EXPECT_EQ(name, "ab");
  EXPECT_EQ(data, "12345");
}

TEST_P(RegistryContract, EnumeratesSubkeysInTheOrderOfTheirNames) {
  for (const char* name : {"beta", "Alpha", "gamma", "Delta"}) Create(OwnKey + "\\" + name);
  EXPECT_THAT(SubkeysOf(Open(OwnKey, KeyRead)), ElementsAre("Alpha", "beta", "Delta", "gamma"));
}

TEST_P(RegistryContract, EnumeratedSubkeyThatDoesNotFitIsMoreData) {
  Create(OwnKey + "\\abc");
  const KeyHandle key = Open(OwnKey, KeyRead);
  std::string name;
  EXPECT_EQ(registry_.RegEnumKeyA(key, 0, 3, name), ErrorMoreData);
  EXPECT_EQ(registry_.RegEnumKeyA(key, 0, 4, name), 0);
  EXPECT_EQ(name, "abc");
  EXPECT_EQ(registry_.RegEnumKeyA(key, 1, 4, name), ErrorNoMoreItems);
}

TEST_P(RegistryContract, EnumerationSkipsWhatWasDeletedBetween) {
  for (const char* name : {"a", "b", "c"}) Create(OwnKey + "\\" + name);
  const KeyHandle key = Open(OwnKey, KeyRead);
  EXPECT_EQ(registry_.RegDeleteKeyA(HKeyCurrentUser, OwnKey + "\\a"), 0);
  EXPECT_THAT(SubkeysOf(key), ElementsAre("b", "c"));
}

TEST_P(RegistryContract, WhatOneHandleWritesTheOtherReads) {
  const KeyHandle writer = Create(OwnKey);
  const KeyHandle reader = Open(OwnKey, KeyRead);
  EXPECT_EQ(registry_.RegSetValueExA(writer, "a", RegSz, "1"), 0);
  EXPECT_EQ(Query(reader, "a").data, "1");
}

TEST_P(RegistryContract, AnotherCopySeesTheSameRegistry) {
  EXPECT_EQ(registry_.RegSetValueExA(Create(OwnKey), "a", RegSz, "1"), 0);
  Registry& other = subject_->StartAnother().registry;
  KeyHandle key = 0;
  EXPECT_EQ(other.RegOpenKeyExA(HKeyCurrentUser, OwnKey, KeyRead, key), 0);
  EXPECT_EQ(other.RegCloseKey(key), 0);
}

}  // namespace
}  // namespace vantrel::platform::contract
