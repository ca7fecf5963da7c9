// Start-up, Start and Stop, run once for every call that they make of Windows, with that one call
// failing: nothing crashes or hangs, no key is left open, and the program has either been refused
// by the gate or goes on with a window that works. What is prescribed for a failure holds.
#include <gmock/gmock.h>

#include "unit/shell/ShellTest.h"

namespace vantrel::shell {
namespace {

using platform::HKeyCurrentUser;
using test::BlockLog;
using test::BlockSettings;
using test::Copy;
using test::Settings;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::int32_t> ErrorsOf(const std::string& call) {
  std::vector<std::int32_t> errors = {platform::ErrorAccessDenied};
  const bool looksAtCode =
      call.starts_with("RegQueryValueExA ") || call.starts_with("RegOpenKeyExA ");
  if (looksAtCode) errors.push_back(platform::ErrorFileNotFound);
  return errors;
}

constexpr const char* GateBox =
    "Vantrel does not support Internet Explorer version lesser than 6.0. Please install a higher "
    "version.";

// One machine with a copy of the program on it, of which the n-th call from some moment on fails.
class Machine : public test::ShellTest {
 public:
  using ShellTest::BoxTexts;
  using ShellTest::world;

  void TestBody() override {}

  explicit Machine(const std::string& commandLine = "") : commandLine_(commandLine) {}

  // A store that another run has left, with choices other than the design's.
  void StoreChoices() {
    for (const char* name : {"BpId", "Popup", "DHTML", "WebDialog", "Banner", "DialogBox", "Adv",
                             "KeepaLog", "ShowSound", "GDisabled", "Spy"}) {
      world.registry.SetDword(HKeyCurrentUser, BlockSettings, name, 1);
    }
    for (const char* name : {"Flash", "ShowNotification", "ShowPH", "ShowPHF"}) {
      world.registry.SetDword(HKeyCurrentUser, BlockSettings, name, 0);
    }
    world.registry.SetString(HKeyCurrentUser, BlockSettings, "NSounds", "double");
    for (const char* name : {"BpId", "HideSystem", "StartWithWindows", "ShowBrowser"}) {
      world.registry.SetDword(HKeyCurrentUser, Settings, name, 1);
    }
    for (const char* name : {"CheckUpdates", "Minimize"}) {
      world.registry.SetDword(HKeyCurrentUser, Settings, name, 0);
    }
    for (const char* name : {"Popup", "DHTML", "WebDialog", "BannerAds", "Flash"}) {
      world.registry.SetDword(HKeyCurrentUser, BlockLog, name, 12);
    }
    world.registry.SetString(HKeyCurrentUser, "Software\\Qorvel Softwares\\Toolbar Settings",
                             "Toolbar Name", "Vantrel");
    world.registry.SetString(HKeyCurrentUser, test::ScriptKey, "Disable Script Debugger", "no");
  }
  void Make() {
    copy = MakeCopy(commandLine_);
    copy->process.AnswerBox = [](const platform::memory::Box&) { return platform::AnswerOk; };
  }
  void MakeStarted() {
    Make();
    Start(copy->program);
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

  // What the user's hand gets from the window.
  void ExpectUsable() {
    auto& windows = copy->Windows();
    ASSERT_FALSE(copy->toolkit.Ending());
    EXPECT_FALSE(copy->program.LoadingSettings);
    EXPECT_TRUE(windows.frmMain->Visible());
    EXPECT_EQ(windows.frmMain->cmdDummy.Caption(), "Ready for command");
    EXPECT_TRUE(copy->user.Select(windows.frmMain->MnuClean));
    EXPECT_TRUE(windows.FrmFrameHistory->Shown());
    EXPECT_TRUE(copy->user.Select(windows.frmMain->mnuWelcome));
    EXPECT_FALSE(windows.FrmFrameHistory->Visible());
    auto& panel = *windows.FrmFrameMain;
    copy->process.ClearBoxes();
    EXPECT_TRUE(copy->user.Click(panel.cmdstop.Enabled() ? panel.cmdstop : panel.cmdstart));
    EXPECT_TRUE(copy->user.Click(panel.cmdstop.Enabled() ? panel.cmdstop : panel.cmdstart));
    EXPECT_NE(panel.cmdstart.Enabled(), panel.cmdstop.Enabled());
    if (panel.cmdstart.Enabled()) {
      EXPECT_TRUE(copy->user.Click(panel.cmdstart));
    }
    EXPECT_THAT(BoxTexts(*copy), IsEmpty());
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

void ExpectRefused(Machine& machine) {
  EXPECT_TRUE(machine.copy->toolkit.Ending());
  EXPECT_THAT(machine.BoxTexts(*machine.copy), ElementsAre(GateBox));
  EXPECT_THAT(machine.world.tray.Icons(), IsEmpty());
}

// The boxes of a start: only the refresh of the counters reports what it cannot read.
void ExpectSilence(const Machine& machine) {
  if (machine.FailedIn(BlockLog)) {
    EXPECT_THAT(machine.BoxTexts(*machine.copy), Each("Type mismatch"));
  } else {
    EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
  }
}

// Runs the act once for each of its calls, failing with access denied, and once more as a missing
// value or key where somebody looks at the code. `prepare` brings a machine to the moment before.
template <class Prepare, class Act, class Expect>
void Sweep(Prepare prepare, Act act, Expect expect) {
  Machine clean;
  prepare(clean);
  const std::vector<std::string> calls = clean.CallsOf([&] { act(clean); });
  EXPECT_GT(calls.size(), 50U);
  for (std::size_t n = 1; n <= calls.size(); ++n) {
    for (const std::int32_t error : ErrorsOf(calls[n - 1])) {
      SCOPED_TRACE("call " + std::to_string(n) + ", error " + std::to_string(error) + ": " +
                   calls[n - 1]);
      Machine machine;
      prepare(machine);
      machine.Fail(n, error, [&] { act(machine); });
      machine.ExpectKeysClosed();
      expect(machine);
      if (testing::Test::HasFailure()) return;
    }
  }
}

// What holds behind every start.
void ExpectStart(Machine& machine) {
  if (machine.FailedRead("\\Internet Explorer \"Version\"") ||
      machine.FailedRead("\\Internet Explorer 0x")) {
    ExpectRefused(machine);
    return;
  }
  ExpectSilence(machine);
  machine.ExpectStarted();
  machine.ExpectUsable();
}

void RunStart(Machine& machine) { Start(machine.copy->program); }

TEST(FaultSweep, AFirstStart) {
  Sweep([](Machine& machine) { machine.Make(); }, RunStart, ExpectStart);
}

TEST(FaultSweep, AStartOverStoredSettings) {
  Sweep(
      [](Machine& machine) {
        machine.StoreChoices();
        machine.Make();
      },
      RunStart, ExpectStart);
}

void PressStop(Machine& machine) {
  EXPECT_TRUE(machine.copy->user.Click(machine.copy->Windows().FrmFrameMain->cmdstop));
}
void PressStart(Machine& machine) {
  EXPECT_TRUE(machine.copy->user.Click(machine.copy->Windows().FrmFrameMain->cmdstart));
}

TEST(FaultSweep, Stop) {
  Sweep([](Machine& machine) { machine.MakeStarted(); }, PressStop,
        [](Machine& machine) {
          EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
          machine.ExpectStopped();
          machine.ExpectUsable();
        });
}

TEST(FaultSweep, StartBehindAStop) {
  Sweep(
      [](Machine& machine) {
        machine.MakeStarted();
        PressStop(machine);
      },
      PressStart,
      [](Machine& machine) {
        EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
        machine.ExpectStarted();
        machine.ExpectUsable();
      });
}

// A later start that finds a copy running: whatever fails of its calls, the running copy stays as
// usable as it was, and the later one ends, or is a copy of its own if it could not know.
TEST(FaultSweep, AStartThatHandsOver) {
  for (std::size_t n = 1; n <= 20; ++n) {
    Machine machine("/graph");
    machine.MakeStarted();
    const auto running = std::move(machine.copy);
    machine.Make();
    machine.Fail(n, platform::ErrorAccessDenied, [&] { RunStart(machine); });
    SCOPED_TRACE("call " + std::to_string(n) + ": " + machine.failed);
    machine.ExpectKeysClosed();
    EXPECT_EQ(machine.copy->toolkit.Ending(), !machine.FailedIs("PreviousInstanceRuns"));
    EXPECT_FALSE(running->toolkit.Ending());
    EXPECT_TRUE(running->user.Select(running->Windows().frmMain->MnuClean));
    EXPECT_TRUE(running->Windows().FrmFrameHistory->Shown());
    EXPECT_THAT(Machine::BoxTexts(*running), IsEmpty());
  }
}

}  // namespace
}  // namespace vantrel::shell
