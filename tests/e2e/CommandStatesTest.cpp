// Every command finds the window in every state that a user can leave it in: whatever is up, a
// window that answers is in front afterwards, the keyboard is in it, and nothing that was up is
// lost or left behind.
#include "support/ProgramTest.h"
#include "support/WindowStates.h"

namespace vantrel::e2e {
namespace {

constexpr const char* Commands[] = {"",           "/customtoolbar", "/clean",  "/addlinks",
                                    "/onoff",     "/graph",         "/notify", "/iesettings",
                                    "/ieplugins", "/options"};

class CommandStatesTest : public ProgramTest {
 protected:
  const Running& Program() const { return *program_; }
  HWND Main() const { return Program().Find("frmMain"); }
  GUITHREADINFO Keyboard() const { return KeyboardOf(Program()); }

  void SetUp() override {
    ProgramTest::SetUp();
    program_.emplace();
    ASSERT_TRUE(program_->WaitUntilIdle());
    SetForegroundWindow(Main());
  }
  void TearDown() override {
    program_.reset();
    ProgramTest::TearDown();
  }
  // As a sender does it; returns when the command has been carried out.
  void Deliver(const std::string& command) const {
    HWND mailbox = Program().Find("frmMain.cmdDummy");
    ASSERT_EQ(Program().TextOf("frmMain.cmdDummy"), "Ready for command");
    if (IsIconic(Main())) ShowWindow(Main(), SW_RESTORE);
    SetForegroundWindow(Main());
    DWORD_PTR ignored = 0;
    SendMessageTimeoutA(mailbox, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(command.c_str()),
                        SMTO_NORMAL, DefaultBound, &ignored);
    ASSERT_NE(SendMessageTimeoutA(mailbox, BM_CLICK, 0, 0, SMTO_NORMAL, DefaultBound, &ignored), 0);
  }
  // The window is active, takes input and has the keyboard.
  bool HasKeyboard(HWND window) const {
    const GUITHREADINFO info = Keyboard();
    return window != nullptr && IsWindowVisible(window) && IsWindowEnabled(window) &&
           info.hwndActive == window &&
           (info.hwndFocus == window || IsChild(window, info.hwndFocus));
  }
  std::string Where() const {
    const GUITHREADINFO info = Keyboard();
    return "active '" + WindowTextOf(info.hwndActive) + "', focus '" +
           ControlNameOf(info.hwndFocus) + "' of class " + ClassOf(info.hwndFocus);
  }
  // The control with the focus lies under nothing, and Tab goes on from it.
  void ExpectKeyboardInMain() const {
    ASSERT_TRUE(WaitFor([&] { return HasKeyboard(Main()); })) << Where();
    const HWND focus = Keyboard().hwndFocus;
    RECT area{};
    GetWindowRect(focus, &area);
    const HWND seen = WindowFromPoint({(area.left + area.right) / 2, (area.top + area.bottom) / 2});
    EXPECT_TRUE(seen == focus || IsChild(focus, seen)) << Where();
    PostMessageA(focus, WM_KEYDOWN, VK_TAB, 1);
    EXPECT_TRUE(WaitFor([&] { return Keyboard().hwndFocus != focus && HasKeyboard(Main()); }))
        << Where();
  }

 private:
  std::optional<Running> program_;
};

TEST_F(CommandStatesTest, EveryCommandEndsWithAWindowThatAnswersInEveryState) {
  for (const WindowState& state : WindowStates()) {
    for (const std::string command : Commands) {
      SCOPED_TRACE(std::string(state.name) + ", then '" + command + "'");
      ASSERT_TRUE(state.enter(Program()));
      const HWND dialog = state.front != nullptr ? state.front(Program()) : nullptr;
      Deliver(command);
      const bool toolbar = command == "/customtoolbar";
      EXPECT_EQ(Program().IsVisible("frmMain"), !toolbar);
      EXPECT_TRUE(WaitFor([&] { return Program().OpenMenu() == nullptr; }));
      if (state.modal) {
        EXPECT_TRUE(WaitFor([&] { return HasKeyboard(dialog); })) << Where();
        EXPECT_FALSE(IsWindowEnabled(Main()));
      } else {
        for (HWND usable : {dialog != nullptr ? dialog : Main(), Main()}) {
          EXPECT_TRUE(IsWindowEnabled(usable));
        }
        EXPECT_TRUE(dialog == nullptr || IsWindowVisible(dialog));
      }
      ASSERT_TRUE(state.leave(Program()));
      if (toolbar) {
        if (state.front != ToolbarDialog) {
          EXPECT_TRUE(WaitFor([&] { return HasKeyboard(ToolbarDialog(Program())); })) << Where();
        }
        if (Program().IsVisible("frmcustom")) {
          ASSERT_TRUE(CloseToolbarDialog(Program()));
        }
        Deliver("");
      }
      EXPECT_EQ(Program().BoxCount(), 0U);
      ExpectKeyboardInMain();
      if (HasFailure()) return;
    }
  }
}

TEST_F(CommandStatesTest, AnotherStartFindsTheDialogInFrontAndLeavesItThere) {
  for (const char* command : {"", "/graph"}) {
    SCOPED_TRACE(command);
    ASSERT_TRUE(OpenAbout(Program()));
    const Running sender(command);
    ASSERT_TRUE(sender.WaitForExit(30000));
    EXPECT_TRUE(WaitFor([&] { return HasKeyboard(About(Program())); })) << Where();
    PostMessageA(Keyboard().hwndFocus, WM_KEYDOWN, VK_RETURN, 1);
    ASSERT_TRUE(Program().WaitUntilVisible("FrmAbout", false));
    ExpectKeyboardInMain();
  }
  const Running sender("/options");
  ASSERT_TRUE(sender.WaitForExit(30000));
  ExpectKeyboardInMain();
}

}  // namespace
}  // namespace vantrel::e2e
