#include <gmock/gmock.h>

#include "shell/Lifetime.h"
#include "unit/shell/ShellTest.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameLog.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::shell {
namespace {

using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using test::BlockSettings;
using test::BrowserKey;
using test::Settings;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* StaleKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper "
    "Objects\\{CD701E6C-90D2-416E-9F3B-FFE9157D28EF}";

class Startup : public test::ShellTest {
 protected:
  void SetVersion(const std::string& version) {
    world.registry.SetString(HKeyLocalMachine, BrowserKey, "Version", version);
  }
};

TEST_F(Startup, ANormalStartEndsWithBlockingStartedOnTheWelcomePanel) {
  auto copy = StartCopy();
  auto& windows = copy->Windows();
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain"));
  EXPECT_FALSE(windows.FrmFrameMain->cmdstart.Enabled());
  EXPECT_TRUE(windows.FrmFrameMain->cmdstop.Enabled());
  EXPECT_TRUE(copy->program.BlockingActive);
  EXPECT_EQ(copy->program.BlockStopped, 0);
  EXPECT_FALSE(copy->program.LoadingSettings);
  EXPECT_TRUE(copy->program.IsWindowsNT);
  ASSERT_EQ(world.tray.Icons().size(), 1U);
  EXPECT_EQ(world.tray.Icons()[0].tip, "Vantrel");
  EXPECT_EQ(windows.frmMain->cmdDummy.Caption(), "Ready for command");
  EXPECT_TRUE(windows.frmMain->Visible());
  EXPECT_EQ(windows.frmMain->lblVCP1.Caption(), "Welcome - Qorvel Software Vantrel ");
  EXPECT_EQ(windows.frmMain->Width(), 9300);
  EXPECT_EQ(windows.frmMain->Height(), 6998);
  EXPECT_TRUE(EngineEntryStands());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  EXPECT_THAT(BoxTexts(*copy), IsEmpty());
}

TEST_F(Startup, ABrowserWithoutAFolderOfPlugInsIsSpokenOfOnceAndTheStartGoesOn) {
  world.files.Remove(test::PluginFolder);
  auto copy = StartCopy();
  EXPECT_THAT(BoxTexts(*copy), ElementsAre("Some error occured: Path not found"));
  EXPECT_TRUE(copy->program.BlockingActive);
  EXPECT_TRUE(copy->Windows().frmMain->Visible());
}

std::vector<std::string> LoadedNames(const test::Copy& copy) {
  std::vector<std::string> names;
  for (const forms::Form* form : copy.toolkit.LoadedForms()) names.push_back(form->Name());
  return names;
}

TEST_F(Startup, TheWindowsAreCreatedInTheirOrder) {
  { StartCopy(); }
  auto copy = StartCopy();
  EXPECT_THAT(
      LoadedNames(*copy),
      ElementsAre("frmMain", "FrmFrameMain", "FrmFrameBlockPreferences", "FrmFrameSettings",
                  "FrmFrameHistory", "FrmFrameAllowList", "FrmFrameNotification",
                  "FrmFrameIESettings", "FrmFrameIEPlugin", "FrmFrameGraph", "FrmFrameLog"));
}

// The first run takes the notification's values from their boxes, which makes that panel sooner.
TEST_F(Startup, OnAnEmptyStoreTheFirstRunTouchesTheNotificationPanelSooner) {
  auto copy = StartCopy();
  EXPECT_THAT(
      LoadedNames(*copy),
      ElementsAre("frmMain", "FrmFrameMain", "FrmFrameBlockPreferences", "FrmFrameSettings",
                  "FrmFrameNotification", "FrmFrameHistory", "FrmFrameAllowList",
                  "FrmFrameIESettings", "FrmFrameIEPlugin", "FrmFrameGraph", "FrmFrameLog"));
}

TEST_F(Startup, TheBrowserGateLooksAtOneCharacter) {
  for (const char* refused : {"10.0", "11.0.9600", "1", "5.5", "", "x6", " 6"}) {
    SetVersion(refused);
    auto copy = StartCopy();
    ASSERT_EQ(copy->process.Boxes().size(), 1U) << refused;
    EXPECT_EQ(copy->process.Boxes()[0],
              (platform::memory::Box{0,
                                     "Vantrel does not support Internet Explorer version lesser "
                                     "than 6.0. Please install a higher version.",
                                     "Vantrel", 16}));
    EXPECT_TRUE(copy->toolkit.Ending()) << refused;
  }
  for (const char* accepted : {"6", "7.0.5730", "8", "9.11"}) {
    SetVersion(accepted);
    auto copy = StartCopy();
    EXPECT_FALSE(copy->toolkit.Ending()) << accepted;
    EXPECT_THAT(BoxTexts(*copy), IsEmpty()) << accepted;
  }
}

TEST_F(Startup, AMissingVersionIsRefusedWithoutCreatingAnySettings) {
  world.registry.RemoveValue(HKeyLocalMachine, BrowserKey, "Version");
  auto copy = StartCopy();
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_EQ(copy->process.Boxes().size(), 1U);
  EXPECT_FALSE(world.registry.HasKey(HKeyCurrentUser, test::RootKey));
  EXPECT_THAT(world.tray.Icons(), IsEmpty());
}

TEST_F(Startup, AStaleEnginesEntryIsRemoved) {
  world.registry.MakeKey(HKeyLocalMachine, StaleKey);
  auto copy = StartCopy();
  EXPECT_FALSE(world.registry.HasKey(HKeyLocalMachine, StaleKey));
}

TEST_F(Startup, AnAbsentScriptDebuggerValueBecomesNo) {
  world.registry.RemoveValue(HKeyCurrentUser, test::ScriptKey, "Disable Script Debugger");
  auto copy = StartCopy();
  EXPECT_EQ(copy->Windows().FrmFrameSettings->chkScript.Value(), 0);
  EXPECT_EQ(world.registry.Get(HKeyCurrentUser, test::ScriptKey, "Disable Script Debugger")->data,
            "no");
}

TEST_F(Startup, TheScriptDebuggersYesIsExactAsToCase) {
  world.registry.SetString(HKeyCurrentUser, test::ScriptKey, "Disable Script Debugger", "Yes");
  auto copy = StartCopy();
  EXPECT_EQ(copy->Windows().FrmFrameSettings->chkScript.Value(), 0);
  EXPECT_EQ(world.registry.Get(HKeyCurrentUser, test::ScriptKey, "Disable Script Debugger")->data,
            "no");
}

TEST_F(Startup, WithMinimizeStoredTheWindowFlashesUpAndIsHidden) {
  { StartCopy(); }
  world.registry.SetDword(HKeyCurrentUser, Settings, "BpID", 1);
  world.registry.SetDword(HKeyCurrentUser, Settings, "Minimize", 1);
  auto copy = MakeCopy();
  std::vector<std::string> seen;
  copy->toolkit.Trace = [&seen](const std::string& line) {
    if (line == "frmMain Show" || line == "frmMain Hide") seen.push_back(line);
  };
  Start(copy->program);
  EXPECT_THAT(seen, ElementsAre("frmMain Show", "frmMain Hide"));
  EXPECT_FALSE(copy->Windows().frmMain->Visible());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

TEST_F(Startup, WithoutTheMarkerTheGeneralBoxesKeepTheirDesignStates) {
  auto copy = StartCopy();
  auto& panel = *copy->Windows().FrmFrameSettings;
  EXPECT_EQ(panel.chkGSWindows.Value(), 0);
  EXPECT_EQ(Number(Settings, "StartWithWindows"), 1U);
  EXPECT_EQ(panel.chkGShowToolbar.Value(), 1);
  EXPECT_TRUE(panel.lblviewtoolbar.Visible());
  EXPECT_FALSE(Number(Settings, "BpId").has_value());
}

TEST_F(Startup, AFailureOfTheLoadIsSilentAndStartUpGoesOn) {
  { StartCopy(); }
  world.registry.RemoveValue(HKeyCurrentUser, BlockSettings, "Spy");
  world.registry.SetDword(HKeyCurrentUser, BlockSettings, "Flash", 0);
  world.registry.SetDword(HKeyCurrentUser, Settings, "BpID", 1);
  world.registry.SetDword(HKeyCurrentUser, Settings, "HideSystem", 1);
  auto copy = StartCopy();
  // Everything up to Spy was loaded, the general settings were not.
  EXPECT_EQ(copy->Windows().FrmFrameBlockPreferences->chkBFlash.Value(), 0);
  EXPECT_EQ(copy->Windows().FrmFrameSettings->chkGHideSystray.Value(), 0);
  EXPECT_FALSE(copy->program.LoadingSettings);
  EXPECT_TRUE(copy->program.BlockingActive);
  EXPECT_THAT(BoxTexts(*copy), IsEmpty());
}

TEST_F(Startup, APanelCommandAtFirstStartLeavesOnlyItsTrace) {
  auto copy = StartCopy("/CLEAN");
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain"));
  EXPECT_EQ(copy->Windows().frmMain->Text1.Text(), "Excuted with command: /CLEAN");
  EXPECT_EQ(copy->Windows().frmMain->lblVCP1.Caption(), "Welcome - Qorvel Software Vantrel ");
}

TEST_F(Startup, ToggleAtFirstStartPressesStartBeforeTheSettingsExist) {
  auto copy = StartCopy("/onoff");
  EXPECT_TRUE(copy->program.BlockingActive);
  EXPECT_TRUE(EngineEntryStands());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  EXPECT_TRUE(copy->Windows().frmMain->Visible());
}

// The key as a whole is saved before the start has looked at it.
TEST_F(Startup, ToggleAtFirstStartSavesTheDesignStatesTwice) {
  auto copy = StartCopy("/onoff");
  long saves = 0;
  for (const std::string& line : copy->process.Trace().LinesOf("RegSetValueExA")) {
    saves += line.find("Block Settings \"BpID\"") != std::string::npos ? 1 : 0;
  }
  EXPECT_EQ(saves, 2);
  EXPECT_EQ(Number(BlockSettings, "KeepaLog"), 0U) << "there is no first run that ticks the log";
  EXPECT_EQ(copy->Windows().FrmFrameSettings->chkGLog.Value(), 0);
  EXPECT_EQ(Number(Settings, "HideSystem"), 0U) << "the other keys are filled";
}

TEST_F(Startup, ToggleAtAStartPutsTheDesignStatesOverAStoredTree) {
  { StartCopy(); }
  world.registry.SetDword(HKeyCurrentUser, BlockSettings, "Popup", 0);
  world.registry.SetDword(HKeyCurrentUser, BlockSettings, "Adv", 1);
  world.registry.SetString(HKeyCurrentUser, BlockSettings, "NSounds", "pop");
  world.registry.SetDword(HKeyCurrentUser, Settings, "BpID", 1);
  world.registry.SetDword(HKeyCurrentUser, Settings, "HideSystem", 1);
  auto copy = StartCopy("/onoff");
  for (const test::ExpectedSetting& setting : test::ExpectedSettings) {
    if (!HasBox(setting) || !IsIn(setting, "Block Settings")) continue;
    EXPECT_EQ(Number(BlockSettings, setting.Name), static_cast<unsigned>(setting.Design))
        << setting.Name;
  }
  // No sound is selected, and its value of no bytes ends the load, as any such value does.
  EXPECT_EQ(world.registry.Get(HKeyCurrentUser, BlockSettings, "NSounds")->data, "");
  EXPECT_EQ(copy->Windows().FrmFrameSettings->chkGHideSystray.Value(), 0);
  EXPECT_EQ(Number(Settings, "HideSystem"), 1U);
  EXPECT_THAT(BoxTexts(*copy), IsEmpty());
}

TEST_F(Startup, MessagesAreLetThroughAfterEachPanel) {
  { StartCopy(); }  // Over a stored tree no panel is made before its turn.
  auto copy = MakeCopy();
  std::vector<std::string> seen;
  const auto pumped = [&] {
    const bool behind = !copy->process.Trace().LinesOf("GetVersionExA").empty();
    seen.emplace_back(behind ? "too late" : "pumped");
  };
  copy->toolkit.Trace = [&](const std::string& line) {
    if (!line.ends_with(" Load") || !line.starts_with("FrmFrame")) return;
    if (line == "FrmFrameMain Load") return;
    seen.push_back(line);
    copy->toolkit.WhenPumped(pumped);
  };
  Start(copy->program);
  // The Graph panel's own first refresh makes the Detail Log panel.
  EXPECT_THAT(
      seen, ElementsAre("FrmFrameBlockPreferences Load", "pumped", "FrmFrameSettings Load",
                        "pumped", "FrmFrameHistory Load", "pumped", "FrmFrameAllowList Load",
                        "pumped", "FrmFrameNotification Load", "pumped", "FrmFrameIESettings Load",
                        "pumped", "FrmFrameIEPlugin Load", "pumped", "FrmFrameGraph Load",
                        "FrmFrameLog Load", "pumped", "pumped"));
}

TEST_F(Startup, TheLoadRunsUnderItsFlagAndTicksTheScriptBoxBehindIt) {
  auto copy = StartCopy();
  copy->program.BlockStopped = 0;
  copy->Windows().FrmFrameSettings->chkScript.SetValue(0);
  world.registry.SetDword(HKeyCurrentUser, BlockSettings, "Popup", 0);
  std::vector<std::string> seen;
  copy->toolkit.Trace = [&](const std::string& line) {
    if (line.find(".chkBPopup Value") == std::string::npos &&
        line.find(".chkScript Value") == std::string::npos) {
      return;
    }
    seen.push_back(line + (copy->program.LoadingSettings ? " while loading, " : ", ") +
                   std::to_string(copy->program.BlockStopped));
  };
  LoadInitialSettings(copy->program);
  EXPECT_THAT(seen, ElementsAre("FrmFrameBlockPreferences.chkBPopup Value=0 while loading, 1",
                                "FrmFrameSettings.chkScript Value=1, 1"));
  EXPECT_FALSE(copy->program.LoadingSettings);
}

TEST_F(Startup, ALoadThatFailsLeavesTheScriptBoxAlone) {
  auto copy = StartCopy();
  copy->program.BlockStopped = 0;
  copy->Windows().FrmFrameSettings->chkScript.SetValue(0);
  world.registry.RemoveValue(HKeyCurrentUser, BlockSettings, "Spy");
  LoadInitialSettings(copy->program);
  EXPECT_EQ(copy->Windows().FrmFrameSettings->chkScript.Value(), 0);
  EXPECT_EQ(copy->program.BlockStopped, 1);
  EXPECT_FALSE(copy->program.LoadingSettings);
}

TEST_F(Startup, AStoredTwoIsNeitherSetNorClear) {
  { StartCopy(); }
  world.registry.SetDword(HKeyCurrentUser, Settings, "BpID", 1);
  for (const char* name : {"ShowBrowser", "Minimize", "HideSystem"}) {
    world.registry.SetDword(HKeyCurrentUser, Settings, name, 2);
  }
  auto copy = StartCopy();
  EXPECT_TRUE(copy->Windows().frmMain->Visible());
  EXPECT_FALSE(copy->Windows().FrmFrameSettings->lblviewtoolbar.Visible());
  // The box's own handler takes the toolbar away, and Start adds it again.
  EXPECT_THAT(BoxTexts(*copy),
              ElementsAre("The changes may require a restart of Internet Explorer"));
  EXPECT_EQ(world.registry.GetString(HKeyLocalMachine, test::ToolbarKey, test::ToolbarId),
            "Vantrel Toolbar");
  EXPECT_TRUE(copy->user.Close(*copy->Windows().frmMain));
  EXPECT_TRUE(copy->toolkit.Ending()) << "only 1 hides the window to the tray";
}

TEST_F(Startup, AStoreThatCanHaveNoBlockLogShowsTheDesignTextsAndTheirTotal) {
  world.registry.Refuse(HKeyCurrentUser, "", platform::memory::Refusal::Write);
  auto copy = StartCopy();
  EXPECT_EQ(copy->Windows().FrmFrameGraph->txtPop.Text(), "59");
  EXPECT_EQ(copy->Windows().FrmFrameMain->lblno.Caption(), "285");
  EXPECT_EQ(copy->Windows().FrmFrameGraph->lbltotallog.Caption(), "Total: 285 Ads blocked.");
  EXPECT_EQ(copy->Windows().FrmFrameLog->lstLog.Item(1).Sub(1).Text, "59");
  EXPECT_THAT(BoxTexts(*copy), IsEmpty());
}

TEST_F(Startup, TheToolbarCommandAtFirstStartLeavesTheDialogAlone) {
  auto copy = StartCopy("/customtoolbar");
  EXPECT_FALSE(copy->Windows().frmMain->Visible());
  EXPECT_TRUE(copy->Windows().frmcustom->Visible());
  EXPECT_TRUE(copy->program.BlockingActive);
}

TEST_F(Startup, AnErrorThatNothingTrapsEndsInABoxAndAUsableWindow) {
  world.registry.Set(HKeyCurrentUser, BlockSettings, "BpId", platform::RegDword, "");
  auto copy = StartCopy();
  EXPECT_THAT(BoxTexts(*copy),
              ElementsAre("Run-time error '5':\r\n\r\nInvalid procedure call or argument"));
  EXPECT_FALSE(copy->toolkit.Ending());
  EXPECT_TRUE(copy->Windows().frmMain->Visible());
  EXPECT_TRUE(copy->user.Select(copy->Windows().frmMain->MnuClean));
  EXPECT_TRUE(copy->Windows().FrmFrameHistory->Visible());
}

TEST_F(Startup, AnErrorBehindTheLoadBringsBackAWindowThatStartsHidden) {
  { StartCopy(); }
  world.registry.SetDword(HKeyCurrentUser, Settings, "BpID", 1);
  world.registry.SetDword(HKeyCurrentUser, Settings, "Minimize", 1);
  world.registry.Set(HKeyCurrentUser, test::ScriptKey, "Disable Script Debugger", platform::RegSz,
                     "");
  auto copy = StartCopy();
  EXPECT_THAT(BoxTexts(*copy),
              ElementsAre("Run-time error '5':\r\n\r\nInvalid procedure call or argument"));
  EXPECT_TRUE(copy->Windows().frmMain->Visible());
}

// A system that makes no window.
struct RefusingToolkit : forms::headless::Toolkit {
  using Toolkit::Toolkit;
  std::unique_ptr<forms::FormPeer> MakeWindow(forms::Form&) override {
    ++Asked;
    throw text::RuntimeError(text::ErrorNumber::OutOfMemory);
  }
  int Asked = 0;
};

TEST_F(Startup, AMainWindowThatCannotBeMadeIsNotTriedAgain) {
  platform::memory::Process process(world);
  RefusingToolkit toolkit(world.desktop, world.clock, process.Id());
  program::Program program(process.Platform(), toolkit);
  AttachProgram(program);
  Start(program);
  EXPECT_EQ(toolkit.Asked, 1);
  ASSERT_EQ(process.Boxes().size(), 1U);
  EXPECT_EQ(process.Boxes()[0].text, "Run-time error '7':\r\n\r\nOut of memory");
  EXPECT_FALSE(program.windows.frmMain.Loaded());
  Finish(program);
  EXPECT_EQ(toolkit.Asked, 1);
  EXPECT_EQ(process.Boxes().size(), 1U);
}

TEST_F(Startup, AHandedOverStartHasATrayIconOfItsOwnAndWritesDisabled) {
  auto first = StartCopy();
  ASSERT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  auto second = MakeCopy("/clean");
  Start(second->program);
  EXPECT_TRUE(second->toolkit.Ending());
  EXPECT_THAT(second->process.Trace().LinesOf("Shell_NotifyIconA"), testing::SizeIs(3));
  EXPECT_EQ(world.tray.Icons().size(), 1U);
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  EXPECT_TRUE(first->Windows().FrmFrameHistory->Visible());
  // No defaults and no further panel.
  EXPECT_THAT(second->process.Trace().LinesOf("RegCreateKeyExA"), IsEmpty());
}

// The root's folder ends in a backslash, which stands beside the literal's own.
TEST_F(Startup, AProgramInADrivesRootStartsAndOpensWhatLiesBesideIt) {
  auto copy = MakeCopy("", "C:\\Vantrel.exe");
  Start(copy->program);
  EXPECT_EQ(world.registry.GetString(HKeyLocalMachine, test::EngineKey, "Path"), "C:\\\\Settings");
  auto& windows = copy->Windows();
  copy->toolkit.AtBorder([&] { windows.FrmFrameMain->Label6.Click(); });
  ASSERT_TRUE(copy->user.Select(windows.frmMain->submnuLogFile));
  world.files.Put("C:\\Settings\\log.txt", "x");
  ASSERT_TRUE(copy->user.Select(windows.frmMain->submnuLogFile));
  std::vector<std::string> opened;
  for (const auto& started : world.programs.Started()) opened.push_back(started.arguments);
  EXPECT_THAT(opened, ElementsAre("\"C:\\\\help\\welcome.htm\"", "\"C:\\/Settings/Log.txt\""));
  EXPECT_THAT(BoxTexts(*copy), IsEmpty());
}

TEST_F(Startup, ACommandThatArrivesMeanwhileIsCarriedOutAndTheStartGoesOn) {
  auto copy = MakeCopy();
  bool shown = false;
  copy->toolkit.WhenPumped([&] {
    const auto button = world.desktop.FindByCaption("Ready for command");
    ASSERT_NE(button, 0U);
    world.desktop.SendText(button, 12, 0, "/notify");
    world.desktop.Send({button, 245, 0, 0, nullptr});
    shown = copy->Windows().FrmFrameNotification->Visible();
  });
  Start(copy->program);
  EXPECT_TRUE(shown);
  // The start hides the panels that it has loaded, whoever has shown them.
  EXPECT_FALSE(copy->Windows().FrmFrameNotification->Visible());
  EXPECT_TRUE(EngineEntryStands());
  EXPECT_EQ(copy->Windows().frmMain->cmdDummy.Caption(), "Ready for command");
  EXPECT_EQ(copy->toolkit.LoadedForms().size(), 11U);
  EXPECT_THAT(BoxTexts(*copy), IsEmpty());
}

TEST_F(Startup, AnEndThatArrivesMeanwhileIsTheEnd) {
  using Leave = void (*)(test::Copy&);
  const Leave ways[] = {
      [](test::Copy& copy) {
        copy.toolkit.AtBorder([&copy] { copy.Windows().frmMain->MnuExit.UserClick(); });
      },
      [](test::Copy& copy) { copy.toolkit.UserCloses(*copy.Windows().frmMain); },
  };
  for (const Leave leave : ways) {
    auto copy = MakeCopy();
    copy->toolkit.WhenPumped([&] { leave(*copy); });
    Start(copy->program);
    EXPECT_TRUE(copy->toolkit.Ending());
    EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
    EXPECT_THAT(world.tray.Icons(), IsEmpty());
    EXPECT_FALSE(EngineEntryStands());
    EXPECT_THAT(BoxTexts(*copy), IsEmpty());
  }
}

TEST_F(Startup, ATrayMenuThatIsOpenedMeanwhileIsDismissedAndTheStartGoesOn) {
  auto copy = MakeCopy();
  int menus = 0;
  copy->toolkit.ChooseFromPopup = [&menus](forms::Menu&) -> forms::Menu* {
    ++menus;
    return nullptr;
  };
  copy->toolkit.WhenPumped([&] { world.tray.Mouse(world.desktop, world.tray.Icons().at(0), 517); });
  Start(copy->program);
  EXPECT_EQ(menus, 1);
  EXPECT_TRUE(EngineEntryStands());
  EXPECT_TRUE(copy->Windows().frmMain->Visible());
}

TEST_F(Startup, AVersionThatCannotBeReadOpensNoGate) {
  world.registry.Set(HKeyLocalMachine, BrowserKey, "Version", platform::RegSz, "");
  auto copy = StartCopy();
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_THAT(BoxTexts(*copy),
              ElementsAre("Vantrel does not support Internet Explorer version lesser than 6.0. "
                          "Please install a higher version."));
  EXPECT_FALSE(world.registry.HasKey(HKeyCurrentUser, test::RootKey));
}

TEST_F(Startup, TheVersionTellsWhetherItIsNt) {
  auto copy = StartCopy();
  for (const std::uint32_t platform : {0U, 1U, 2U}) {
    world.version.platformId = platform;
    copy->program.IsWindowsNT = platform != 2;
    GetOSVer(copy->program);
    EXPECT_EQ(copy->program.IsWindowsNT, platform == 2) << platform;
  }
  // What is unknown or cannot be asked changes nothing.
  world.version.platformId = 3;
  GetOSVer(copy->program);
  EXPECT_TRUE(copy->program.IsWindowsNT);
  world.version.platformId = 1;
  copy->process.Faults().FailEvery("GetVersionExA", 87);
  GetOSVer(copy->program);
  EXPECT_TRUE(copy->program.IsWindowsNT);
}

}  // namespace
}  // namespace vantrel::shell
