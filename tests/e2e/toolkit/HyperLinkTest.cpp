// The text link on real windows, with the real mouse.
#include <gtest/gtest.h>
#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "ProgramPictures.h"
#include "controls/HyperLink.h"
#include "forms/Form.h"
#include "platform/win32/Win32Platform.h"

namespace vantrel::forms::win32 {
namespace {

constexpr DWORD Bound = 10000;  // milliseconds
constexpr Color RestColor = 0x112233;
constexpr Color HoverColor = 0x445566;
constexpr const char* OwnTip = "Given by the window";

struct LinkForm : Form {
  explicit LinkForm(Toolkit& toolkit)
      : Form(toolkit, "Links",
             {.Caption = "Links",
              .Width = 6000,
              .Height = 4500,
              .Left = -1,
              .Frame = Border::Sizable}) {}

  // Takes the focus, which would be drawn on the link.
  CommandButton First{*this, "First", {.Caption = "First", .At = {1200, 2400, 1200, 350}}};
  controls::HyperLink Link{*this,
                           "Link",
                           {.At = {1200, 1200, 2250, 300}, .ToolTipText = OwnTip},
                           {{"caption", "A link to point at"},
                            {"hyperlink", ""},
                            {"hovercolor", controls::HyperLink::ColorText(HoverColor)},
                            {"forecolor", controls::HyperLink::ColorText(RestColor)}}};
};

using Events = std::vector<std::string>;

class RealLinks : public testing::Test {
 protected:
  RealLinks()
      : toolkit_(MakeWin32Toolkit(tests::ProgramPictures(), [] { return false; })),
        system_(platform::win32::MakeWin32Platform()),
        platform_(system_->Platform()),
        form_(*toolkit_) {
    SetCursorPos(0, 0);
    GetCursorPos(&away_);
    Link().UsePlatform(platform_);
    Link().MouseOver = [this](int, int, float, float) { events_.push_back("MouseOver"); };
    Link().MouseOut = [this] { events_.push_back("MouseOut"); };
    Link().Click = [this] { events_.push_back("Click"); };
    form_.EnsureLoaded();
    form_.Show();
    toolkit_->DoEvents();
    // The desktop may still report where the pointer was before: a hover that a test did not ask
    // for.
    EXPECT_TRUE(GoAway());
    events_.clear();
  }
  ~RealLinks() override {
    form_.Unload();
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
  }

  controls::HyperLink& Link() { return form_.Link; }
  HWND Window() const { return reinterpret_cast<HWND>(form_.Link.WindowHandle()); }
  RECT OnScreen() const {
    RECT area{};
    GetWindowRect(Window(), &area);
    return area;
  }

  // Lets messages through until the condition holds; false if it did not within a bound.
  bool Await(const std::function<bool()>& condition) const {
    const DWORD start = GetTickCount();
    while (!condition()) {
      if (GetTickCount() - start >= Bound) return false;
      MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
      toolkit_->DoEvents();
    }
    return true;
  }

  bool PointAt(int x, int y) {
    const RECT area = OnScreen();
    SetCursorPos(area.left + x, area.top + y);
    return Await([this] { return Link().IsOver(); });
  }
  bool GoAway() {
    SetCursorPos(away_.x, away_.y);
    return AwaitRest();
  }
  bool AwaitRest() {
    return Await([this] { return !Link().IsOver() && !Link().myTimer.Enabled(); });
  }

  void Key(WPARAM key) const {
    PostMessageA(GetFocus(), WM_KEYDOWN, key, 0);
    toolkit_->DoEvents();
  }

  // What the tool tips of the form hold for the link, empty for none.
  std::string Tip() const {
    HWND tips = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), FindTips, reinterpret_cast<LPARAM>(&tips));
    char text[256] = "";
    TTTOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.hwnd = reinterpret_cast<HWND>(form_.hWnd());
    tool.uId = reinterpret_cast<UINT_PTR>(Window());
    tool.lpszText = text;
    SendMessageA(tips, TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&tool));
    return text;
  }

  static BOOL CALLBACK FindTips(HWND window, LPARAM found) {
    char name[64] = "";
    GetClassNameA(window, name, sizeof name);
    if (std::string(name) != TOOLTIPS_CLASSA) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
  }

  std::unique_ptr<Win32Toolkit> toolkit_;
  std::unique_ptr<platform::win32::Win32Platform> system_;
  platform::Platform platform_;
  Events events_;
  POINT away_{};
  LinkForm form_;
};

// A window of a class that is not the toolkit's, on top of everything.
class Cover {
 public:
  explicit Cover(const RECT& area)
      : window_(CreateWindowExA(WS_EX_TOPMOST | WS_EX_NOACTIVATE, "EDIT", "", WS_POPUP | WS_VISIBLE,
                                area.left - 20, area.top - 20, area.right - area.left + 40,
                                area.bottom - area.top + 40, nullptr, nullptr, nullptr, nullptr)) {}
  ~Cover() { DestroyWindow(window_); }
  Cover(const Cover&) = delete;
  Cover& operator=(const Cover&) = delete;

 private:
  HWND window_;
};

TEST_F(RealLinks, HoverUnderTheMouseAndRestWhenItHasLeft) {
  EXPECT_FALSE(Link().IsOver());
  ASSERT_TRUE(PointAt(5, 5));
  EXPECT_TRUE(Link().IsMouseOver());
  EXPECT_EQ(Link().ForeColor(), HoverColor);
  EXPECT_TRUE(Link().Font().Underline);
  EXPECT_TRUE(Link().myTimer.Enabled());
  ASSERT_TRUE(GoAway());
  EXPECT_EQ(Link().ForeColor(), RestColor);
  EXPECT_FALSE(Link().Font().Underline);
  EXPECT_EQ(events_, (Events{"MouseOver", "MouseOut"}));
}

TEST_F(RealLinks, KeepHoveringWhileTheMouseMovesOnThem) {
  ASSERT_TRUE(PointAt(5, 5));
  int polls = 0;
  const auto poll = Link().myTimer.Tick;
  Link().myTimer.Tick = nullptr;
  Link().myTimer.Tick = [&] {
    ++polls;
    poll();
  };
  SetCursorPos(OnScreen().left + 8, OnScreen().top + 6);
  EXPECT_TRUE(Await([&] { return polls >= 3; }));
  EXPECT_EQ(events_, Events{"MouseOver"});
}

TEST_F(RealLinks, RestUnderAWindowThatCoversThem) {
  ASSERT_TRUE(PointAt(5, 5));
  {
    const Cover cover(OnScreen());
    EXPECT_TRUE(AwaitRest());
    EXPECT_EQ(Link().ForeColor(), RestColor);
  }
  EXPECT_TRUE(PointAt(8, 6));
  EXPECT_TRUE(GoAway());
  EXPECT_EQ(events_, (Events{"MouseOver", "MouseOut", "MouseOver", "MouseOut"}));
}

TEST_F(RealLinks, AHeldButtonOutsideBeginsNoHover) {
  ASSERT_TRUE(PointAt(5, 5));
  SendMessageA(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  EXPECT_EQ(GetCapture(), Window());
  ASSERT_TRUE(GoAway());
  events_.clear();
  SendMessageA(Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-50, -50));
  EXPECT_FALSE(Link().IsOver());
  SendMessageA(Window(), WM_LBUTTONUP, 0, MAKELPARAM(-50, -50));
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(events_, Events{});
  EXPECT_TRUE(PointAt(5, 5));
}

TEST_F(RealLinks, AreClickedByMouseAndKeys) {
  SendMessageA(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageA(Window(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(events_, Events{"Click"});
  SetFocus(Window());
  Key(VK_SPACE);
  Key(VK_RETURN);
  EXPECT_EQ(events_, (Events{"Click", "Click", "Click"}));
}

TEST_F(RealLinks, APressThatLostTheMouseIsNoClick) {
  SendMessageA(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  ReleaseCapture();
  SendMessageA(Window(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(events_, Events{});
}

TEST_F(RealLinks, AButtonLetGoOutsideIsNoClick) {
  SendMessageA(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageA(Window(), WM_LBUTTONUP, 0, MAKELPARAM(-50, -50));
  EXPECT_EQ(events_, Events{});
}

TEST_F(RealLinks, AHandlerThatTakesTheMouseAwayLeavesTheClick) {
  Link().MouseUp = [](int, int, float, float) { ReleaseCapture(); };
  SendMessageA(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageA(Window(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(events_, Events{"Click"});
}

// As a box does that comes up because of the focus: the button is let go there, and the press is
// carried out behind it, once.
TEST_F(RealLinks, APressThatAnotherLoopInterruptedIsCarriedOutBehindIt) {
  form_.First.SetFocus();
  form_.First.LostFocus = [this] {
    const DWORD before = GetTickCount();
    EXPECT_TRUE(Await([&] {
      PostMessageA(Window(), WM_NULL, 0, 0);
      return GetTickCount() - before > 100;
    }));
  };
  SendMessageA(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  EXPECT_EQ(GetCapture(), nullptr);
  SendMessageA(Window(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  EXPECT_EQ(events_, Events{"Click"});
}

TEST_F(RealLinks, PassOnEveryButtonWithItsPlace) {
  const auto note = [this](const std::string& what) {
    return [this, what](int button, int shift, float x, float y) {
      const double unit = toolkit_->TwipsPerPixelX();
      events_.push_back(what + " " + std::to_string(button) + " " + std::to_string(shift) + " " +
                        std::to_string(std::lround(x / unit)) + "," +
                        std::to_string(std::lround(y / unit)));
    };
  };
  Link().MouseDown = note("down");
  Link().MouseUp = note("up");
  SendMessageA(Window(), WM_RBUTTONDOWN, MK_RBUTTON | MK_SHIFT, MAKELPARAM(4, 6));
  SendMessageA(Window(), WM_RBUTTONUP, MK_CONTROL, MAKELPARAM(5, 7));
  SendMessageA(Window(), WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(1, 2));
  SendMessageA(Window(), WM_MBUTTONUP, 0, MAKELPARAM(1, 2));
  SendMessageA(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 3));
  SendMessageA(Window(), WM_LBUTTONUP, 0, MAKELPARAM(2, 3));
  EXPECT_EQ(events_, (Events{"down 2 1 4,6", "up 2 2 5,7", "down 4 0 1,2", "up 4 0 1,2",
                             "down 1 0 2,3", "up 1 0 2,3", "Click"}));
}

TEST_F(RealLinks, ShowTheHandAsSoonAsTheyHover) {
  const HCURSOR hand = LoadCursorA(nullptr, IDC_HAND);
  SetCursor(LoadCursorA(nullptr, IDC_ARROW));
  ASSERT_TRUE(PointAt(5, 5));
  EXPECT_EQ(GetCursor(), hand);
  // An hourglass on the way leaves it as it was.
  toolkit_->SetScreenPointer(PointerHourglass);
  EXPECT_EQ(GetCursor(), LoadCursorA(nullptr, IDC_WAIT));
  toolkit_->SetScreenPointer(PointerDefault);
  EXPECT_EQ(GetCursor(), hand);
}

TEST_F(RealLinks, OpenTheirAddressThenTell) {
  char folder[MAX_PATH] = "";
  GetTempPathA(sizeof folder, folder);
  const std::string record = std::string(folder) + "opened-address.txt";
  DeleteFileA(record.c_str());
  SetEnvironmentVariableA("VANTREL_RECORD", record.c_str());
  std::string program = VANTREL_RECORDING_BROWSER;
  std::replace(program.begin(), program.end(), '/', '\\');
  Link().SetHyperLink(program);
  Link().Click = nullptr;
  Link().Click = [this] {
    events_.push_back("Click under pointer " + std::to_string(toolkit_->ScreenPointer()));
  };
  SendMessageA(Window(), BM_CLICK, 0, 0);
  EXPECT_EQ(events_, Events{"Click under pointer 0"});
  const auto recorded = [&record] {
    std::ifstream file(record, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  EXPECT_TRUE(Await([&] { return recorded().find("\r\n") != std::string::npos; }));
  // The state of a normal window, and nothing behind the address.
  EXPECT_EQ(recorded().substr(0, 2), "1 ");
  const std::string end = "recording-browser.exe\"\r\n";
  ASSERT_GT(recorded().size(), end.size());
  EXPECT_EQ(recorded().substr(recorded().size() - end.size()), end);
  SetEnvironmentVariableA("VANTREL_RECORD", nullptr);
  DeleteFileA(record.c_str());
}

TEST_F(RealLinks, ShowTheirAddressAsToolTip) {
  Link().SetHyperLink("http://elsewhere.example/");
  ASSERT_TRUE(PointAt(5, 5));
  EXPECT_EQ(Tip(), "http://elsewhere.example/");
}

TEST_F(RealLinks, WithoutAnAddressShowNoToolTip) {
  ASSERT_TRUE(PointAt(5, 5));
  EXPECT_EQ(Tip(), "");
}

TEST_F(RealLinks, AnAddressTakenAwayTakesTheToolTipAtTheNextEntry) {
  Link().SetHyperLink("http://elsewhere.example/");
  ASSERT_TRUE(PointAt(5, 5));
  Link().SetHyperLink("");
  EXPECT_EQ(Tip(), "http://elsewhere.example/");
  ASSERT_TRUE(GoAway());
  ASSERT_TRUE(PointAt(5, 5));
  EXPECT_EQ(Tip(), "");
}

TEST_F(RealLinks, WithoutAutoToolTipShowTheWindowsOwn) {
  Link().SetAutoToolTip(false);
  // The tip is chosen at an entry.
  ASSERT_TRUE(GoAway());
  ASSERT_TRUE(PointAt(5, 5));
  EXPECT_EQ(Tip(), OwnTip);
}

TEST_F(RealLinks, TheirToolTipLiesBesideThem) {
  Link().SetAutoToolTip(false);
  ASSERT_TRUE(GoAway());
  ASSERT_TRUE(PointAt(5, 5));
  HWND tips = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindTips, reinterpret_cast<LPARAM>(&tips));
  ASSERT_NE(tips, nullptr);
  SetWindowPos(tips, nullptr, 0, 0, 90, 20, SWP_NOZORDER | SWP_NOACTIVATE);
  NMHDR notice{tips, reinterpret_cast<UINT_PTR>(Window()), static_cast<UINT>(TTN_SHOW)};
  EXPECT_TRUE(SendMessageA(reinterpret_cast<HWND>(form_.hWnd()), WM_NOTIFY, notice.idFrom,
                           reinterpret_cast<LPARAM>(&notice)));
  RECT tip{};
  GetWindowRect(tips, &tip);
  EXPECT_EQ(tip.left, OnScreen().right);
  EXPECT_EQ(tip.top, OnScreen().top);
}

TEST_F(RealLinks, WithoutAutoSizeALongCaptionIsCutAtTheirWidth) {
  Link().SetAutoSize(false);
  const RECT before = OnScreen();
  Link().SetCaption("A caption that is a good deal longer than the link is wide, on any screen");
  const RECT after = OnScreen();
  EXPECT_TRUE(EqualRect(&before, &after));
  EXPECT_EQ(Link().lblHyperlink.At().Width, Link().At().Width);
  Link().SetAutoSize(true);
  EXPECT_GT(OnScreen().right, before.right);
}

// The colour of a pixel of what the window paints.
COLORREF PaintedAt(HWND window, int x, int y) {
  RECT area{};
  GetClientRect(window, &area);
  const HDC screen = GetDC(nullptr);
  const HDC context = CreateCompatibleDC(screen);
  const HBITMAP picture = CreateCompatibleBitmap(screen, area.right, area.bottom);
  ReleaseDC(nullptr, screen);
  const HGDIOBJ before = SelectObject(context, picture);
  SendMessageA(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(context), PRF_CLIENT);
  const COLORREF color = GetPixel(context, x, y);
  SelectObject(context, before);
  DeleteObject(picture);
  DeleteDC(context);
  return color;
}

// Where the focus mark ends: the last pixel that the focus changes on the link's upper edge.
int MarkEnd(controls::HyperLink& link, CommandButton& other) {
  const auto window = reinterpret_cast<HWND>(link.WindowHandle());
  RECT area{};
  GetClientRect(window, &area);
  for (int x = area.right - 1; x >= 0; --x) {
    for (const int y : {0, 1}) {
      other.SetFocus();
      const COLORREF without = PaintedAt(window, x, y);
      link.SetFocus();
      if (PaintedAt(window, x, y) != without) return x;
    }
  }
  return -1;
}

TEST_F(RealLinks, TheFocusMarkEndsWithTheText) {
  Link().SetCaption("Link");
  const int end = MarkEnd(Link(), form_.First);
  EXPECT_GT(end, 5);
  Link().SetCaption("Link     ");
  EXPECT_EQ(MarkEnd(Link(), form_.First), end);
  Link().SetCaption("Li&nk");
  EXPECT_EQ(MarkEnd(Link(), form_.First), end);
}

TEST_F(RealLinks, ABorderIsALineAroundTheText) {
  const RECT plain = OnScreen();
  const COLORREF ground = PaintedAt(Window(), 0, 0);
  Link().SetBorderStyle(1);
  Link().SyncSize();
  const RECT framed = OnScreen();
  EXPECT_EQ(framed.right - framed.left, plain.right - plain.left + 2);
  EXPECT_EQ(framed.bottom - framed.top, plain.bottom - plain.top + 2);
  const COLORREF line = GetSysColor(COLOR_WINDOWTEXT);
  ASSERT_NE(ground, line);
  const int right = static_cast<int>(framed.right - framed.left) - 1;
  const int bottom = static_cast<int>(framed.bottom - framed.top) - 1;
  EXPECT_EQ(PaintedAt(Window(), 0, 0), line);
  EXPECT_EQ(PaintedAt(Window(), right, bottom), line);
  EXPECT_EQ(PaintedAt(Window(), right - 1, bottom - 1), ground);
  Link().SetBorderStyle(0);
  Link().SyncSize();
  EXPECT_EQ(PaintedAt(Window(), 0, 0), ground);
}

}  // namespace
}  // namespace vantrel::forms::win32
