// The keyboard reaches everything, in a circle; what has the focus shows it and has a name.
#include <oleacc.h>

#include <algorithm>
#include <map>
#include <set>

#include "LookFixture.h"
#include "Pixels.h"

namespace vantrel::e2e {
namespace {

class AccessTest : public LookFixture {
 protected:
  void StartInFront() {
    Start();
    BringToFront(Main());
  }

  static void BringToFront(HWND window) {
    SetForegroundWindow(window);
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == window; }));
  }

  // The control with the focus, by its name.
  HWND Focused() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(Main(), nullptr), &info);
    HWND focus = info.hwndFocus;
    while (focus != nullptr && ControlNameOf(focus).empty()) focus = GetAncestor(focus, GA_PARENT);
    return focus;
  }

  static void Key(BYTE key, BYTE held = 0) {
    if (held != 0) keybd_event(held, 0, 0, 0);
    keybd_event(key, 0, 0, 0);
    keybd_event(key, 0, KEYEVENTF_KEYUP, 0);
    if (held != 0) keybd_event(held, 0, KEYEVENTF_KEYUP, 0);
  }

  // Presses the key and waits until another control has the focus.
  HWND Move(BYTE key, BYTE held = 0) const {
    HWND before = Focused();
    Key(key, held);
    WaitFor([&] { return Focused() != before; }, 3000);
    return Focused();
  }

  static bool IsOption(HWND window) {
    const LONG type = GetWindowLongA(window, GWL_STYLE) & BS_TYPEMASK;
    return ClassNameOf(window) == "Button" && (type == static_cast<LONG>(BS_RADIOBUTTON) ||
                                               type == static_cast<LONG>(BS_AUTORADIOBUTTON));
  }

  // What Tab has to reach of a window, of a group its chosen option.
  std::set<std::string> ReachableOf(const std::string& form) const {
    std::set<std::string> names;
    for (const Seen& control : ControlsOf(form)) {
      const LONG style = GetWindowLongA(control.Window, GWL_STYLE);
      if ((style & WS_TABSTOP) == 0 || !IsWindowEnabled(control.Window)) continue;
      if (IsOption(control.Window) && SendMessageA(control.Window, BM_GETCHECK, 0, 0) == 0) {
        continue;
      }
      names.insert(control.Name);
    }
    return names;
  }
  // Of the main window and the panel.
  std::set<std::string> Reachable(const std::string& panel) const {
    std::set<std::string> names = ReachableOf("frmMain");
    names.merge(ReachableOf(panel));
    return names;
  }

  // Brings the dialog up, and waits until it takes the keys.
  HWND OpenDialog(const std::string& entry, const std::string& form) const {
    HWND dialog = nullptr;
    Shown().Choose(entry);
    EXPECT_TRUE(WaitFor([&] {
      dialog = Shown().Find(form);
      return dialog != nullptr && GetForegroundWindow() == dialog;
    })) << form;
    return dialog;
  }

  // The names in the order in which the key visits them, until it comes back.
  std::vector<std::string> Round(BYTE held) const {
    std::vector<std::string> visited;
    HWND start = Focused();
    for (HWND at = Move(VK_TAB, held); at != nullptr; at = Move(VK_TAB, held)) {
      visited.push_back(ControlNameOf(at));
      if (at == start || visited.size() > 100) break;
    }
    return visited;
  }
};

TEST_F(AccessTest, TabVisitsEveryControlOfAPanelOnceAndComesBack) {
  StartInFront();
  for (const Screen& screen : Panels) {
    ASSERT_TRUE(Shown().Open(screen));
    const std::vector<std::string> forwards = Round(0);
    const std::set<std::string> once(forwards.begin(), forwards.end());
    EXPECT_EQ(once.size(), forwards.size()) << screen.Panel << " visits some twice";
    EXPECT_EQ(once, Reachable(screen.Panel)) << screen.Panel;
    std::vector<std::string> backwards = Round(VK_SHIFT);
    ASSERT_EQ(backwards.size(), forwards.size()) << screen.Panel;
    // Both end where they began; between, one is the other reversed.
    std::reverse(backwards.begin(), backwards.end() - 1);
    EXPECT_EQ(backwards, forwards) << screen.Panel;
  }
}

// The compiler's own library has another number under this name.
constexpr IID AccessibleInterface = {
    0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

// What a screen reader in another process learns of a control.
class Spoken {
 public:
  explicit Spoken(HWND window) {
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), AccessibleInterface,
                               reinterpret_cast<void**>(&object_));
    self_.vt = VT_I4;
    self_.lVal = CHILDID_SELF;
  }
  Spoken(const Spoken&) = delete;
  Spoken& operator=(const Spoken&) = delete;
  ~Spoken() {
    if (object_ != nullptr) object_->Release();
  }

  std::string Name() const { return Text(&IAccessible::get_accName); }
  std::string Description() const { return Text(&IAccessible::get_accDescription); }
  std::string Action() const { return Text(&IAccessible::get_accDefaultAction); }
  LONG Role() const {
    VARIANT role{};
    return object_ != nullptr && object_->get_accRole(self_, &role) == S_OK ? role.lVal : 0;
  }
  bool Do() const { return object_ != nullptr && object_->accDoDefaultAction(self_) == S_OK; }

 private:
  using Asked = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);

  std::string Text(Asked asked) const {
    BSTR told = nullptr;
    std::string text;
    if (object_ != nullptr && (object_->*asked)(self_, &told) == S_OK && told != nullptr) {
      for (const wchar_t* letter = told; *letter != 0; ++letter) text += static_cast<char>(*letter);
    }
    SysFreeString(told);
    return text;
  }

  IAccessible* object_ = nullptr;
  VARIANT self_{};
};

class SpokenTest : public AccessTest {
 protected:
  void SetUp() override {
    AccessTest::SetUp();
    CoInitialize(nullptr);
    Start();
  }
  void TearDown() override {
    CoUninitialize();
    AccessTest::TearDown();
  }

  void ExpectNamesOfTheirOwn(const std::string& form) const {
    std::map<std::string, std::string> named;
    for (const Seen& control : ControlsOf(form)) {
      if ((GetWindowLongA(control.Window, GWL_STYLE) & WS_TABSTOP) == 0) continue;
      const std::string name = Spoken(control.Window).Name();
      EXPECT_NE(name, "") << control.Name;
      // The mark of an access key is not spoken, an "and" is.
      const std::size_t mark = name.find('&');
      EXPECT_TRUE(mark == std::string::npos || name[mark + 1] == ' ') << name;
      EXPECT_TRUE(named.emplace(name, control.Name).second)
          << control.Name << " and " << named[name] << " are both '" << name << "'";
    }
  }
};

TEST_F(SpokenTest, EveryControlThatTakesTheFocusHasANameOfItsOwn) {
  for (const Screen& screen : Panels) {
    ASSERT_TRUE(Shown().Open(screen));
    ExpectNamesOfTheirOwn("frmMain");
    ExpectNamesOfTheirOwn(screen.Panel);
  }
  Shown().Choose("submnuLaunchHelp");
  ASSERT_TRUE(WaitFor([&] { return IsWindowVisible(Shown().Find("frmMain.frahelp")) != FALSE; }));
  ExpectNamesOfTheirOwn("frmMain");
  InDialog("submnuAbout", "FrmAbout", [this] { ExpectNamesOfTheirOwn("FrmAbout"); });
  InDialog("submnuIEToolbar", "frmcustom", [this] { ExpectNamesOfTheirOwn("frmcustom"); });
}

TEST_F(SpokenTest, ALinkIsALinkToTheReader) {
  const Spoken help(Shown().Find("FrmFrameNotification.Label51"));
  EXPECT_EQ(help.Name(), "Help on playing a sound");
  EXPECT_EQ(help.Description(), "");
  EXPECT_EQ(help.Role(), ROLE_SYSTEM_LINK);
  EXPECT_EQ(help.Action(), "Jump");
  const Spoken test(Shown().Find("FrmFrameNotification.Label35"));
  EXPECT_EQ(test.Name(), "Test Sound");
  EXPECT_EQ(test.Description(), "Play the selected sound");
  const Spoken sounds(Shown().Find("FrmFrameNotification.cmbsound"));
  EXPECT_EQ(sounds.Name(), "The sound to be played");
  EXPECT_NE(sounds.Role(), ROLE_SYSTEM_LINK);
}

TEST_F(SpokenTest, TheReadersActionFollowsTheLink) {
  HWND panel = Shown().Find("FrmFrameGraph");
  ASSERT_FALSE(IsWindowVisible(panel));
  EXPECT_TRUE(Spoken(Shown().Find("frmMain.LnkGraph")).Do());
  EXPECT_TRUE(WaitFor([&] { return IsWindowVisible(panel) != FALSE; }));
}

char MnemonicOf(const std::string& text) {
  for (std::size_t at = text.find('&'); at != std::string::npos && at + 1 < text.size();
       at = text.find('&', at + 2)) {
    if (text[at + 1] != '&') return static_cast<char>(std::tolower(text[at + 1]));
  }
  return '\0';
}

TEST_F(AccessTest, NoTwoMnemonicsOfAWindowAreTheSame) {
  Start();
  for (const Screen& screen : Panels) {
    ASSERT_TRUE(Shown().Open(screen));
    // Those of the menu bar.
    std::map<char, std::string> taken{
        {'f', "File"}, {'p', "Options"}, {'v', "View"}, {'h', "Help"}};
    for (const Seen& control : ControlsOf(screen.Panel)) {
      const char letter = control.Kind == "Edit" ? '\0' : MnemonicOf(control.Text);
      if (letter == '\0') continue;
      EXPECT_TRUE(taken.emplace(letter, control.Name).second)
          << control.Name << " and " << taken[letter];
    }
  }
}

TEST_F(AccessTest, AltAndALetterPressAButtonAndOpenAMenu) {
  StartInFront();
  ASSERT_TRUE(Shown().Open(Panels[2]));
  Key('C', VK_MENU);
  EXPECT_TRUE(WaitFor([&] { return IsWindowVisible(Shown().Find("frmcustom")) != FALSE; }));
  PostMessageA(Shown().Find("frmcustom"), WM_CLOSE, 0, 0);
  ASSERT_TRUE(WaitFor([&] { return !IsWindowVisible(Shown().Find("frmcustom")); }));
  BringToFront(Main());
  Key('F', VK_MENU);
  EXPECT_TRUE(WaitFor([&] { return Shown().FindShown("#32768") != nullptr; }));
  Key(VK_ESCAPE);
  EXPECT_TRUE(WaitFor([&] { return Shown().FindShown("#32768") == nullptr; }));
}

TEST_F(AccessTest, EnterAndEscapeCloseTheAboutDialog) {
  StartInFront();
  for (const BYTE key : {BYTE{VK_RETURN}, BYTE{VK_ESCAPE}}) {
    Shown().Choose("submnuAbout");
    ASSERT_TRUE(WaitFor([&] { return IsWindowVisible(Shown().Find("FrmAbout")) != FALSE; }));
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == Shown().Find("FrmAbout"); }));
    Key(key);
    EXPECT_TRUE(WaitFor([&] { return !IsWindowVisible(Shown().Find("FrmAbout")); })) << int{key};
    ASSERT_TRUE(WaitFor([&] { return GetForegroundWindow() == Main(); }));
  }
}

TEST_F(AccessTest, EscapeClosesTheToolbarsDialog) {
  StartInFront();
  OpenDialog("submnuIEToolbar", "frmcustom");
  Key(VK_ESCAPE);
  EXPECT_TRUE(WaitFor([&] { return !IsWindowVisible(Shown().Find("frmcustom")); }));
}

// From the text box: a button that has the focus would take the key itself.
TEST_F(AccessTest, EnterPressesTheOkOfTheToolbarsDialog) {
  StartInFront();
  OpenDialog("submnuIEToolbar", "frmcustom");
  HWND name = Shown().Find("frmcustom.txttoolbarname");
  for (int tabs = 0; tabs < 20 && Focused() != name; ++tabs) Move(VK_TAB);
  ASSERT_EQ(Focused(), name);
  Key(VK_RETURN);
  EXPECT_TRUE(WaitFor([&] { return !IsWindowVisible(Shown().Find("frmcustom")); }));
}

TEST_F(AccessTest, TabGoesRoundWithinADialog) {
  StartInFront();
  for (const auto& [entry, form] :
       {std::pair{"submnuAbout", "FrmAbout"}, std::pair{"submnuIEToolbar", "frmcustom"}}) {
    OpenDialog(entry, form);
    const std::vector<std::string> visited = Round(0);
    const std::set<std::string> once(visited.begin(), visited.end());
    EXPECT_EQ(once.size(), visited.size()) << form;
    EXPECT_EQ(once, ReachableOf(form)) << form;
    Key(VK_ESCAPE);
    ASSERT_TRUE(WaitFor([&] { return !IsWindowVisible(Shown().Find(form)); })) << form;
    BringToFront(Main());
  }
}

TEST_F(AccessTest, TabReachesTheHelpFrame) {
  StartInFront();
  // Away from the Welcome panel, which lies above the frame.
  ASSERT_TRUE(Shown().Open(Panels[2]));
  Shown().MouseClick("frmMain.LnkHelp");
  ASSERT_TRUE(WaitFor([&] { return IsWindowVisible(Shown().Find("frmMain.frahelp")) != FALSE; }));
  const std::vector<std::string> visited = Round(0);
  for (const char* name : {"frmMain.Label29", "frmMain.Label31", "frmMain.Label32",
                           "frmMain.Label57", "frmMain.Label30", "frmMain.Label61"}) {
    EXPECT_EQ(std::count(visited.begin(), visited.end(), name), 1) << name;
  }
}

TEST_F(AccessTest, ArrowsChooseAmongTheRowsOfAList) {
  StartInFront();
  ASSERT_TRUE(Shown().Open(Panels[9]));
  HWND list = Shown().Find("FrmFrameLog.lstLog");
  for (HWND at = Focused(); at != list && at != nullptr;) at = Move(VK_TAB);
  EXPECT_EQ(SelectedRowOf(list), 0);
  Key(VK_DOWN);
  EXPECT_TRUE(WaitFor([&] { return SelectedRowOf(list) == 1; }));
  Key(VK_END);
  EXPECT_TRUE(WaitFor([&] { return SelectedRowOf(list) == 4; }));
  Key(VK_UP);
  EXPECT_TRUE(WaitFor([&] { return SelectedRowOf(list) == 3; }));
}

TEST_F(AccessTest, ArrowsChooseAmongOptions) {
  StartInFront();
  HWND medium = Shown().Find("FrmFrameMain.optMedium");
  for (HWND at = Focused(); at != medium && at != nullptr;) at = Move(VK_TAB);
  EXPECT_EQ(ControlNameOf(Move(VK_DOWN)), "FrmFrameMain.optFast");
  EXPECT_TRUE(WaitFor([&] { return Program().CheckOf("FrmFrameMain.optFast") == BST_CHECKED; }));
  EXPECT_EQ(ControlNameOf(Move(VK_DOWN)), "FrmFrameMain.optDial");
  EXPECT_EQ(ControlNameOf(Move(VK_UP)), "FrmFrameMain.optFast");
  EXPECT_EQ(Program().CheckOf("FrmFrameMain.optDial"), BST_UNCHECKED);
}

TEST_F(AccessTest, WhatHasTheFocusLooksDifferent) {
  StartInFront();
  // The main window's own are beside every panel.
  std::set<std::string> seen;
  for (const Screen& screen : Panels) {
    ASSERT_TRUE(Shown().Open(screen));
    const std::size_t count = Reachable(screen.Panel).size();
    for (std::size_t step = 0; step < count; ++step) {
      HWND control = Focused();
      if (!seen.insert(ControlNameOf(control)).second) {
        Move(VK_TAB);
        continue;
      }
      Shown().Settle();
      const RECT area = OnScreen(control);
      const auto focused = PixelsOf(area);
      Move(VK_TAB);
      EXPECT_TRUE(WaitFor([&] { return PixelsOf(area) != focused; }, 2000))
          << ControlNameOf(control);
    }
  }
}

}  // namespace
}  // namespace vantrel::e2e
