// From the start of the process to the idle control panel, on the real registry.
#include "support/FirstRun.h"
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

using StartTest = ProgramTest;

TEST_F(StartTest, FirstStartOnAnEmptyStoreWritesTheWholeTreeAndSwitchesBlockingOn) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_EQ(Difference(FirstRunTree(), ReadTree(HKEY_CURRENT_USER, RootKey)), "");
  EXPECT_EQ(Read(HKEY_LOCAL_MACHINE, EngineKey, "Subkey"), Text("Grimbolt Helper"));
  EXPECT_EQ(Read(HKEY_LOCAL_MACHINE, EngineKey, "Path"), Text(ProgramFolder() + "\\Settings"));
  EXPECT_EQ(Read(HKEY_LOCAL_MACHINE, ToolbarKey, ToolbarId), Text("Vantrel Toolbar"));
}

TEST_F(StartTest, AfterANormalStartTheWelcomePanelShowsAndStopIsOffered) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_TRUE(program.IsVisible("frmMain"));
  EXPECT_TRUE(program.IsVisible("FrmFrameMain"));
  EXPECT_FALSE(program.IsVisible("FrmFrameHistory"));
  EXPECT_FALSE(program.IsEnabled("FrmFrameMain.cmdstart"));
  EXPECT_TRUE(program.IsEnabled("FrmFrameMain.cmdstop"));
  EXPECT_EQ(program.TextOf("frmMain.lblVCP1"), "Welcome - Qorvel Software Vantrel ");
  EXPECT_EQ(program.TextOf("frmMain"), "Qorvel Software Vantrel");
}

TEST_F(StartTest, AStartOverStoredSettingsShowsAndKeepsThem) {
  {
    Running first;
    ASSERT_TRUE(first.WaitUntilIdle());
  }
  Write(HKEY_CURRENT_USER, BlockSettings, "Flash", Dword(0));
  Write(HKEY_CURRENT_USER, BlockSettings, "ShowNotification", Dword(1));
  Write(HKEY_CURRENT_USER, BlockSettings, "NSounds", Text("pop2"));
  Write(HKEY_CURRENT_USER, Settings, "BpID", Dword(1));
  Write(HKEY_CURRENT_USER, Settings, "HideSystem", Dword(1));
  const Tree before = ReadTree(HKEY_CURRENT_USER, RootKey);
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_EQ(program.CheckOf("FrmFrameBlockPreferences.chkBFlash"), 0);
  EXPECT_EQ(program.CheckOf("FrmFrameNotification.chkNW"), 1);
  EXPECT_EQ(program.TextOf("FrmFrameNotification.cmbsound"), "pop2");
  EXPECT_EQ(program.CheckOf("FrmFrameSettings.chkGHideSystray"), 1);
  EXPECT_EQ(program.CheckOf("FrmFrameSettings.chkGSWindows"), 1);
  EXPECT_EQ(Difference(before, ReadTree(HKEY_CURRENT_USER, RootKey)), "");
}

TEST_F(StartTest, VersionTenIsRefusedLikeVersionOne) {
  Write(HKEY_LOCAL_MACHINE, BrowserKey, "Version", Text("10.0"));
  Running program;
  const auto box = program.WaitForBox();
  ASSERT_TRUE(box);
  EXPECT_EQ(box->title, "Vantrel");
  EXPECT_EQ(box->text,
            "Vantrel does not support Internet Explorer version lesser than 6.0. Please install a "
            "higher version.");
  ASSERT_TRUE(program.Answer(*box));
  EXPECT_TRUE(program.WaitForExit());
  EXPECT_FALSE(KeyExists(HKEY_CURRENT_USER, RootKey));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
}

TEST_F(StartTest, AMissingVersionIsRefusedWithoutCreatingAnySettings) {
  DeleteValue(HKEY_LOCAL_MACHINE, BrowserKey, "Version");
  Running program;
  const auto box = program.WaitForBox();
  ASSERT_TRUE(box);
  ASSERT_TRUE(program.Answer(*box));
  EXPECT_TRUE(program.WaitForExit());
  EXPECT_FALSE(KeyExists(HKEY_CURRENT_USER, RootKey));
}

TEST_F(StartTest, ASecondStartBringsTheFirstForwardAndLeaves) {
  Running first;
  ASSERT_TRUE(first.WaitUntilIdle());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  Running second;
  EXPECT_TRUE(second.WaitForExit(30000));
  EXPECT_TRUE(first.Alive());
  EXPECT_TRUE(first.IsVisible("frmMain"));
  EXPECT_EQ(first.TextOf("frmMain.cmdDummy"), "Ready for command");
  EXPECT_EQ(first.TextOf("frmMain.Text1"), "Excuted with command: \r\nExcuted with command: ");
  // The second copy writes it on its way out.
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
}

TEST_F(StartTest, WithMinimizeStoredTheWindowEndsHiddenAndBlockingStarted) {
  {
    Running first;
    ASSERT_TRUE(first.WaitUntilIdle());
  }
  Write(HKEY_CURRENT_USER, Settings, "BpID", Dword(1));
  Write(HKEY_CURRENT_USER, Settings, "Minimize", Dword(1));
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_FALSE(program.IsVisible("frmMain"));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

TEST_F(StartTest, StopAndStartMoveTheEnginesEntryAndGDisabled) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ASSERT_TRUE(program.Click("FrmFrameMain.cmdstop"));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  EXPECT_TRUE(program.IsEnabled("FrmFrameMain.cmdstart"));
  EXPECT_FALSE(program.IsEnabled("FrmFrameMain.cmdstop"));
  // The toolbar's entry stays where it is.
  EXPECT_EQ(Read(HKEY_LOCAL_MACHINE, ToolbarKey, ToolbarId), Text("Vantrel Toolbar"));
  ASSERT_TRUE(program.Click("FrmFrameMain.cmdstart"));
  EXPECT_EQ(Read(HKEY_LOCAL_MACHINE, EngineKey, "Subkey"), Text("Grimbolt Helper"));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

}  // namespace
}  // namespace vantrel::e2e
