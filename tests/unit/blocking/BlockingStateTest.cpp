// The switch: what Start and Stop write, in which order, and what they leave alone.
#include <gmock/gmock.h>

#include "blocking/Attach.h"
#include "blocking/BlockingState.h"
#include "statistics/Attach.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"

namespace vantrel::blocking {
namespace {

using platform::HKeyClassesRoot;
using platform::HKeyLocalMachine;
using platform::memory::Refusal;
using test::EngineKey;
using test::ToolbarClassKey;
using test::ToolbarId;
using test::ToolbarKey;
using testing::ElementsAre;
using testing::IsEmpty;

class BlockingState : public test::ComponentFixture {
 protected:
  BlockingState() {
    statistics::AttachStatistics(program);
    AttachBlocking(program);
  }

  windows::FrmFrameMain& Welcome() { return *program.windows.FrmFrameMain; }
  windows::FrmFrameSettings& General() { return *program.windows.FrmFrameSettings; }

  std::optional<std::string> Engine(const std::string& name) const {
    return world.registry.GetString(HKeyLocalMachine, EngineKey, name);
  }
  std::optional<std::string> Toolbar() const {
    return world.registry.GetString(HKeyLocalMachine, ToolbarKey, ToolbarId);
  }
  // All panels exist and the trace is empty: what follows is the operation alone.
  void Settle() {
    Welcome();
    General();
    program.windows.FrmFrameBlockPreferences.EnsureLoaded();
    program.windows.FrmFrameNotification.EnsureLoaded();
    process.Trace().Clear();
  }
};

TEST_F(BlockingState, BeforeTheFirstStartBothButtonsAreEnabled) {
  EXPECT_TRUE(Welcome().cmdstart.Enabled());
  EXPECT_TRUE(Welcome().cmdstop.Enabled());
  EXPECT_FALSE(program.BlockingActive);
}

TEST_F(BlockingState, StartSetsButtonsFlagsAndTheEnginesEntry) {
  program.BlockStopped = 1;
  mnustart_Click(program);
  EXPECT_FALSE(Welcome().cmdstart.Enabled());
  EXPECT_TRUE(Welcome().cmdstop.Enabled());
  EXPECT_TRUE(program.BlockingActive);
  EXPECT_EQ(program.BlockStopped, 0);
  EXPECT_EQ(Number("Block Settings", "GDisabled"), 0U);
  EXPECT_EQ(Engine("Subkey"), "Grimbolt Helper");
  EXPECT_EQ(Engine("Path"), "C:\\Program Files\\Vantrel\\Settings");
  EXPECT_EQ(Toolbar(), "Vantrel Toolbar");
  EXPECT_EQ(world.registry.GetString(HKeyClassesRoot, ToolbarClassKey, ""), "Vantrel Toolbar");
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(BlockingState, TheEntrysTextsHaveNoTerminator) {
  mnustart_Click(program);
  EXPECT_EQ(world.registry.Get(HKeyLocalMachine, EngineKey, "Subkey")->data, "Grimbolt Helper");
  EXPECT_EQ(world.registry.Get(HKeyLocalMachine, ToolbarKey, ToolbarId)->data, "Vantrel Toolbar");
}

TEST_F(BlockingState, StartSavesBeforeItWritesTheEntry) {
  Settle();
  mnustart_Click(program);
  const std::vector<std::string> writes = Writes();
  ASSERT_EQ(writes.size(), 20U);
  EXPECT_EQ(writes[0], "Block Settings \"BpID\" 4 1 0 0 0 -> 0");
  EXPECT_EQ(writes[15], "Block Settings \"Spy\" 4 1 0 0 0 -> 0");
  const std::string engine = "HKLM\\" + std::string(EngineKey);
  EXPECT_EQ(writes[16], engine + " \"Subkey\" 1 \"Grimbolt Helper\" -> 0");
  EXPECT_EQ(writes[17], engine + " \"Path\" 1 \"C:\\Program Files\\Vantrel\\Settings\" -> 0");
  EXPECT_EQ(writes[18], "HKLM\\" + std::string(ToolbarKey) + " \"" + ToolbarId +
                            "\" 1 \"Vantrel Toolbar\" -> 0");
  EXPECT_EQ(writes[19],
            "HKCR\\" + std::string(ToolbarClassKey) + " \"\" 1 \"Vantrel Toolbar\" -> 0");
}

TEST_F(BlockingState, TwoStartsInARowLeaveOneEntry) {
  mnustart_Click(program);
  const auto before = world.registry.Values(HKeyLocalMachine, EngineKey);
  mnustart_Click(program);
  EXPECT_EQ(world.registry.Values(HKeyLocalMachine, EngineKey), before);
  EXPECT_EQ(before.size(), 2U);
}

TEST_F(BlockingState, StartCorrectsAnEntryOfAnotherFolder) {
  world.registry.SetString(HKeyLocalMachine, EngineKey, "Path", "D:\\Elsewhere\\Settings");
  mnustart_Click(program);
  EXPECT_EQ(Engine("Path"), "C:\\Program Files\\Vantrel\\Settings");
}

TEST_F(BlockingState, StartWithTheToolbarBoxClearDeletesTheToolbarsValue) {
  world.registry.SetString(HKeyLocalMachine, ToolbarKey, ToolbarId, "Vantrel Toolbar");
  world.registry.SetString(HKeyClassesRoot, ToolbarClassKey, "", "as it was");
  General().chkGShowToolbar.SetValue(0);
  world.registry.SetString(HKeyLocalMachine, ToolbarKey, ToolbarId, "Vantrel Toolbar");
  mnustart_Click(program);
  EXPECT_EQ(Toolbar(), std::nullopt);
  EXPECT_EQ(world.registry.GetString(HKeyClassesRoot, ToolbarClassKey, ""), "as it was");
  mnustart_Click(program);
  EXPECT_EQ(Toolbar(), std::nullopt) << "also when it was absent";
}

TEST_F(BlockingState, StartWithTheToolbarBoxGrayedAddsTheToolbar) {
  General().chkGShowToolbar.SetValue(2);
  mnustart_Click(program);
  EXPECT_EQ(Toolbar(), "Vantrel Toolbar");
}

TEST_F(BlockingState, TheToolbarsClassIsNotCreated) {
  world.registry.RemoveKey(HKeyClassesRoot, ToolbarClassKey);
  mnustart_Click(program);
  EXPECT_FALSE(world.registry.HasKey(HKeyClassesRoot, ToolbarClassKey));
  EXPECT_EQ(Toolbar(), "Vantrel Toolbar");
}

TEST_F(BlockingState, StopDeletesTheEntryAndThenSaves) {
  mnustart_Click(program);
  process.Trace().Clear();
  mnustop_Click(program);
  EXPECT_TRUE(Welcome().cmdstart.Enabled());
  EXPECT_FALSE(Welcome().cmdstop.Enabled());
  EXPECT_FALSE(program.BlockingActive);
  EXPECT_EQ(program.BlockStopped, 1);
  EXPECT_EQ(Number("Block Settings", "GDisabled"), 1U);
  EXPECT_FALSE(world.registry.HasKey(HKeyLocalMachine, EngineKey));
  const std::vector<std::string>& names = process.Trace().Names();
  EXPECT_THAT(std::vector<std::string>(names.begin(), names.begin() + 8),
              ElementsAre("RegOpenKeyExA", "RegDeleteValueA", "RegCloseKey", "RegOpenKeyExA",
                          "RegDeleteValueA", "RegCloseKey", "RegDeleteKeyA", "RegOpenKeyExA"));
  EXPECT_EQ(BlockSaves(), 1);
}

TEST_F(BlockingState, StopLeavesTheToolbarAndTheTimerAlone) {
  mnustart_Click(program);
  mnustop_Click(program);
  EXPECT_EQ(Toolbar(), "Vantrel Toolbar");
  EXPECT_TRUE(Welcome().Timer1.Enabled());
}

TEST_F(BlockingState, StopWithoutAnEntryReportsNothing) {
  mnustop_Click(program);
  EXPECT_THAT(process.Boxes(), IsEmpty());
  EXPECT_TRUE(Welcome().cmdstart.Enabled());
  EXPECT_FALSE(Welcome().cmdstop.Enabled());
}

TEST_F(BlockingState, StopKeepsAnEntryThatHasSubkeysButNotItsValues) {
  mnustart_Click(program);
  world.registry.MakeKey(HKeyLocalMachine, std::string(EngineKey) + "\\Foreign");
  mnustop_Click(program);
  EXPECT_TRUE(world.registry.HasKey(HKeyLocalMachine, EngineKey));
  EXPECT_THAT(world.registry.Values(HKeyLocalMachine, EngineKey), IsEmpty());
}

TEST_F(BlockingState, RemovingTheEntrySwapsTheHiddenButtons) {
  program.windows.frmMain->cmdADDBHO.SetEnabled(false);
  program.windows.frmMain->cmdRemoveBHO.SetEnabled(true);
  RemoveEngineEntry(program);
  EXPECT_TRUE(program.windows.frmMain->cmdADDBHO.Enabled());
  EXPECT_FALSE(program.windows.frmMain->cmdRemoveBHO.Enabled());
}

TEST_F(BlockingState, StartEnablesTheTimerAgain) {
  Welcome().Timer1.SetEnabled(false);
  mnustart_Click(program);
  EXPECT_TRUE(Welcome().Timer1.Enabled());
}

TEST_F(BlockingState, WritingTheEntryAloneTouchesNoFlagAndNoButton) {
  cmdADDBHO_Click(program);
  EXPECT_EQ(Engine("Subkey"), "Grimbolt Helper");
  EXPECT_FALSE(program.BlockingActive);
  EXPECT_TRUE(Welcome().cmdstart.Enabled());
  EXPECT_EQ(Number("Block Settings", "GDisabled"), std::nullopt);
}

TEST_F(BlockingState, WithoutTheRightsThePanelReadsAsStartedAllTheSame) {
  world.registry.Refuse(HKeyLocalMachine, "", Refusal::Write);
  AsEvent([&] { mnustart_Click(program); });
  EXPECT_FALSE(Welcome().cmdstart.Enabled());
  EXPECT_TRUE(program.BlockingActive);
  EXPECT_FALSE(world.registry.HasKey(HKeyLocalMachine, EngineKey));
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(BlockingState, AnErrorOfTheSaveReachesTheCallerAndEndsTheStart) {
  world.registry.Set(platform::HKeyCurrentUser, Tree("Block Settings"), "BpId", platform::RegSz,
                     "");
  AsEvent([&] { Welcome().cmdstart.Click(); });
  EXPECT_THAT(BoxTexts(),
              ElementsAre("Run-time error '5':\r\n\r\nInvalid procedure call or argument"));
  EXPECT_FALSE(world.registry.HasKey(HKeyLocalMachine, EngineKey));
  EXPECT_TRUE(program.BlockingActive);
}

}  // namespace
}  // namespace vantrel::blocking
