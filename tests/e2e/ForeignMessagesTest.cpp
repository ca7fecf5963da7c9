// Messages that another program sends to any window of the program: whatever they claim, no window
// is lost, nothing that is stored changes, and the program goes on as before.
#include <algorithm>

#include "support/ProgramTest.h"
#include "support/TrayCatcher.h"

namespace vantrel::e2e {
namespace {

constexpr UINT ListDeleteAllItems = 0x1009;  // LVM_DELETEALLITEMS

struct Foreign {
  const char* name;
  UINT message;
  WPARAM first;
  LPARAM second;
};

constexpr Foreign Messages[] = {
    {"WM_CLOSE", WM_CLOSE, 0, 0},
    {"SC_CLOSE", WM_SYSCOMMAND, SC_CLOSE, 0},
    {"WM_DESTROY", WM_DESTROY, 0, 0},
    {"WM_NCDESTROY", WM_NCDESTROY, 0, 0},
    {"WM_TIMER of nobody", WM_TIMER, 7777, 0},
    {"WM_COMMAND of no entry", WM_COMMAND, 0xFFFF, 0},
    {"WM_COMMAND of no window", WM_COMMAND, 1, 0x7777},
    {"WM_SIZE that is not so", WM_SIZE, SIZE_RESTORED, MAKELPARAM(7, 7)},
    {"WM_SHOWWINDOW that is not so", WM_SHOWWINDOW, FALSE, 0},
    {"WM_ENABLE that is not so", WM_ENABLE, FALSE, 0},
    {"WM_NOTIFY of nothing", WM_NOTIFY, 0, 0},
    {"WM_DRAWITEM of nothing", WM_DRAWITEM, 0, 0},
    {"WM_CTLCOLORSTATIC of nothing", WM_CTLCOLORSTATIC, 0, 0},
    {"WM_PRINTCLIENT on nothing", WM_PRINTCLIENT, 0, 0},
    {"WM_GETOBJECT of an unknown kind", WM_GETOBJECT, 0, 1234},
    {"WM_NEXTDLGCTL", WM_NEXTDLGCTL, 0, FALSE},
    {"WM_CANCELMODE", WM_CANCELMODE, 0, 0},
    {"WM_CAPTURECHANGED", WM_CAPTURECHANGED, 0, 0},
    {"WM_KILLFOCUS", WM_KILLFOCUS, 0, 0},
    {"WM_MOUSELEAVE", WM_MOUSELEAVE, 0, 0},
    {"WM_THEMECHANGED", WM_THEMECHANGED, 0, 0},
    {"WM_SETFONT to none", WM_SETFONT, 0, 0},
    {"WM_APP + 1", WM_APP + 1, 0, 0},
    {"LVM_DELETEALLITEMS", ListDeleteAllItems, 0, 0},
    {"CB_SELECTSTRING of nothing", CB_SELECTSTRING, 0, 0},
    {"WM_USER + 7777", WM_USER + 7777, 0, 0},
};

// Messages that mean what they say for these windows.
bool IsMeant(const std::string& window, const Foreign& row) {
  const bool closes = row.message == WM_CLOSE || row.message == WM_SYSCOMMAND;
  return closes && window == "frmMain";
}

class ForeignMessagesTest : public ProgramTest {
 protected:
  static std::vector<std::string> NamesOf(const Running& program) {
    std::vector<std::string> names;
    for (const auto& [name, window] : program.Named()) names.push_back(name);
    std::sort(names.begin(), names.end());
    return names;
  }
};

TEST_F(ForeignMessagesTest, NoneOfThemCostsAWindowOrASetting) {
  const TrayCatcher tray;
  const Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  const std::vector<std::string> names = NamesOf(program);
  const Tree stored = ReadTree(HKEY_CURRENT_USER, RootKey);
  for (const Foreign& row : Messages) {
    for (const auto& [name, window] : program.Named()) {
      if (IsMeant(name, row)) continue;
      DWORD_PTR answer = 0;
      SendMessageTimeoutA(window, row.message, row.first, row.second, SMTO_ABORTIFHUNG,
                          DefaultBound, &answer);
    }
    ASSERT_TRUE(program.Alive()) << row.name;
    ASSERT_TRUE(program.Answers()) << row.name;
    ASSERT_EQ(NamesOf(program), names) << row.name;
    ASSERT_EQ(program.BoxCount(), 0U) << row.name;
  }
  EXPECT_EQ(tray.Icons(), 1U);
  EXPECT_TRUE(program.IsVisible("FrmFrameMain"));
  EXPECT_EQ(Difference(stored, ReadTree(HKEY_CURRENT_USER, RootKey)), "");
  EXPECT_EQ(program.RowsOf("FrmFrameLog.lstLog", 2).size(), 5U);
  // The channel is open, and hiding still hides.
  const Running sender("/graph");
  ASSERT_TRUE(sender.WaitForExit());
  EXPECT_TRUE(program.IsVisible("FrmFrameGraph"));
  program.ChooseMenu("MnuHide");
  EXPECT_TRUE(program.WaitUntilVisible("frmMain", false));
}

// Texts that are none, empty or long, and halves of a click or a key press.
TEST_F(ForeignMessagesTest, TextsAndInputWithoutSenseEndNothing) {
  const Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  const std::vector<std::string> names = NamesOf(program);
  const auto toAll = [&](UINT message, WPARAM first, LPARAM second) {
    for (const auto& [name, window] : program.Named()) {
      // A field's own menu would wait for a choice, a list for the mouse to be dragged.
      if (message == WM_RBUTTONUP && ClassOf(window) == "Edit") continue;
      if (message == WM_RBUTTONDOWN && ClassOf(window) == "SysListView32") continue;
      DWORD_PTR answer = 0;
      SendMessageTimeoutA(window, message, first, second, SMTO_ABORTIFHUNG, DefaultBound, &answer);
    }
    EXPECT_TRUE(program.Alive()) << message;
    EXPECT_TRUE(program.Answers()) << message;
    EXPECT_EQ(NamesOf(program), names) << message;
  };
  const std::string text(20000, 'x');
  for (const char* sent : {static_cast<const char*>(nullptr), "", text.c_str()}) {
    toAll(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(sent));
  }
  for (const UINT input : {WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_MBUTTONUP}) {
    toAll(input, 0, MAKELPARAM(3, 3));
  }
  for (const UINT input : {WM_KEYUP, WM_KEYDOWN, WM_CHAR, WM_SYSKEYUP}) toAll(input, 0xFF, 1);
  toAll(WM_MOUSEWHEEL, MAKEWPARAM(0, 0x8000), MAKELPARAM(-1, -1));
  program.ChooseMenu("MnuExit");
  EXPECT_TRUE(program.WaitForExit());
}

TEST_F(ForeignMessagesTest, AWindowThatAnotherProgramHidesComesBackByTheTray) {
  const Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ShowWindow(program.Find("frmMain"), SW_HIDE);
  ASSERT_TRUE(program.WaitUntilVisible("frmMain", false));
  program.TrayCallback(WM_LBUTTONDBLCLK);
  EXPECT_TRUE(program.WaitUntilVisible("frmMain"));
}

TEST_F(ForeignMessagesTest, AModalDialogThatAnotherProgramHidesKeepsNobodyWaiting) {
  const Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  program.ChooseMenu("submnuAbout");
  ASSERT_TRUE(program.WaitUntilVisible("FrmAbout"));
  ASSERT_FALSE(program.IsEnabled("frmMain"));
  ShowWindow(program.Find("FrmAbout"), SW_HIDE);
  EXPECT_TRUE(WaitFor([&] { return program.IsEnabled("frmMain"); }));
  program.ChooseMenu("submnuAbout");
  EXPECT_TRUE(program.WaitUntilVisible("FrmAbout"));
}

}  // namespace
}  // namespace vantrel::e2e
