// The Settings panel: each box with its own rule of saving, the toolbar and the script debugger,
// Reset, and the one way to the start-with-Windows entry.
#include <gmock/gmock.h>

#include "blocking/Attach.h"
#include "blocking/GeneralSettingsPanel.h"
#include "launch/Targets.h"
#include "settings/FirstRun.h"
#include "settings/Load.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmcustom.h"

namespace vantrel::blocking {
namespace {

using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using test::ScriptKey;
using test::ToolbarId;
using test::ToolbarKey;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* RunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* RestartText = "The changes may require a restart of Internet Explorer";

class GeneralSettings : public test::ComponentFixture {
 protected:
  GeneralSettings() {
    AttachBlocking(program);
    settings::CheckAndCreateRegitry(program);
    world.registry.MakeKey(HKeyLocalMachine, RunKey);
    process.Trace().Clear();
  }

  windows::FrmFrameSettings& Panel() { return *program.windows.FrmFrameSettings; }
  std::optional<std::string> Toolbar() const {
    return world.registry.GetString(HKeyLocalMachine, ToolbarKey, ToolbarId);
  }
  std::optional<std::string> Script() const {
    return world.registry.GetString(HKeyCurrentUser, ScriptKey, "Disable Script Debugger");
  }
  std::vector<platform::memory::RegistryValue> RunEntries() const {
    return world.registry.Values(HKeyLocalMachine, RunKey);
  }
  void Click(forms::Control& control) {
    AsEvent([&] { control.UserClick(); });
  }
  void BreakGeneralSaves() {
    world.registry.Set(HKeyCurrentUser, Tree("Settings"), "BpId", platform::RegSz, "");
  }
};

TEST_F(GeneralSettings, DesignStates) {
  EXPECT_EQ(Panel().chkGHideSystray.Value(), 0);
  EXPECT_EQ(Panel().chkGSWindows.Value(), 0);
  EXPECT_EQ(Panel().chkGUpdate.Value(), 0);
  EXPECT_EQ(Panel().chkGShowToolbar.Value(), 1);
  EXPECT_EQ(Panel().chkScript.Value(), 1);
  EXPECT_FALSE(Panel().lblviewtoolbar.Visible());
}

TEST_F(GeneralSettings, ThreeBoxesSaveTheWholeSettingsKey) {
  Click(Panel().chkGHideSystray);
  EXPECT_EQ(Number("Settings", "HideSystem"), 1U);
  Click(Panel().chkGUpdate);
  EXPECT_EQ(Number("Settings", "CheckUpdates"), 1U);
  Click(Panel().chkGSWindows);
  EXPECT_EQ(Number("Settings", "StartWithWindows"), 1U);
  EXPECT_EQ(GeneralSaves(), 3);
  EXPECT_EQ(BlockSaves(), 0);
}

TEST_F(GeneralSettings, TheLogBoxSavesTheBlockSettings) {
  Click(Panel().chkGLog);
  EXPECT_EQ(Number("Block Settings", "KeepaLog"), 0U);
  EXPECT_EQ(BlockSaves(), 1);
  EXPECT_EQ(GeneralSaves(), 0);
}

TEST_F(GeneralSettings, NothingIsSavedDuringALoad) {
  program.LoadingSettings = true;
  Click(Panel().chkGHideSystray);
  Click(Panel().chkGUpdate);
  Click(Panel().chkGSWindows);
  Click(Panel().chkGLog);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(GeneralSettings, AnOrdinaryClickOnStartWithWindowsLeavesTheRunKeyAlone) {
  Click(Panel().chkGSWindows);
  Click(Panel().chkGSWindows);
  EXPECT_THAT(RunEntries(), IsEmpty());
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(GeneralSettings, OnlyAFailedSaveSetsTheRunEntry) {
  BreakGeneralSaves();
  Click(Panel().chkGSWindows);
  EXPECT_THAT(BoxTexts(), ElementsAre("Error occured: Invalid procedure call or argument"));
  ASSERT_EQ(RunEntries().size(), 1U);
  EXPECT_EQ(RunEntries()[0].name, "Vantrel");
  EXPECT_EQ(RunEntries()[0].type, platform::RegSz);
  EXPECT_EQ(RunEntries()[0].data, std::string("C:\\Program Files\\Vantrel\\Vantrel.exe") + '\0');
  Click(Panel().chkGSWindows);
  EXPECT_THAT(RunEntries(), IsEmpty());
}

TEST_F(GeneralSettings, SettingTheRunEntryMakesItsCallsInOrderAndLeavesOneHandleOpen) {
  BreakGeneralSaves();
  Panel();
  process.Trace().Clear();
  Click(Panel().chkGSWindows);
  const std::string asked = "HKLM\\" + std::string(RunKey);
  const std::string key = "HKLM\\SOFTWARE" + std::string(RunKey).substr(8);
  const std::vector<std::string>& lines = process.Trace().Lines();
  ASSERT_GE(lines.size(), 6U);
  EXPECT_THAT(
      std::vector<std::string>(lines.end() - 6, lines.end()),
      ElementsAre("RegOpenKeyExA " + asked + " 0x3F -> 0", "RegCreateKeyExA " + key + " 0x3F -> 0",
                  "RegCloseKey " + key + " -> 0", "RegOpenKeyExA " + asked + " 0x3F -> 0",
                  "RegSetValueExA " + key +
                      " \"Vantrel\" 1 \"C:\\Program Files\\Vantrel\\Vantrel.exe" +
                      std::string(1, '\0') + "\" -> 0",
                  "RegCloseKey " + key + " -> 0"));
  EXPECT_EQ(process.OpenKeys(), 1U);
}

TEST_F(GeneralSettings, ARunKeyThatIsRefusedIsToldInBoxes) {
  world.registry.Refuse(HKeyLocalMachine, RunKey, platform::memory::Refusal::All);
  BreakGeneralSaves();
  Click(Panel().chkGSWindows);
  EXPECT_THAT(BoxTexts(), ElementsAre("Error occured: Invalid procedure call or argument",
                                      "RegOpenKey error - 5", "SetValue error - 6"));
}

TEST_F(GeneralSettings, TheOtherBoxesTellAFailedSaveAndDoNoMore) {
  BreakGeneralSaves();
  Click(Panel().chkGHideSystray);
  Click(Panel().chkGUpdate);
  EXPECT_THAT(BoxTexts(), testing::SizeIs(2));
  EXPECT_THAT(RunEntries(), IsEmpty());
}

TEST_F(GeneralSettings, TheToolbarBoxTellsSavesAndActsAtOnce) {
  Click(Panel().chkGShowToolbar);
  EXPECT_THAT(BoxTexts(), ElementsAre(RestartText));
  EXPECT_EQ(process.Boxes()[0].style, platform::StyleInformation);
  EXPECT_EQ(Toolbar(), std::nullopt);
  EXPECT_EQ(BlockSaves(), 1);
  Click(Panel().chkGShowToolbar);
  EXPECT_EQ(Toolbar(), "Vantrel Toolbar");
  EXPECT_TRUE(Panel().lblviewtoolbar.Visible());
  Click(Panel().chkGShowToolbar);
  EXPECT_EQ(Toolbar(), std::nullopt);
  EXPECT_FALSE(Panel().lblviewtoolbar.Visible());
}

TEST_F(GeneralSettings, TheToolbarBoxTellsFirstThenSavesThenWritesTheEntry) {
  Panel().chkGShowToolbar.SetValue(0);
  process.Trace().Clear();
  process.WhileBoxIsUp = [&](const auto&) { EXPECT_THAT(Writes(), IsEmpty()); };
  Click(Panel().chkGShowToolbar);
  process.WhileBoxIsUp = nullptr;
  const std::vector<std::string> writes = Writes();
  ASSERT_EQ(writes.size(), 18U);
  EXPECT_EQ(writes[0], "Block Settings \"BpID\" 4 1 0 0 0 -> 0");
  EXPECT_EQ(ForeignWrites(), std::vector<std::string>(writes.end() - 2, writes.end()));
}

TEST_F(GeneralSettings, TheToolbarBoxActsAlsoWhenItsSaveFails) {
  world.registry.SetString(HKeyLocalMachine, ToolbarKey, ToolbarId, "Vantrel Toolbar");
  world.registry.Set(HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz, "");
  Click(Panel().chkGShowToolbar);
  EXPECT_THAT(BoxTexts(),
              ElementsAre(RestartText, "Error occured: Invalid procedure call or argument"));
  EXPECT_EQ(Toolbar(), std::nullopt);
}

TEST_F(GeneralSettings, AGrayedToolbarOrScriptBoxCountsAsClear) {
  world.registry.SetString(HKeyLocalMachine, ToolbarKey, ToolbarId, "Vantrel Toolbar");
  Panel().lblviewtoolbar.SetVisible(true);
  Panel().chkGShowToolbar.SetValue(2);
  EXPECT_EQ(Toolbar(), std::nullopt);
  EXPECT_FALSE(Panel().lblviewtoolbar.Visible());
  Panel().chkScript.SetValue(2);
  EXPECT_EQ(Script(), "no");
}

TEST_F(GeneralSettings, TheToolbarBoxReachesTheStoreWithTheNextGeneralSave) {
  Click(Panel().chkGShowToolbar);
  EXPECT_EQ(GeneralSaves(), 0);
  EXPECT_EQ(Number("Settings", "ShowBrowser"), 1U);
  Click(Panel().chkGUpdate);
  EXPECT_EQ(Number("Settings", "ShowBrowser"), 0U);
}

TEST_F(GeneralSettings, AStoredHiddenToolbarTellsAndRemovesTheEntryAtEveryLoad) {
  world.registry.SetString(HKeyLocalMachine, ToolbarKey, ToolbarId, "Vantrel Toolbar");
  SetNumber("Settings", "BpId", 1);
  SetNumber("Settings", "ShowBrowser", 0);
  program.LoadingSettings = true;
  settings::LoadGeneralSettings(program);
  EXPECT_THAT(BoxTexts(), ElementsAre(RestartText));
  EXPECT_EQ(Toolbar(), std::nullopt);
  EXPECT_EQ(BlockSaves(), 0);
}

TEST_F(GeneralSettings, TheScriptBoxWritesTheBrowsersOwnValueEvenDuringALoad) {
  EXPECT_EQ(Script(), "yes");
  Click(Panel().chkScript);
  EXPECT_EQ(Script(), "no");
  program.LoadingSettings = true;
  Click(Panel().chkScript);
  EXPECT_EQ(Script(), "yes");
  EXPECT_THAT(Writes(), testing::SizeIs(2));
}

TEST_F(GeneralSettings, ResetAtTheDefaultsFiresNothing) {
  EXPECT_EQ(Panel().chkGLog.Value(), 1);
  Click(Panel().cmdresetSettings);
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(GeneralSettings, ResetSetsTheSixBoxesInOrderThroughTheirHandlers) {
  Click(Panel().chkGLog);
  Click(Panel().chkGShowToolbar);
  Click(Panel().chkGUpdate);
  Click(Panel().chkGSWindows);
  Click(Panel().chkGHideSystray);
  Click(Panel().chkScript);
  program.windows.FrmFrameMain->ChkMinimize.SetValue(1);
  process.ClearBoxes();
  process.Trace().Clear();
  std::vector<std::string> changed;
  toolkit.Trace = [&](const std::string& line) {
    if (line.find(" Value=") != std::string::npos) changed.push_back(line.substr(17, 9));
  };
  Click(Panel().cmdresetSettings);
  EXPECT_THAT(changed, ElementsAre("chkGLog V", "chkGShowT", "chkGUpdat", "chkGSWind", "chkGHideS",
                                   "chkScript"));
  EXPECT_THAT(BoxTexts(), ElementsAre(RestartText));
  EXPECT_EQ(Toolbar(), "Vantrel Toolbar");
  EXPECT_EQ(BlockSaves(), 2);
  EXPECT_EQ(GeneralSaves(), 3);
  EXPECT_EQ(Script(), "yes");
  EXPECT_EQ(program.windows.FrmFrameMain->ChkMinimize.Value(), 1);
  EXPECT_EQ(Number("Settings", "Minimize"), 1U);
}

TEST_F(GeneralSettings, CheckUpdateOpensTheUpdatesPage) {
  Click(Panel().Command4);
  ASSERT_EQ(world.programs.Started().size(), 1U);
  EXPECT_EQ(world.programs.Started()[0].arguments,
            "http://" + std::string(launch::FirstHost) + "/vantrel/updates.html");
}

TEST_F(GeneralSettings, CustomizeToolbarShowsItsWindowAndReturns) {
  Click(Panel().cmdtoolbar);
  EXPECT_TRUE(program.windows.frmcustom->Visible());
  EXPECT_EQ(toolkit.ModalForm(), nullptr);
}

}  // namespace
}  // namespace vantrel::blocking
