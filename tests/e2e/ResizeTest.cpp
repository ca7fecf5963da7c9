// The main window's sizes: its frame stops at the minimum, and what spans the window goes with it.
#include <optional>
#include <string>
#include <vector>

#include "support/ProgramTest.h"
#include "support/Twips.h"

namespace vantrel::e2e {
namespace {

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

// The window's own answer to the system, which holds a drag by any of the eight handles to it.
TEST_F(ResizeTest, TheFrameStopsAtTheMinimum) {
  MINMAXINFO limits{};
  SendMessageA(Window(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  EXPECT_EQ(limits.ptMinTrackSize.x, Pixels(9300));
  EXPECT_EQ(limits.ptMinTrackSize.y, Pixels(6825));
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
