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

  // What Tab has to reach: of the main window and the panel, of a group its chosen option.
  std::set<std::string> Reachable(const std::string& panel) const {
    std::set<std::string> names;
    for (const char* form : {"frmMain", panel.c_str()}) {
      for (const Seen& control : ControlsOf(form)) {
        const LONG style = GetWindowLongA(control.Window, GWL_STYLE);
        if ((style & WS_TABSTOP) == 0 || !IsWindowEnabled(control.Window)) continue;
        if (IsOption(control.Window) && SendMessageA(control.Window, BM_GETCHECK, 0, 0) == 0) {
          continue;
        }
        names.insert(control.Name);
      }
    }
    return names;
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

std::string AccessibleName(HWND window) {
  IAccessible* object = nullptr;
  if (AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), AccessibleInterface,
                                 reinterpret_cast<void**>(&object)) != S_OK) {
    return "";
  }
  VARIANT self{};
  self.vt = VT_I4;
  self.lVal = CHILDID_SELF;
  BSTR name = nullptr;
  std::string text;
  if (object->get_accName(self, &name) == S_OK && name != nullptr) {
    for (const wchar_t* letter = name; *letter != 0; ++letter) text += static_cast<char>(*letter);
  }
  SysFreeString(name);
  object->Release();
  return text;
}

// What a reader says of a control: its accessible name, or where that is empty, as of fields and
// lists, the text before it. Of names that come often, the frame and the text before tell which.
std::string SpokenName(HWND window, const std::string& before) {
  static const std::set<std::string> common{"Help", "Delete"};
  std::string name = AccessibleName(window);
  if (name.empty()) name = WindowTextOf(GetWindow(window, GW_HWNDPREV));
  if (common.count(name) == 0) return name;
  return WindowTextOf(GetAncestor(window, GA_PARENT)) + ", " + before + ": " + name;
}

TEST_F(AccessTest, EveryControlThatTakesTheFocusHasANameOfItsOwn) {
  CoInitialize(nullptr);
  Start();
  for (const Screen& screen : Panels) {
    ASSERT_TRUE(Shown().Open(screen));
    std::map<std::string, std::string> named;
    std::string before;  // the text that stands before, which tells one link "Help" from the next
    for (const Seen& control : ControlsOf(screen.Panel)) {
      if ((GetWindowLongA(control.Window, GWL_STYLE) & WS_TABSTOP) != 0) {
        const std::string name = SpokenName(control.Window, before);
        EXPECT_NE(name, "") << control.Name;
        EXPECT_TRUE(named.emplace(name, control.Name).second)
            << control.Name << " and " << named[name] << " are both '" << name << "'";
      }
      if (!control.Text.empty() && control.Text != "Help") before = control.Text;
    }
  }
  CoUninitialize();
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
  for (const Screen& screen : Panels) {
    ASSERT_TRUE(Shown().Open(screen));
    const std::size_t count = Reachable(screen.Panel).size();
    for (std::size_t step = 0; step < count; ++step) {
      HWND control = Focused();
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
