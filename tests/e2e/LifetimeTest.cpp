// How the main window lives and ends: sizes, the close box in both its meanings, Exit, the end of
// the session, and the hidden buttons.
#include "support/ProgramTest.h"
#include "support/Twips.h"

namespace vantrel::e2e {
namespace {

class LifetimeTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    program_.emplace();
    ASSERT_TRUE(program_->WaitUntilIdle());
  }
  void TearDown() override {
    program_.reset();
    ProgramTest::TearDown();
  }
  const Running& Program() const { return *program_; }
  HWND Window() const { return Program().Find("frmMain"); }

  // Gone soon, and the registry says that blocking is off.
  void ExpectEnded() const {
    EXPECT_TRUE(Program().WaitForExit());
    DWORD code = 99;
    GetExitCodeProcess(Program().Process(), &code);
    EXPECT_EQ(code, 0U);
    EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
    // The engine's entry stays.
    EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  }
  LRESULT Send(UINT message, WPARAM first) const {
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(Window(), message, first, 0, SMTO_NORMAL, DefaultBound, &answer);
    return static_cast<LRESULT>(answer);
  }
  // Outer width and height in pixels.
  SIZE Size() const {
    RECT area{};
    GetWindowRect(Window(), &area);
    return {area.right - area.left, area.bottom - area.top};
  }

 private:
  std::optional<Running> program_;
};

TEST_F(LifetimeTest, TheCloseBoxEndsTheProgram) {
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  Program().PressCloseBox();
  ExpectEnded();
}

TEST_F(LifetimeTest, TheCloseBoxHidesToTheTrayWhenThatIsSet) {
  ASSERT_TRUE(Program().Click("FrmFrameSettings.chkGHideSystray"));
  Program().MouseClick("frmMain.LnkGraph");
  ASSERT_TRUE(Program().WaitUntilVisible("FrmFrameGraph"));
  Program().PressCloseBox();
  ASSERT_TRUE(Program().WaitUntilVisible("frmMain", false));
  EXPECT_TRUE(WaitFor([] { return Number(BlockSettings, "GDisabled") == 1; }));
  EXPECT_TRUE(Program().Answers());
  EXPECT_FALSE(Program().IsShown("FrmFrameGraph"));
  EXPECT_TRUE(Program().IsShown("FrmFrameMain"));
  // Blocking goes on: the panel reads as started, and the next save says so again.
  EXPECT_FALSE(Program().IsEnabled("FrmFrameMain.cmdstart"));
  ASSERT_TRUE(Program().Click("FrmFrameNotification.chkNW"));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  // It can be closed again and again, and the box alone decides.
  Program().TrayCallback(WM_LBUTTONDBLCLK);
  ASSERT_TRUE(Program().WaitUntilVisible("frmMain"));
  Program().PressCloseBox();
  ASSERT_TRUE(Program().WaitUntilVisible("frmMain", false));
  ASSERT_TRUE(Program().Click("FrmFrameSettings.chkGHideSystray"));
  Program().TrayCallback(WM_LBUTTONDBLCLK);
  ASSERT_TRUE(Program().WaitUntilVisible("frmMain"));
  Program().PressCloseBox();
  ExpectEnded();
}

TEST_F(LifetimeTest, ExitEndsTheProgramAlsoWhenClosingHides) {
  ASSERT_TRUE(Program().Click("FrmFrameSettings.chkGHideSystray"));
  Program().ChooseMenu("MnuExit");
  ExpectEnded();
}

TEST_F(LifetimeTest, ExitFromTheTrayMenuEndsTheHiddenProgram) {
  Program().ChooseMenu("MnuHide");
  ASSERT_TRUE(Program().WaitUntilVisible("frmMain", false));
  Program().ChooseMenu("mnusysexit");
  ExpectEnded();
}

TEST_F(LifetimeTest, TheEndOfTheSessionEndsTheProgramAlsoWhenClosingHides) {
  ASSERT_TRUE(Program().Click("FrmFrameSettings.chkGHideSystray"));
  EXPECT_EQ(Send(WM_QUERYENDSESSION, 0), TRUE);
  EXPECT_TRUE(Program().Alive());
  EXPECT_TRUE(Program().IsVisible("frmMain"));
  Send(WM_ENDSESSION, TRUE);
  // Windows does not wait long.
  EXPECT_TRUE(Program().WaitForExit(5000));
  ExpectEnded();
}

TEST_F(LifetimeTest, ASessionThatDoesNotEndAfterAllChangesNothing) {
  EXPECT_EQ(Send(WM_QUERYENDSESSION, 0), TRUE);
  Send(WM_ENDSESSION, FALSE);
  EXPECT_TRUE(Program().Answers());
  EXPECT_TRUE(Program().IsVisible("frmMain"));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

TEST_F(LifetimeTest, TheEndOfTheSessionReachesAlsoTheHiddenProgram) {
  Program().ChooseMenu("MnuHide");
  ASSERT_TRUE(Program().WaitUntilVisible("frmMain", false));
  EXPECT_EQ(Send(WM_QUERYENDSESSION, 0), TRUE);
  Send(WM_ENDSESSION, TRUE);
  ExpectEnded();
}

TEST_F(LifetimeTest, ExitWhileABoxIsUpEndsTheProgram) {
  Program().ClickAndLeave("FrmFrameSettings.chkGShowToolbar");
  ASSERT_TRUE(Program().WaitForBox());
  Program().ChooseMenu("MnuExit");
  ExpectEnded();
}

TEST_F(LifetimeTest, ExitWhileADialogIsOpenEndsTheProgram) {
  Program().ChooseMenu("submnuAbout");
  ASSERT_TRUE(Program().WaitUntilVisible("FrmAbout"));
  Program().ChooseMenu("MnuExit");
  ExpectEnded();
}

TEST_F(LifetimeTest, TheWindowStartsAtItsSizeAndDoesNotGetTooSmall) {
  EXPECT_EQ(Size().cx, Pixels(9300));
  EXPECT_NEAR(Size().cy, Pixels(6998), 1);
  SetWindowPos(Window(), nullptr, 0, 0, 7, 7, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_TRUE(WaitFor([&] { return Size().cx == Pixels(9300) && Size().cy == Pixels(6825); }))
      << Size().cx << " by " << Size().cy;
  // Each side by itself.
  const int tall = Pixels(8000);
  SetWindowPos(Window(), nullptr, 0, 0, 7, tall, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  EXPECT_TRUE(WaitFor([&] { return Size().cx == Pixels(9300) && Size().cy == tall; }));
}

TEST_F(LifetimeTest, AMaximizedWindowKeepsItsSize) {
  ShowWindow(Window(), SW_MAXIMIZE);
  ASSERT_TRUE(WaitFor([&] { return IsZoomed(Window()) != FALSE; }));
  EXPECT_GT(Size().cx, Pixels(9300));
  // Restored by the tray.
  Program().TrayCallback(WM_LBUTTONDBLCLK);
  EXPECT_TRUE(WaitFor([&] { return IsZoomed(Window()) == FALSE && Size().cx == Pixels(9300); }))
      << Size().cx;
}

TEST_F(LifetimeTest, TheHiddenButtonsMoveTheEnginesEntryAlone) {
  const Tree before = ReadTree(HKEY_CURRENT_USER, RootKey);
  ASSERT_TRUE(Program().Click("frmMain.cmdRemoveBHO"));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  EXPECT_TRUE(Program().IsEnabled("frmMain.cmdADDBHO"));
  EXPECT_FALSE(Program().IsEnabled("frmMain.cmdRemoveBHO"));
  ASSERT_TRUE(Program().Click("frmMain.cmdADDBHO"));
  EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  // It has disabled itself, and nothing enables it again.
  ASSERT_TRUE(Program().Click("frmMain.cmdRemoveBHO"));
  EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  EXPECT_EQ(Difference(before, ReadTree(HKEY_CURRENT_USER, RootKey)), "");
}

TEST_F(LifetimeTest, ButtonsOfAHiddenWindowAct) {
  Program().ChooseMenu("MnuHide");
  ASSERT_TRUE(Program().WaitUntilVisible("frmMain", false));
  ASSERT_TRUE(Program().Click("frmMain.cmdRemoveBHO"));
  EXPECT_FALSE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  ASSERT_TRUE(Program().Click("FrmFrameMain.cmdstop"));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
}

}  // namespace
}  // namespace vantrel::e2e
