// Every command finds the window in every state that a user can leave it in: whatever is up, a
// window that answers is in front afterwards, the keyboard is in it, and nothing that was up is
// lost or left behind. The end of the session is met in the same states.
#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

constexpr const char* Commands[] = {"",           "/customtoolbar", "/clean",  "/addlinks",
                                    "/onoff",     "/graph",         "/notify", "/iesettings",
                                    "/ieplugins", "/options"};

class CommandStatesTest : public ProgramTest {
 public:
  const Running& Program() const { return *program_; }
  HWND Main() const { return Program().Find("frmMain"); }
  // The menu that is open, of any program: none of the others' are.
  static HWND OpenMenu() {
    HWND menu = FindWindowA("#32768", nullptr);
    return menu != nullptr && IsWindowVisible(menu) ? menu : nullptr;
  }
  GUITHREADINFO Keyboard() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(GetWindowThreadProcessId(Main(), nullptr), &info);
    return info;
  }
  void ChooseAndAwait(const char* entry, const char* window, bool visible = true) const {
    Program().ChooseMenu(entry);
    EXPECT_TRUE(Program().WaitUntilVisible(window, visible)) << entry;
  }

 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Start();
  }
  void TearDown() override {
    program_.reset();
    ProgramTest::TearDown();
  }
  void Start() {
    program_.reset();
    program_.emplace();
    ASSERT_TRUE(program_->WaitUntilIdle());
    SetForegroundWindow(Main());
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

// How the window gets into a state, what is in front then besides the main window, and how the user
// leaves that.
struct State {
  const char* name;
  void (*enter)(const CommandStatesTest&);
  HWND (*front)(const CommandStatesTest&);  // nullptr: no dialog
  bool modal;
  void (*leave)(const CommandStatesTest&);
};

HWND About(const CommandStatesTest& test) { return test.Program().Find("FrmAbout"); }
HWND Toolbar(const CommandStatesTest& test) { return test.Program().Find("frmcustom"); }
HWND BoxUp(const CommandStatesTest& test) {
  const auto box = test.Program().CurrentBox();
  return box ? box->window : nullptr;
}
void Nothing(const CommandStatesTest&) {}
void Minimise(const CommandStatesTest& test) {
  ShowWindow(test.Main(), SW_MINIMIZE);
  EXPECT_TRUE(WaitFor([&] { return IsIconic(test.Main()) != FALSE; }));
}
void HideInTray(const CommandStatesTest& test) { test.ChooseAndAwait("MnuHide", "frmMain", false); }
void OpenAbout(const CommandStatesTest& test) { test.ChooseAndAwait("submnuAbout", "FrmAbout"); }
void CloseAbout(const CommandStatesTest& test) {
  EXPECT_TRUE(test.Program().Click("FrmAbout.CmdOK"));
  EXPECT_TRUE(test.Program().WaitUntilVisible("FrmAbout", false));
}
void OpenToolbar(const CommandStatesTest& test) {
  test.ChooseAndAwait("submnuIEToolbar", "frmcustom");
}
void CloseToolbar(const CommandStatesTest& test) {
  PostMessageA(Toolbar(test), WM_CLOSE, 0, 0);
  EXPECT_TRUE(test.Program().WaitUntilVisible("frmcustom", false));
}
void OpenBox(const CommandStatesTest& test) {
  test.Program().ClickAndLeave("FrmFrameSettings.chkGShowToolbar");
  EXPECT_TRUE(test.Program().WaitForBox());
}
void AnswerBox(const CommandStatesTest& test) {
  const auto box = test.Program().CurrentBox();
  ASSERT_TRUE(box);
  EXPECT_TRUE(test.Program().Answer(*box));
}
void OpenMenuBar(const CommandStatesTest& test) {
  PostMessageA(test.Main(), WM_SYSCOMMAND, SC_KEYMENU, 'f');
  EXPECT_TRUE(WaitFor([] { return CommandStatesTest::OpenMenu() != nullptr; }));
}
void OpenTraysMenu(const CommandStatesTest& test) {
  HideInTray(test);
  test.Program().TrayCallback(WM_RBUTTONUP);
  EXPECT_TRUE(WaitFor([] { return CommandStatesTest::OpenMenu() != nullptr; }));
}
void BeginResizing(const CommandStatesTest& test) {
  PostMessageA(test.Main(), WM_SYSCOMMAND, SC_SIZE | WMSZ_BOTTOMRIGHT, 0);
  EXPECT_TRUE(WaitFor([&] { return (test.Keyboard().flags & GUI_INMOVESIZE) != 0; }));
}
void EndResizing(const CommandStatesTest& test) {
  PostMessageA(test.Main(), WM_KEYDOWN, VK_ESCAPE, 1);
  EXPECT_TRUE(WaitFor([&] { return (test.Keyboard().flags & GUI_INMOVESIZE) == 0; }));
}

constexpr State States[] = {
    {"shown", Nothing, nullptr, false, Nothing},
    {"minimised", Minimise, nullptr, false, Nothing},
    {"in the tray", HideInTray, nullptr, false, Nothing},
    {"About up", OpenAbout, About, true, CloseAbout},
    {"the toolbar's dialog up", OpenToolbar, Toolbar, false, CloseToolbar},
    {"a box up", OpenBox, BoxUp, true, AnswerBox},
    {"a menu open", OpenMenuBar, nullptr, false, Nothing},
    {"the tray's menu open", OpenTraysMenu, nullptr, false, Nothing},
    {"being resized", BeginResizing, nullptr, false, EndResizing},
};

TEST_F(CommandStatesTest, EveryCommandEndsWithAWindowThatAnswersInEveryState) {
  for (const State& state : States) {
    for (const std::string command : Commands) {
      SCOPED_TRACE(std::string(state.name) + ", then '" + command + "'");
      state.enter(*this);
      const HWND dialog = state.front != nullptr ? state.front(*this) : nullptr;
      Deliver(command);
      const bool toolbar = command == "/customtoolbar";
      EXPECT_EQ(Program().IsVisible("frmMain"), !toolbar);
      EXPECT_TRUE(WaitFor([] { return OpenMenu() == nullptr; }));
      if (state.modal) {
        EXPECT_TRUE(WaitFor([&] { return HasKeyboard(dialog); })) << Where();
        EXPECT_FALSE(IsWindowEnabled(Main()));
      } else {
        for (HWND usable : {dialog != nullptr ? dialog : Main(), Main()}) {
          EXPECT_TRUE(IsWindowEnabled(usable));
        }
        EXPECT_TRUE(dialog == nullptr || IsWindowVisible(dialog));
      }
      state.leave(*this);
      if (toolbar) {
        if (state.front != Toolbar) {
          EXPECT_TRUE(WaitFor([&] { return HasKeyboard(Toolbar(*this)); })) << Where();
        }
        if (Program().IsVisible("frmcustom")) CloseToolbar(*this);
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
    OpenAbout(*this);
    const Running sender(command);
    ASSERT_TRUE(sender.WaitForExit(30000));
    EXPECT_TRUE(WaitFor([&] { return HasKeyboard(About(*this)); })) << Where();
    PostMessageA(Keyboard().hwndFocus, WM_KEYDOWN, VK_RETURN, 1);
    ASSERT_TRUE(Program().WaitUntilVisible("FrmAbout", false));
    ExpectKeyboardInMain();
  }
  const Running sender("/options");
  ASSERT_TRUE(sender.WaitForExit(30000));
  ExpectKeyboardInMain();
}

TEST_F(CommandStatesTest, TheEndOfTheSessionEndsTheProgramInEveryState) {
  for (const State& state : States) {
    SCOPED_TRACE(state.name);
    state.enter(*this);
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(Main(), WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, DefaultBound, &answer);
    EXPECT_EQ(answer, 1U);
    SendMessageTimeoutA(Main(), WM_ENDSESSION, TRUE, 0, SMTO_NORMAL, DefaultBound, &answer);
    // Windows does not wait long.
    EXPECT_TRUE(Program().WaitForExit(5000));
    DWORD code = 99;
    GetExitCodeProcess(Program().Process(), &code);
    EXPECT_EQ(code, 0U);
    EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
    Start();
  }
}

}  // namespace
}  // namespace vantrel::e2e
