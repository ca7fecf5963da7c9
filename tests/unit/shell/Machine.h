// One machine with one copy of the program on it, for the tests of what goes wrong.
#ifndef VANTREL_TESTS_UNIT_SHELL_MACHINE_H_
#define VANTREL_TESTS_UNIT_SHELL_MACHINE_H_

#include <gmock/gmock.h>

#include "unit/shell/ShellTest.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameMain.h"
#include "windows/frmMain.h"

namespace vantrel::test {

class Machine : public ShellTest {
 public:
  using ShellTest::BoxTexts;
  using ShellTest::EngineEntryStands;
  using ShellTest::world;

  void TestBody() override {}

  explicit Machine(const std::string& commandLine = "") : commandLine_(commandLine) {}

  // A store that another run has left, with choices other than the design's.
  void StoreChoices() {
    StoreFirstRun(world);
    for (const char* name : {"Adv", "ShowSound"}) {
      world.registry.SetDword(platform::HKeyCurrentUser, BlockSettings, name, 1);
    }
    world.registry.SetDword(platform::HKeyCurrentUser, BlockSettings, "Flash", 0);
    world.registry.SetString(platform::HKeyCurrentUser, BlockSettings, "NSounds", "double");
    for (const char* name : {"BpID", "HideSystem"}) {
      world.registry.SetDword(platform::HKeyCurrentUser, Settings, name, 1);
    }
    for (const char* name : {"Popup", "DHTML", "WebDialog", "BannerAds", "Flash"}) {
      world.registry.SetDword(platform::HKeyCurrentUser, BlockLog, name, 12);
    }
    world.registry.SetString(platform::HKeyCurrentUser, ScriptKey, "Disable Script Debugger", "no");
  }
  void Make() {
    copy = MakeCopy(commandLine_);
    copy->process.AnswerBox = [](const platform::memory::Box&) { return platform::AnswerOk; };
  }
  void MakeStarted() {
    Make();
    shell::Start(copy->program);
  }

  // The calls that the act makes.
  template <class Act>
  std::vector<std::string> CallsOf(Act act) {
    const auto& calls = copy->process.Trace().Lines();
    const auto before = static_cast<std::ptrdiff_t>(calls.size());
    act();
    return {calls.begin() + before, calls.end()};
  }
  // Lets the n-th call of the act fail.
  template <class Act>
  void Fail(std::size_t n, std::int32_t error, Act act) {
    copy->process.ClearBoxes();
    copy->process.Faults().FailNthCall(n, error);
    failed = CallsOf(act).at(n - 1);
    copy->process.Faults().Clear();
    EXPECT_EQ(copy->process.Faults().Failed(), 1U);
  }

  bool FailedIs(const std::string& call) const { return failed.starts_with(call); }
  bool FailedIn(const std::string& key) const { return failed.find(key) != std::string::npos; }
  // A read of a value that could not be made, in whichever of its calls.
  bool FailedRead(const std::string& key) const {
    return FailedIn(key) && (FailedIs("RegOpenKeyExA") || FailedIs("RegQueryValueExA"));
  }

  // A close that fails leaves its key open; nothing else does.
  void ExpectKeysClosed() const {
    const bool leftOpen = FailedIs("RegCloseKey ") && !FailedIs("RegCloseKey 0x0 ");
    EXPECT_EQ(copy->process.OpenKeys(), leftOpen ? 1U : 0U);
  }

  // What the user gets from the window: it shows, and its menus show panels.
  void ExpectWindowUsable() {
    auto& windows = copy->Windows();
    ASSERT_FALSE(copy->toolkit.Ending());
    EXPECT_FALSE(copy->program.LoadingSettings);
    EXPECT_TRUE(windows.frmMain->Visible());
    EXPECT_TRUE(copy->user.Select(windows.frmMain->MnuClean));
    EXPECT_TRUE(windows.FrmFrameHistory->Shown());
    EXPECT_TRUE(copy->user.Select(windows.frmMain->mnuWelcome));
    EXPECT_FALSE(windows.FrmFrameHistory->Visible());
    EXPECT_TRUE(windows.FrmFrameMain->Shown());
  }
  // And its mailbox, its switch and its store work.
  void ExpectUsable() {
    ExpectWindowUsable();
    auto& windows = copy->Windows();
    EXPECT_EQ(windows.frmMain->cmdDummy.Caption(), "Ready for command");
    auto& panel = *windows.FrmFrameMain;
    copy->process.ClearBoxes();
    EXPECT_TRUE(copy->user.Click(panel.cmdstop.Enabled() ? panel.cmdstop : panel.cmdstart));
    EXPECT_TRUE(copy->user.Click(panel.cmdstop.Enabled() ? panel.cmdstop : panel.cmdstart));
    EXPECT_NE(panel.cmdstart.Enabled(), panel.cmdstop.Enabled());
    if (panel.cmdstart.Enabled()) {
      EXPECT_TRUE(copy->user.Click(panel.cmdstart));
    }
    EXPECT_THAT(BoxTexts(*copy), testing::IsEmpty());
    EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
    EXPECT_TRUE(EngineEntryStands());
  }

  void ExpectStarted() const {
    auto& panel = *copy->program.windows.FrmFrameMain;
    EXPECT_FALSE(panel.cmdstart.Enabled());
    EXPECT_TRUE(panel.cmdstop.Enabled());
    EXPECT_TRUE(panel.Timer1.Enabled());
    EXPECT_TRUE(copy->program.BlockingActive);
    EXPECT_EQ(copy->program.BlockStopped, 0);
  }
  void ExpectStopped() const {
    auto& panel = *copy->program.windows.FrmFrameMain;
    EXPECT_TRUE(panel.cmdstart.Enabled());
    EXPECT_FALSE(panel.cmdstop.Enabled());
    EXPECT_FALSE(copy->program.BlockingActive);
    EXPECT_EQ(copy->program.BlockStopped, 1);
  }

  std::unique_ptr<Copy> copy;
  std::string failed;

 private:
  std::string commandLine_;
};

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_UNIT_SHELL_MACHINE_H_
