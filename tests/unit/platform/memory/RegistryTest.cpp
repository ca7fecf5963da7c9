#include <gmock/gmock.h>

#include "platform/memory/Process.h"
#include "platform/memory/RegistryTree.h"

namespace vantrel::platform::memory {
namespace {

using testing::ElementsAre;

class MemoryRegistry : public testing::Test {
 protected:
  std::int32_t OpenCode(const std::string& subkey, std::uint32_t access) {
    KeyHandle key = 0;
    const std::int32_t code = view_.RegOpenKeyExA(HKeyLocalMachine, subkey, access, key);
    if (code == 0) view_.RegCloseKey(key);
    return code;
  }

  World world_;
  Process process_{world_};
  RegistryTree& tree_ = world_.registry;
  Registry& view_ = process_.Platform().registry;
};

TEST_F(MemoryRegistry, ReadsBackWhatWasSet) {
  tree_.SetString(HKeyCurrentUser, "Software\\A", "text", "abc");
  tree_.SetDword(HKeyCurrentUser, "Software\\A", "number", 300);
  EXPECT_EQ(tree_.GetString(HKeyCurrentUser, "SOFTWARE\\a", "TEXT"), "abc");
  EXPECT_EQ(tree_.GetDword(HKeyCurrentUser, "Software\\A", "number"), 300U);
  EXPECT_EQ(tree_.Get(HKeyCurrentUser, "Software\\A", "text")->data, std::string("abc\0", 4));
  EXPECT_FALSE(tree_.GetDword(HKeyCurrentUser, "Software\\A", "text"));
  EXPECT_FALSE(tree_.Get(HKeyCurrentUser, "Software\\A", "none"));
  EXPECT_FALSE(tree_.Get(HKeyCurrentUser, "Software\\B", "text"));
}

TEST_F(MemoryRegistry, ValuesKeepTheOrderOfTheirMaking) {
  for (const char* name : {"c", "a", "b"}) tree_.SetString(HKeyCurrentUser, "K", name, "");
  tree_.SetString(HKeyCurrentUser, "K", "C", "again");
  std::vector<std::string> names;
  for (const RegistryValue& value : tree_.Values(HKeyCurrentUser, "K")) names.push_back(value.name);
  EXPECT_THAT(names, ElementsAre("c", "a", "b"));
}

TEST_F(MemoryRegistry, RootsAreApart) {
  tree_.MakeKey(HKeyClassesRoot, "http");
  EXPECT_FALSE(tree_.HasKey(HKeyCurrentUser, "http"));
  EXPECT_FALSE(tree_.HasKey(HKeyLocalMachine, "http"));
}

TEST_F(MemoryRegistry, KeyThatMayNotBeWrittenOpensForReadingOnly) {
  tree_.SetString(HKeyLocalMachine, "Software\\Guarded\\Below", "a", "1");
  tree_.Refuse(HKeyLocalMachine, "Software\\Guarded", Refusal::Write);
  EXPECT_EQ(OpenCode("Software\\Guarded", KeyAllAccess), 5);
  EXPECT_EQ(OpenCode("Software\\Guarded\\Below", KeyShortAccess), 5);
  EXPECT_EQ(OpenCode("Software\\Guarded\\Below", KeyRead), 0);
  EXPECT_EQ(OpenCode("Software", KeyAllAccess), 0);
  KeyHandle key = 0;
  EXPECT_EQ(view_.RegCreateKeyExA(HKeyLocalMachine, "Software\\Guarded\\New", KeyRead, false, key),
            5);
  EXPECT_FALSE(tree_.HasKey(HKeyLocalMachine, "Software\\Guarded\\New"));
  EXPECT_EQ(view_.RegDeleteKeyA(HKeyLocalMachine, "Software\\Guarded\\Below"), 5);
}

TEST_F(MemoryRegistry, OldOpenGrantsWhatThereIs) {
  tree_.SetString(HKeyLocalMachine, "Guarded", "a", "1");
  tree_.Refuse(HKeyLocalMachine, "Guarded", Refusal::Write);
  KeyHandle key = 0;
  EXPECT_EQ(view_.RegOpenKeyA(HKeyLocalMachine, "Guarded", key), 0);
  EXPECT_EQ(view_.RegSetValueExA(key, "a", RegSz, "2"), 5);
  EXPECT_EQ(view_.RegCloseKey(key), 0);
}

TEST_F(MemoryRegistry, KeyThatRefusesAllIsClosedToEverybody) {
  tree_.Refuse(HKeyLocalMachine, "Guarded", Refusal::All);
  tree_.MakeKey(HKeyLocalMachine, "Guarded\\Open");
  tree_.Refuse(HKeyLocalMachine, "Guarded\\Open", Refusal::None);
  EXPECT_EQ(OpenCode("Guarded", KeyRead), 5);
  EXPECT_EQ(OpenCode("Guarded", 0), 5);
  EXPECT_EQ(OpenCode("Guarded\\Open", KeyAllAccess), 0);
}

TEST_F(MemoryRegistry, HandleOutlivesItsKeyAndTheKeyAboveIt) {
  KeyHandle key = 0;
  view_.RegCreateKeyExA(HKeyLocalMachine, "One\\Two", KeyAllAccess, false, key);
  tree_.RemoveKey(HKeyLocalMachine, "One");
  world_.trace.Start();
  EXPECT_EQ(view_.RegSetValueExA(key, "a", RegSz, "1"), ErrorKeyDeleted);
  EXPECT_EQ(view_.RegCloseKey(key), 0);
  EXPECT_EQ(world_.trace.Lines().back(), "RegCloseKey HKLM\\One\\Two (deleted) -> 0");
}

}  // namespace
}  // namespace vantrel::platform::memory
