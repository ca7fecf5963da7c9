// The icon in the notification area, caught in the shell's place: who adds it, what its callbacks
// and its menu do, and that none is left behind.
#include "support/ProgramTest.h"
#include "support/TrayCatcher.h"

// After windows.h.
#include <shellapi.h>

namespace vantrel::e2e {
namespace {

class TrayTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    ASSERT_TRUE(tray.InPlace()) << "another window takes the calls for icons";
  }

  static bool WaitForMenu(const Running& program, bool open) {
    return WaitFor([&] { return (program.OpenMenu() != nullptr) == open; });
  }
  static void HideMain(const Running& program) {
    program.ChooseMenu("MnuHide");
    ASSERT_TRUE(program.WaitUntilVisible("frmMain", false));
  }

  TrayCatcher tray;
};

TEST_F(TrayTest, TheWelcomePanelAddsOneIconAfterDeletingAny) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  const auto calls = tray.Calls();
  ASSERT_EQ(calls.size(), 2U);
  EXPECT_EQ(calls[0].operation, static_cast<DWORD>(NIM_DELETE));
  EXPECT_EQ(calls[1].operation, static_cast<DWORD>(NIM_ADD));
  for (const TrayCall& call : calls) {
    EXPECT_EQ(call.window, program.Find("FrmFrameMain"));
    EXPECT_EQ(call.identifier, 1U);
    EXPECT_EQ(call.flags, static_cast<UINT>(NIF_MESSAGE | NIF_ICON | NIF_TIP));
    EXPECT_EQ(call.callbackMessage, static_cast<UINT>(WM_MOUSEMOVE));
    EXPECT_EQ(call.tip, "Vantrel");
    EXPECT_GT(call.icon.cx, 0);
    EXPECT_GT(call.icon.cy, 0);
  }
}

TEST_F(TrayTest, ANewShellGetsTheIconAgain) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  HideMain(program);
  tray.Forget();
  PostMessageA(HWND_BROADCAST, RegisterWindowMessageA("TaskbarCreated"), 0, 0);
  ASSERT_TRUE(WaitFor([&] { return tray.Calls().size() >= 2; }));
  EXPECT_EQ(tray.Icons(), 1U);
  EXPECT_EQ(tray.Calls().back().window, program.Find("FrmFrameMain"));
  EXPECT_FALSE(program.IsVisible("frmMain"));
}

TEST_F(TrayTest, ACopyThatHandsOverHasAnIconForItsShortLife) {
  Running first;
  ASSERT_TRUE(first.WaitUntilIdle());
  tray.Forget();
  Running second("/clean");
  ASSERT_TRUE(second.WaitForExit());
  const auto calls = tray.Calls();
  ASSERT_GE(calls.size(), 3U);
  EXPECT_EQ(calls[1].operation, static_cast<DWORD>(NIM_ADD));
  EXPECT_NE(calls[1].window, first.Find("FrmFrameMain"));
  EXPECT_EQ(calls.back().operation, static_cast<DWORD>(NIM_DELETE));
  EXPECT_EQ(tray.Icons(), 0U);
}

TEST_F(TrayTest, ARefusedStartNeverHasAnIcon) {
  Write(HKEY_LOCAL_MACHINE, BrowserKey, "Version", Text("5.5"));
  Running program;
  const auto box = program.WaitForBox();
  ASSERT_TRUE(box);
  ASSERT_TRUE(program.Answer(*box));
  ASSERT_TRUE(program.WaitForExit());
  EXPECT_EQ(tray.Icons(), 0U);
}

TEST_F(TrayTest, EveryWayOutTakesTheIconAway) {
  const std::function<void(const Running&)> ways[] = {
      [](const Running& program) { program.ChooseMenu("MnuExit"); },
      [](const Running& program) {
        HideMain(program);
        program.ChooseMenu("mnusysexit");
      },
      [](const Running& program) { program.PressCloseBox(); },
      [](const Running& program) { PostMessageA(program.Find("frmMain"), WM_ENDSESSION, TRUE, 0); },
      [](const Running& program) {
        HideMain(program);
        PostMessageA(program.Find("frmMain"), WM_ENDSESSION, TRUE, 0);
      },
      // From another program.
      [](const Running& program) { PostMessageA(program.Find("frmMain"), WM_QUIT, 0, 0); },
      [](const Running& program) {
        program.ClickAndLeave("FrmFrameSettings.chkGShowToolbar");
        ASSERT_TRUE(program.WaitForBox());
        program.ChooseMenu("MnuExit");
      },
      [](const Running& program) {
        program.ChooseMenu("submnuAbout");
        ASSERT_TRUE(program.WaitUntilVisible("FrmAbout"));
        program.ChooseMenu("MnuExit");
      },
      [](const Running& program) {
        program.ChooseMenu("submnuAbout");
        ASSERT_TRUE(program.WaitUntilVisible("FrmAbout"));
        PostMessageA(program.Find("frmMain"), WM_QUIT, 0, 0);
      },
  };
  for (const auto& leave : ways) {
    tray.Forget();
    Running program;
    ASSERT_TRUE(program.WaitUntilIdle());
    EXPECT_EQ(tray.Icons(), 1U);
    leave(program);
    ASSERT_TRUE(program.WaitForExit());
    EXPECT_EQ(tray.Icons(), 0U);
    EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  }
}

TEST_F(TrayTest, ADoubleClickShowsTheWindow) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  program.ChooseMenu("mnuSettings");
  ASSERT_TRUE(program.WaitUntilVisible("FrmFrameMain", false));
  HideMain(program);
  program.TrayCallback(WM_LBUTTONDBLCLK);
  EXPECT_TRUE(program.WaitUntilVisible("frmMain"));
  EXPECT_TRUE(program.IsVisible("FrmFrameMain"));
  // Hiding by the menu hides no panel.
  EXPECT_TRUE(program.IsVisible("FrmFrameSettings"));
}

TEST_F(TrayTest, ADoubleClickRestoresAMinimizedWindow) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  HWND window = program.Find("frmMain");
  ShowWindow(window, SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return IsIconic(window) != FALSE; }));
  program.TrayCallback(WM_LBUTTONDBLCLK);
  EXPECT_TRUE(WaitFor([&] { return IsIconic(window) == FALSE; }));
  EXPECT_TRUE(program.IsVisible("frmMain"));
}

TEST_F(TrayTest, OtherMouseCodesDoNothing) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  HideMain(program);
  for (const int code : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN}) {
    program.TrayCallback(code);
  }
  program.ChooseMenu("MnuStop");
  ASSERT_TRUE(WaitFor([&] { return program.IsEnabled("FrmFrameMain.cmdstart"); }));
  EXPECT_FALSE(program.IsVisible("frmMain"));
  EXPECT_EQ(program.OpenMenu(), nullptr);
}

TEST_F(TrayTest, ARightClickShowsTheWelcomePanelAndTheMenuAndLeavesTheWindowHidden) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  program.ChooseMenu("mnuSettings");
  ASSERT_TRUE(program.WaitUntilVisible("FrmFrameMain", false));
  HideMain(program);
  program.TrayCallback(WM_RBUTTONUP);
  ASSERT_TRUE(WaitForMenu(program, true));
  EXPECT_TRUE(program.IsShown("FrmFrameMain"));
  PostMessageA(program.Find("frmMain"), WM_CANCELMODE, 0, 0);
  ASSERT_TRUE(WaitForMenu(program, false));
  EXPECT_FALSE(program.IsVisible("frmMain"));
  EXPECT_TRUE(program.IsShown("FrmFrameMain"));
}

TEST_F(TrayTest, AnEntryChosenWithTheKeyboardIsCarriedOut) {
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  HideMain(program);
  program.TrayCallback(WM_RBUTTONUP);
  ASSERT_TRUE(WaitForMenu(program, true));
  // The second entry, "Block Settings", wherever the mouse stands.
  for (const int key : {VK_HOME, VK_DOWN, VK_RETURN}) program.PressKey("frmMain", key);
  ASSERT_TRUE(WaitForMenu(program, false));
  EXPECT_TRUE(program.WaitUntilVisible("FrmFrameSettings"));
  EXPECT_TRUE(program.IsVisible("frmMain"));
}

TEST_F(TrayTest, EachEntryRestoresTheWindowAndShowsItsPanel) {
  struct Row {
    const char* entry;
    const char* panel;
  };
  constexpr Row rows[] = {
      {"MNuAllow", "FrmFrameAllowList"},
      {"mnusysCleaning", "FrmFrameHistory"},
      // The general settings: "Block Settings" means those.
      {"mnusysBlock", "FrmFrameSettings"},
      {"mnusysOpen", "FrmFrameMain"},
  };
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  const std::string title = program.TextOf("frmMain.lblVCP1");
  for (const Row& row : rows) {
    HideMain(program);
    program.ChooseMenu(row.entry);
    EXPECT_TRUE(program.WaitUntilVisible(row.panel)) << row.entry;
    EXPECT_TRUE(program.IsVisible("frmMain")) << row.entry;
    EXPECT_EQ(program.TextOf("frmMain.lblVCP1"), title) << row.entry;
  }
}

}  // namespace
}  // namespace vantrel::e2e
