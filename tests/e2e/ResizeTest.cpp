// The main window under the mouse: each handle of its frame stops at the minimum, and what spans
// the window goes with it.
#include <optional>
#include <string>
#include <vector>

#include "support/ProgramTest.h"

namespace vantrel::e2e {
namespace {

constexpr int TwipsAnInch = 1440;

// A handle of the frame: the side of the window that it moves in either direction, 0 for none.
struct Grip {
  const char* Name;
  int Across;  // -1 left, 1 right
  int Down;    // -1 top, 1 bottom
};

constexpr Grip Grips[] = {{"left", -1, 0},        {"right", 1, 0},       {"top", 0, -1},
                          {"bottom", 0, 1},       {"top left", -1, -1},  {"top right", 1, -1},
                          {"bottom left", -1, 1}, {"bottom right", 1, 1}};

int Pixels(int twips) {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return MulDiv(twips, dpi, TwipsAnInch);
}

// On a side of an area, or in the middle between its sides.
LONG On(int side, LONG begin, LONG end) {
  return side < 0 ? begin + 1 : side > 0 ? end - 2 : (begin + end) / 2;
}

class ResizeTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    program_.emplace();
    ASSERT_TRUE(program_->WaitUntilIdle());
    SetForegroundWindow(Window());
  }
  void TearDown() override {
    program_.reset();
    ProgramTest::TearDown();
  }

  const Running& Program() const { return *program_; }
  HWND Window() const { return Program().Find("frmMain"); }
  RECT Frame() const {
    RECT area{};
    GetWindowRect(Window(), &area);
    return area;
  }
  // Of a control, in the main window's inside.
  RECT PlaceOf(const std::string& control) const {
    RECT area{};
    GetWindowRect(Program().Find("frmMain." + control), &area);
    MapWindowPoints(nullptr, Window(), reinterpret_cast<POINT*>(&area), 2);
    return area;
  }
  void PutFrame(int width, int height) const {
    SetWindowPos(Window(), nullptr, 150, 100, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
  }

  bool IsBeingSized() const {
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    const DWORD thread = GetWindowThreadProcessId(Window(), nullptr);
    return GetGUIThreadInfo(thread, &state) != FALSE && (state.flags & GUI_INMOVESIZE) != 0;
  }
  // As the mouse does it, towards the opposite side and far beyond it.
  void DragInwards(const Grip& grip) const {
    const RECT frame = Frame();
    const POINT from{On(grip.Across, frame.left, frame.right),
                     On(grip.Down, frame.top, frame.bottom)};
    SetCursorPos(from.x, from.y);
    mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    EXPECT_TRUE(WaitFor([this] { return IsBeingSized(); }));
    SetCursorPos(from.x - grip.Across * 500, from.y - grip.Down * 500);
    mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    EXPECT_TRUE(WaitFor([this] { return !IsBeingSized(); }));
    EXPECT_TRUE(Program().Answers());
  }

  void ExpectWhatSpansTheWindowToFit() const {
    RECT inside{};
    GetClientRect(Window(), &inside);
    for (const char* const bar : {"Toolbar1", "lblVCP1", "sbStatusBar"}) {
      EXPECT_NEAR(PlaceOf(bar).right, inside.right, 1) << bar;
    }
    EXPECT_EQ(PlaceOf("Toolbar1").right, PlaceOf("sbStatusBar").right);
    EXPECT_EQ(PlaceOf("lblVCP1").right, PlaceOf("sbStatusBar").right);
    EXPECT_EQ(PlaceOf("PicBase").bottom, PlaceOf("sbStatusBar").top);
  }

 private:
  std::optional<Running> program_;
};

TEST_F(ResizeTest, EachHandleStopsAtTheMinimum) {
  const int width = Pixels(9300);
  const int height = Pixels(6825);
  for (const Grip& grip : Grips) {
    SCOPED_TRACE(grip.Name);
    PutFrame(width + 90, height + 70);
    const RECT before = Frame();
    DragInwards(grip);
    const RECT after = Frame();
    EXPECT_EQ(after.right - after.left, grip.Across == 0 ? width + 90 : width);
    EXPECT_EQ(after.bottom - after.top, grip.Down == 0 ? height + 70 : height);
    // The side across from the handle does not move.
    EXPECT_EQ(grip.Across < 0 ? after.right : after.left,
              grip.Across < 0 ? before.right : before.left);
    EXPECT_EQ(grip.Down < 0 ? after.bottom : after.top, grip.Down < 0 ? before.bottom : before.top);
    ExpectWhatSpansTheWindowToFit();
  }
}

TEST_F(ResizeTest, WhatSpansTheWindowGoesWithItEachWay) {
  PutFrame(Pixels(9300) + 200, Pixels(6825) + 100);
  ExpectWhatSpansTheWindowToFit();
  ShowWindow(Window(), SW_MAXIMIZE);
  ExpectWhatSpansTheWindowToFit();
  ShowWindow(Window(), SW_RESTORE);
  ExpectWhatSpansTheWindowToFit();
  // Back to the size of the start.
  PutFrame(Pixels(9300), Pixels(6998));
  ExpectWhatSpansTheWindowToFit();
}

BOOL CALLBACK NoteTaskbarWindow(HWND window, LPARAM parameter) {
  const bool isTool = (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
  if (IsWindowVisible(window) && GetWindow(window, GW_OWNER) == nullptr && !isTool) {
    reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
  }
  return TRUE;
}

TEST_F(ResizeTest, OnlyTheMainWindowIsForTheTaskbar) {
  const HWND main = Window();
  for (const char* const link : {"LnkAdBlocking", "LnkSettings", "LnkGraph", "LnkLog"}) {
    Program().MouseClick(std::string("frmMain.") + link);
    ASSERT_TRUE(Program().Answers());
    std::vector<HWND> shown;
    EnumThreadWindows(GetWindowThreadProcessId(main, nullptr), NoteTaskbarWindow,
                      reinterpret_cast<LPARAM>(&shown));
    EXPECT_EQ(shown, std::vector<HWND>{main});
  }
  for (const auto& [name, window] : Program().Named()) {
    if (name.rfind("FrmFrame", 0) != 0 || name.find('.') != std::string::npos) continue;
    EXPECT_EQ(GetAncestor(window, GA_PARENT), main) << name;
  }
}

}  // namespace
}  // namespace vantrel::e2e
