#include <gmock/gmock.h>

#include <array>

#include "platform/memory/CallGate.h"
#include "platform/memory/Calls.h"
#include "platform/memory/Process.h"

namespace vantrel::platform::memory {
namespace {

using testing::ElementsAre;

class MemoryCalls : public testing::Test {
 protected:
  std::int32_t Open() {
    KeyHandle key = 0;
    const std::int32_t code =
        platform_.registry.RegOpenKeyExA(HKeyCurrentUser, "Software", KeyRead, key);
    if (code == 0) platform_.registry.RegCloseKey(key);
    return code;
  }

  World world_;
  Process process_{world_};
  platform::Platform platform_ = process_.Platform();
};

TEST_F(MemoryCalls, TraceTellsCallsArgumentsAndResults) {
  world_.trace.Start();
  process_.Trace().Start();
  world_.registry.SetString(HKeyCurrentUser, "Software\\Qorvel", "Version", "2");
  KeyHandle key = 0;
  std::uint32_t type = 0;
  std::array<char, 8> buffer{};
  std::uint32_t length = 8;
  platform_.registry.RegOpenKeyExA(HKeyCurrentUser, "Software\\Qorvel", 0xF003F, key);
  platform_.registry.RegQueryValueExA(key, "Version", type, buffer, length);
  platform_.registry.RegSetValueExA(key, "Flag", RegDword, std::string_view("\1\0\0\0", 4));
  platform_.registry.RegCloseKey(key);
  platform_.registry.RegCloseKey(key);
  EXPECT_THAT(world_.trace.Lines(),
              ElementsAre("RegOpenKeyExA HKCU\\Software\\Qorvel 0xF003F -> 0",
                          "RegQueryValueExA HKCU\\Software\\Qorvel \"Version\" 8 -> 0",
                          "RegSetValueExA HKCU\\Software\\Qorvel \"Flag\" 4 1 0 0 0 -> 0",
                          "RegCloseKey HKCU\\Software\\Qorvel -> 0", "RegCloseKey 0x100 -> 6"));
  world_.trace.Clear();
  EXPECT_TRUE(world_.trace.Lines().empty());
  EXPECT_EQ(process_.Trace().LinesOf("RegCloseKey").size(), 2U);
}

TEST_F(MemoryCalls, WorldTracesAllProcessesAndEachItsOwn) {
  Process other(world_);
  for (Trace* trace : {&world_.trace, &other.Trace(), &process_.Trace()}) trace->Start();
  other.Platform().desktop.InitCommonControls();
  platform_.desktop.GetParent(0);
  EXPECT_THAT(world_.trace.Names(), ElementsAre("InitCommonControls", "GetParent"));
  EXPECT_THAT(other.Trace().Lines(), ElementsAre("InitCommonControls"));
  EXPECT_THAT(process_.Trace().Lines(), ElementsAre("GetParent 0x0 -> 0"));
}

TEST_F(MemoryCalls, TraceRecordsFromItsStartToItsStop) {
  Open();
  process_.Trace().Start();
  platform_.desktop.InitCommonControls();
  process_.Trace().Stop();
  Open();
  process_.Trace().Start();
  EXPECT_THAT(process_.Trace().Names(), ElementsAre("InitCommonControls"));
}

// An argument whose text is asked for.
struct Counted {
  int& asked;
  std::string Text() const {
    ++asked;
    return "counted";
  }
};

TEST_F(MemoryCalls, NoTextIsMadeForATraceThatDoesNotRecord) {
  CallGate gate(world_.trace);
  int asked = 0;
  const auto call = [&] {
    gate.Void(
        "EnumWindows", [] {}, Counted{asked});
    gate.Code(
        "RegCloseKey", [] { return 0; }, Counted{asked});
  };
  call();
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(gate.faults.Calls(), 2U);
  gate.trace.Start();
  call();
  EXPECT_EQ(asked, 2);
  EXPECT_THAT(gate.trace.Lines(), ElementsAre("EnumWindows counted", "RegCloseKey counted -> 0"));
}

TEST_F(MemoryCalls, ReadingATraceThatWasNotStartedIsAMisuse) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_DEATH(process_.Trace().Lines(), "a trace is read that was not started");
}

TEST_F(MemoryCalls, ANameThatNoCallHasIsAMisuse) {
  testing::GTEST_FLAG(death_test_style) = "threadsafe";
  EXPECT_DEATH(process_.Faults().FailEvery("RegFlushKey", 5), "no call is named RegFlushKey");
}

TEST_F(MemoryCalls, NthCallFailsWithItsCode) {
  world_.registry.MakeKey(HKeyCurrentUser, "Software");
  process_.Faults().FailNthCall(3, 1450);
  EXPECT_EQ(Open(), 0);  // opens and closes: two calls
  EXPECT_EQ(Open(), 1450);
  EXPECT_EQ(Open(), 0);
  EXPECT_EQ(process_.Faults().Calls(), 5U);
  EXPECT_EQ(process_.Faults().Failed(), 1U);
  EXPECT_EQ(process_.OpenKeys(), 0U);
}

TEST_F(MemoryCalls, NamedCallFails) {
  world_.registry.MakeKey(HKeyCurrentUser, "Software");
  process_.Faults().FailCall("RegOpenKeyExA", 2, 5);
  EXPECT_EQ(Open(), 0);
  EXPECT_EQ(Open(), 5);
  process_.Faults().FailEvery("RegOpenKeyExA", 8);
  EXPECT_EQ(Open(), 8);
  process_.Faults().Clear();
  EXPECT_EQ(Open(), 0);
  EXPECT_EQ(process_.Faults().CallsOf("RegOpenKeyExA"), 4U);
}

TEST_F(MemoryCalls, FailedCallHasNoEffect) {
  process_.Faults().FailEvery("WriteTextFile", 112);
  process_.Faults().FailEvery("Shell_NotifyIconA", 1);
  process_.Faults().FailEvery("MessageBoxA", 1);
  process_.Faults().FailEvery("SetParent", 1);
  EXPECT_EQ(platform_.files.WriteTextFile("C:\\a.txt", "x"), 112);
  EXPECT_FALSE(platform_.shell.Shell_NotifyIconA(NimAdd, {}));
  EXPECT_EQ(platform_.dialogs.MessageBoxA(0, "text", "title", StyleQuestionYesNo), 0);
  const WindowHandle one = world_.desktop.MakeWindow(process_.Id(), 0, "");
  const WindowHandle two = world_.desktop.MakeWindow(process_.Id(), 0, "");
  platform_.desktop.SetParent(two, one);
  EXPECT_FALSE(world_.files.IsFile("C:\\a.txt"));
  EXPECT_TRUE(world_.tray.Icons().empty());
  EXPECT_TRUE(process_.Boxes().empty());
  EXPECT_EQ(world_.desktop.TreeParent(two), 0U);
}

TEST_F(MemoryCalls, FaultsAreOneProcesssOwn) {
  Process other(world_);
  other.Faults().FailNthCall(1, 5);
  world_.registry.MakeKey(HKeyCurrentUser, "Software");
  EXPECT_EQ(Open(), 0);
}

TEST_F(MemoryCalls, OpenKeysAreCounted) {
  KeyHandle key = 0;
  platform_.registry.RegCreateKeyExA(HKeyCurrentUser, "Software", KeyAllAccess, true, key);
  EXPECT_EQ(process_.OpenKeys(), 1U);
  platform_.registry.RegCloseKey(key);
  EXPECT_EQ(process_.OpenKeys(), 0U);
}

}  // namespace
}  // namespace vantrel::platform::memory
