#include <gmock/gmock.h>

#include <functional>

#include "shell/Lifetime.h"
#include "shell/Tray.h"
#include "unit/shell/ShellTest.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using forms::WindowState;
using test::BlockSettings;
using test::Copy;
using testing::ElementsAre;
using testing::IsEmpty;

class Tray : public test::ShellTest {
 protected:
  void SetUp() override { copy = StartCopy(); }
  windows::frmMain& Main() { return *copy->Windows().frmMain; }
  program::Windows& Windows() { return copy->Windows(); }
  void Mouse(std::uint32_t code) {
    world.tray.Mouse(world.desktop, world.tray.Icons().at(0), code);
  }
  void Choose(forms::Menu& entry) {
    copy->toolkit.ChooseFromPopup = [&entry](forms::Menu&) { return &entry; };
    Mouse(517);
  }
  // Minimised and in the tray, with the Welcome panel hidden.
  void PutAway() {
    world.desktop.ShowWindow(Main().hWnd(), 6);
    Main().Hide();
    Windows().FrmFrameMain->Hide();
  }
  // What the windows show of the act, but for the controls.
  std::vector<std::string> Shown(const std::function<void()>& act) {
    std::vector<std::string> lines;
    copy->toolkit.Trace = [&lines](const std::string& line) {
      if (line.find('.') == std::string::npos) lines.push_back(line);
    };
    act();
    copy->toolkit.Trace = nullptr;
    return lines;
  }

  std::unique_ptr<Copy> copy;
};

TEST_F(Tray, TheRecordIsAsTheShellTakesIt) {
  const auto& data = world.tray.Icons().at(0).lastData;
  EXPECT_EQ(data.cbSize, 88U);
  EXPECT_EQ(data.hWnd, Windows().FrmFrameMain->hWnd());
  EXPECT_EQ(data.uID, 1U);
  EXPECT_EQ(data.uFlags, 7U);
  EXPECT_EQ(data.uCallbackMessage, 512U);
  EXPECT_EQ(data.hIcon, Main().IconHandle());
  const std::string tip(data.szTip.begin(), data.szTip.end());
  EXPECT_EQ(tip, std::string("Vantrel") + '\0' + std::string(56, ' '));
}

TEST_F(Tray, AnIconIsDeletedBeforeItIsAdded) {
  auto second = MakeCopy();
  second->process.Trace().Clear();
  Start(second->program);
  const auto calls = second->process.Trace().LinesOf("Shell_NotifyIconA");
  ASSERT_EQ(calls.size(), 3U);
  EXPECT_TRUE(calls[0].starts_with("Shell_NotifyIconA 2 ")) << calls[0];
  EXPECT_TRUE(calls[1].starts_with("Shell_NotifyIconA 0 ")) << calls[1];
  EXPECT_TRUE(calls[2].starts_with("Shell_NotifyIconA 2 ")) << calls[2];
}

TEST_F(Tray, ADoubleClickShowsTheWelcomePanelAndRestoresTheWindow) {
  Main().LnkSettings.Click();
  Main().Hide();
  Mouse(515);
  EXPECT_TRUE(Main().Visible());
  EXPECT_TRUE(Windows().FrmFrameMain->Visible());
}

TEST_F(Tray, ADoubleClickOnAMinimisedWindowRestoresItToNormalSize) {
  world.desktop.ShowWindow(Main().hWnd(), 6);
  ASSERT_EQ(Main().WindowState(), WindowState::Minimized);
  Mouse(515);
  EXPECT_EQ(Main().WindowState(), WindowState::Normal);
}

TEST_F(Tray, ADoubleClickShowsThePanelThenRestoresThenShowsTheWindow) {
  PutAway();
  EXPECT_THAT(Shown([this] { Mouse(515); }),
              ElementsAre("FrmFrameMain Show", "frmMain WindowState=0", "frmMain Show"));
}

TEST_F(Tray, ARightClickShowsThePanelThenTheMenu) {
  PutAway();
  EXPECT_THAT(Shown([this] { Mouse(517); }),
              ElementsAre("FrmFrameMain Show", "frmMain PopupMenu mnusystemone"));
  EXPECT_EQ(Main().WindowState(), WindowState::Minimized);
}

TEST_F(Tray, AnEntryRestoresThenShowsTheWindowThenItsPanel) {
  PutAway();
  EXPECT_THAT(Shown([this] { Choose(Main().mnusysCleaning); }),
              ElementsAre("FrmFrameMain Show", "frmMain PopupMenu mnusystemone",
                          "frmMain WindowState=0", "frmMain Show", "FrmFrameHistory Show"));
}

TEST_F(Tray, TheMainWindowsOwnDoubleClickRestoresThenShowsIt) {
  PutAway();
  EXPECT_THAT(Shown([this] { Main().MouseMove(0, 0, 515 * 15, 0); }),
              ElementsAre("frmMain WindowState=0", "frmMain Show"));
}

TEST_F(Tray, ARightClickShowsTheWelcomePanelEvenIfTheMenuIsDismissed) {
  Main().LnkSettings.Click();
  Main().Hide();
  std::string popped;
  copy->toolkit.ChooseFromPopup = [&popped](forms::Menu& menu) -> forms::Menu* {
    popped = menu.Name();
    return nullptr;
  };
  Mouse(517);
  EXPECT_EQ(popped, "mnusystemone");
  EXPECT_TRUE(Windows().FrmFrameMain->Visible());
  EXPECT_FALSE(Main().Visible());
}

TEST_F(Tray, OtherCodesAreIgnored) {
  Main().Hide();
  for (const std::uint32_t code : {512U, 513U, 514U, 516U, 518U, 0U, 0xFFFFU}) Mouse(code);
  EXPECT_FALSE(Main().Visible());
}

TEST_F(Tray, ARealMouseMoveAtThatPixelColumnTakesTheSamePath) {
  Main().Hide();
  Windows().FrmFrameMain->MouseMove(0, 0, 515 * 15, 30);
  EXPECT_TRUE(Main().Visible());
}

// In twips, 15 a pixel here: what comes between two columns counts for the nearer one.
TEST_F(Tray, TheColumnIsRounded) {
  constexpr float Column = 515 * 15;
  for (const float within : {-5.0F, 5.0F}) {
    Main().Hide();
    Windows().FrmFrameMain->MouseMove(0, 0, Column + within, 30);
    EXPECT_TRUE(Main().Visible()) << within;
  }
  for (const float beyond : {-10.0F, 10.0F}) {
    Main().Hide();
    Windows().FrmFrameMain->MouseMove(0, 0, Column + beyond, 30);
    EXPECT_FALSE(Main().Visible()) << beyond;
  }
}

TEST_F(Tray, AScaleModeOfPixelsTakesTheCoordinateAsItIs) {
  Main().Hide();
  Windows().FrmFrameMain->SetScaleMode(forms::ScaleMode::Pixels);
  Windows().FrmFrameMain->MouseMove(0, 0, 515, 30);
  EXPECT_TRUE(Main().Visible());
}

TEST_F(Tray, TheMainWindowAnswersADoubleClickOfItsOwn) {
  Main().Hide();
  Main().MouseMove(0, 0, 517 * 15, 0);
  EXPECT_FALSE(Main().Visible());
  Main().MouseMove(0, 0, 515 * 15, 0);
  EXPECT_TRUE(Main().Visible());
}

TEST_F(Tray, AnIconOfTheMainWindowIsLeftToOthersToAdd) {
  EXPECT_EQ(world.tray.Icons().size(), 1U);
  AddTrayIconOfMainWindow(copy->program);
  ASSERT_EQ(world.tray.Icons().size(), 2U);
  EXPECT_EQ(world.tray.Icons()[1].lastData.hWnd, Main().hWnd());
  EXPECT_EQ(world.tray.Icons()[1].lastData.uID, 1U);
  EXPECT_EQ(copy->program.TrayIcon.hWnd, Windows().FrmFrameMain->hWnd());
}

struct TrayCase {
  forms::Menu windows::frmMain::*entry;
  const char* panel;
};

TEST_F(Tray, EachEntryRestoresTheWindowAndGoesOnAsItsMenu) {
  using windows::frmMain;
  constexpr TrayCase Cases[] = {
      {&frmMain::mnusysBlock, "FrmFrameSettings"},
      {&frmMain::MNuAllow, "FrmFrameAllowList"},
      {&frmMain::mnusysCleaning, "FrmFrameHistory"},
      {&frmMain::mnusysOpen, "FrmFrameMain"},
  };
  for (const auto& [entry, panel] : Cases) {
    PutAway();
    Choose(Main().*entry);
    EXPECT_TRUE(Main().Visible()) << panel;
    EXPECT_EQ(Main().WindowState(), WindowState::Normal) << panel;
    EXPECT_THAT(ShownPanels(*copy), testing::Contains(panel));
    EXPECT_EQ(Main().lblVCP1.Caption(), "Welcome - Qorvel Software Vantrel ");
  }
}

TEST_F(Tray, TheEntriesAreInTheirOrderAndTwoAreInvisible) {
  std::vector<std::string> captions;
  for (const forms::Menu* entry : Main().mnusystemone.Entries()) {
    captions.push_back((entry->Visible() ? "" : "hidden ") + entry->Caption());
  }
  EXPECT_THAT(captions, ElementsAre("Open Vantrel", "-", "Block Settings", "-", "Allow List",
                                    "History cleaning", "-", "hidden Check for Updates",
                                    "hidden Tell a Friend", "-", "Exit"));
  EXPECT_EQ(Main().mnusystemone.Caption(), "System");
  EXPECT_FALSE(Main().mnusystemone.Visible());
}

TEST_F(Tray, TheIconComesBackWhenTheShellStartsAgain) {
  world.tray.SetPresent(false);
  world.tray.SetPresent(true);
  ASSERT_THAT(world.tray.Icons(), IsEmpty());
  copy->toolkit.TaskbarCreated();
  EXPECT_EQ(world.tray.Icons().size(), 1U);
}

class Lifetime : public Tray {};

TEST_F(Lifetime, ExitAlwaysExits) {
  Windows().FrmFrameSettings->chkGHideSystray.SetValue(1);
  ASSERT_TRUE(copy->user.Select(Main().MnuExit));
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_THAT(world.tray.Icons(), IsEmpty());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  // The main window itself is in its last handler when the process ends.
  EXPECT_THAT(copy->toolkit.LoadedForms(), ElementsAre(&Main()));
  // Blocking stays registered after the program has gone.
  EXPECT_TRUE(EngineEntryStands());
}

TEST_F(Lifetime, ExitFromTheTrayEndsWithoutARestore) {
  PutAway();
  const auto lines = Shown([this] { Choose(Main().mnusysexit); });
  EXPECT_THAT(lines, testing::Not(testing::Contains("frmMain Show")));
  EXPECT_EQ(Main().WindowState(), WindowState::Minimized);
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_THAT(world.tray.Icons(), IsEmpty());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
}

TEST_F(Lifetime, TheCloseBoxEndsTheProcess) {
  ASSERT_TRUE(copy->user.Close(Main()));
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_THAT(world.tray.Icons(), IsEmpty());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  ASSERT_EQ(world.desktop.windowLongCalls.size(), 1U);
  EXPECT_EQ(world.desktop.windowLongCalls[0].index, -4);
  EXPECT_EQ(world.desktop.windowLongCalls[0].value, 0);
}

// Without its own handler the main window unloads and the program does not end there.
TEST_F(Lifetime, TheCloseBoxEndsTheProcessAlsoIfTheUnloadComesBack) {
  Main().Unloading = nullptr;
  ASSERT_TRUE(copy->user.Close(Main()));
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_THAT(copy->toolkit.LoadedForms(), IsEmpty());
  EXPECT_THAT(world.tray.Icons(), IsEmpty());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
}

TEST_F(Lifetime, TheCloseBoxHidesToTheTrayIfToldSo) {
  Windows().FrmFrameSettings->chkGHideSystray.SetValue(1);
  Main().LnkGraph.Click();
  ASSERT_TRUE(copy->user.Close(Main()));
  EXPECT_FALSE(copy->toolkit.Ending());
  EXPECT_FALSE(Main().Visible());
  EXPECT_TRUE(Main().Loaded());
  EXPECT_FALSE(Windows().FrmFrameGraph->Visible());
  EXPECT_EQ(world.tray.Icons().size(), 1U);
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  EXPECT_TRUE(copy->program.BlockingActive);
  EXPECT_EQ(world.desktop.windowLongCalls.size(), 1U);
  // The next save writes 0 again.
  Windows().FrmFrameBlockPreferences->chkBFlash.SetValue(0);
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

TEST_F(Lifetime, TheSystemsEndIsAnUnloadOfItsOwn) {
  Windows().FrmFrameSettings->chkGHideSystray.SetValue(1);
  copy->toolkit.SystemEnds();
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_THAT(world.tray.Icons(), IsEmpty());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
}

TEST_F(Lifetime, HiddenPanelsSurviveTheTray) {
  Windows().FrmFrameNotification->cmbsound.SetListIndex(3);
  Windows().FrmFrameSettings->chkGHideSystray.SetValue(1);
  ASSERT_TRUE(copy->user.Close(Main()));
  Mouse(515);
  EXPECT_EQ(Windows().FrmFrameNotification->cmbsound.Text(), "double");
}

TEST_F(Lifetime, ATooSmallWindowSnapsBack) {
  Main().UserResizes(100, 100, WindowState::Normal);
  EXPECT_EQ(Main().Width(), 9300);
  EXPECT_EQ(Main().Height(), 6825);
  Main().UserResizes(12000, 9000, WindowState::Normal);
  EXPECT_EQ(Main().Width(), 12000);
  EXPECT_EQ(Main().Height(), 9000);
}

TEST_F(Lifetime, AMaximisedWindowIsLeftAlone) {
  Main().UserResizes(100, 100, WindowState::Maximized);
  EXPECT_EQ(Main().Width(), 100);
}

TEST_F(Lifetime, ExitFromWithinANestedPumpUnwindsToTheEnd) {
  copy->toolkit.WhenPumped([this] { Main().MnuExit.UserClick(); });
  bool after = false;
  copy->toolkit.AtBorder([this, &after] {
    Main().LnkGraph.Click();
    after = true;
  });
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_FALSE(after);
}

TEST_F(Lifetime, MessagesThatEndFromOutsideAreAnEndLikeAnyOther) {
  Finish(copy->program);
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  EXPECT_THAT(world.tray.Icons(), IsEmpty());
  // Nothing is left to be done.
  copy->process.Trace().Clear();
  Finish(copy->program);
  EXPECT_THAT(copy->process.Trace().Names(), IsEmpty());
}

TEST_F(Lifetime, AForeignCloseMessageLeavesAPanelWhereItIs) {
  for (forms::Form* form : copy->toolkit.LoadedForms()) {
    if (form != &Main()) world.desktop.Send({form->hWnd(), 16, 0, 0, nullptr});
  }
  EXPECT_EQ(copy->toolkit.LoadedForms().size(), 11U);
  EXPECT_EQ(world.tray.Icons().size(), 1U);
}

TEST_F(Lifetime, ExitWhileABoxIsUpEndsBehindIt) {
  copy->process.WhileBoxIsUp = [this](const platform::memory::Box&) {
    copy->toolkit.AtBorder([this] { Main().MnuExit.UserClick(); });
  };
  bool after = false;
  copy->toolkit.AtBorder([this, &after] {
    copy->program.MsgBox("up");
    after = true;
  });
  EXPECT_TRUE(copy->toolkit.Ending());
  EXPECT_FALSE(after);
}

}  // namespace
}  // namespace vantrel::shell
