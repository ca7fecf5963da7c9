// Every text fits its control, nothing overlaps and nothing is cut off, at every resolution.
#include <algorithm>
#include <map>

#include "LookFixture.h"

namespace vantrel::e2e {
namespace {

constexpr UINT DpiChanged = 0x02E0;  // WM_DPICHANGED
constexpr int ButtonMargin = 4;      // pixels on each side of a caption
constexpr int GlyphRoom = 17;        // at 96 dots per inch: a check mark and what lies behind it
constexpr int CaptionIndent = 11;    // at 96 dots per inch: where a frame's caption begins

// Names of what shows no text of its own though it has one, for those who cannot see it.
bool IsSilent(const Seen& control) {
  static constexpr const char* Kinds[] = {"SysListView32", "ListBox", "msctls_progress32",
                                          "ToolbarWindow32", "msctls_statusbar32"};
  return control.Text.empty() || control.Name == "FrmFrameGraph.MSChart1" ||
         control.Name.find(".Image") != std::string::npos || control.Name == "frmMain.PicBase" ||
         control.Name == "frmMain.frahelp" || control.Name.find(".Img") != std::string::npos ||
         std::find(std::begin(Kinds), std::end(Kinds), control.Kind) != std::end(Kinds);
}

// What scrolls or breaks within itself.
bool IsField(const Seen& control) { return control.Kind == "Edit" || control.Kind == "ComboBox"; }

bool IsContainer(const Seen& control) {
  return (GetWindowLongA(control.Window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
}

SIZE Measured(const std::string& text, const LOGFONTA& font, int width, UINT flags) {
  const HDC screen = GetDC(nullptr);
  const HFONT made = CreateFontIndirectA(&font);
  const HGDIOBJ before = SelectObject(screen, made);
  RECT area{0, 0, width, 0};
  DrawTextA(screen, text.c_str(), static_cast<int>(text.size()), &area, flags | DT_CALCRECT);
  SelectObject(screen, before);
  DeleteObject(made);
  ReleaseDC(nullptr, screen);
  return {area.right, area.bottom};
}

SIZE InsideOf(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return {area.right, area.bottom};
}

RECT InParent(HWND window) {
  RECT area = OnScreen(window);
  MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&area), 2);
  return area;
}

std::string Show(const RECT& area) {
  return std::to_string(area.left) + "," + std::to_string(area.top) + "-" +
         std::to_string(area.right) + "," + std::to_string(area.bottom);
}

std::string Show(const SIZE& size) {
  return std::to_string(size.cx) + " x " + std::to_string(size.cy);
}

std::string Trimmed(const std::string& text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

class LookTest : public LookFixture, public testing::WithParamInterface<int> {
 protected:
  int Scaled(int pixels) const { return MulDiv(pixels, GetParam(), DesignDpi); }

  SIZE Needed(const Seen& control, const SIZE& room) const {
    const LOGFONTA font = Within().FontOf(control.Window);
    if (control.Kind == "Button") {
      const bool pushed = (GetWindowLongA(control.Window, GWL_STYLE) & BS_TYPEMASK) <=
                          static_cast<LONG>(BS_DEFPUSHBUTTON);
      const SIZE text = Measured(control.Text, font, 0, DT_SINGLELINE);
      return {text.cx + (pushed ? 2 * ButtonMargin : Scaled(GlyphRoom)), text.cy};
    }
    if (IsContainer(control)) {
      const SIZE text = Measured(Trimmed(control.Text), font, 0, DT_SINGLELINE);
      return {text.cx + 2 * Scaled(CaptionIndent), text.cy};
    }
    return Measured(Trimmed(control.Text), font, room.cx, DT_WORDBREAK | DT_EXPANDTABS);
  }

  std::string Unfitting(const std::vector<Seen>& controls) const {
    std::string found;
    for (const Seen& control : controls) {
      if (IsSilent(control) || IsField(control)) continue;
      const SIZE room = InsideOf(control.Window);
      const SIZE needed = Needed(control, room);
      if (needed.cx <= room.cx && needed.cy <= room.cy) continue;
      found += control.Name + " '" + control.Text + "' needs " + Show(needed) + " of " +
               Show(room) + "\n";
    }
    return found;
  }

  static std::string Overlapping(const std::vector<Seen>& controls) {
    std::string found;
    for (std::size_t one = 0; one < controls.size(); ++one) {
      for (std::size_t other = one + 1; other < controls.size(); ++other) {
        const HWND first = controls[one].Window;
        const HWND second = controls[other].Window;
        if (GetAncestor(first, GA_PARENT) != GetAncestor(second, GA_PARENT)) continue;
        const RECT left = OnScreen(first);
        const RECT right = OnScreen(second);
        RECT common{};
        if (!IntersectRect(&common, &left, &right)) continue;
        found += controls[one].Name + " " + Show(InParent(first)) + " and " + controls[other].Name +
                 " " + Show(InParent(second)) + "\n";
      }
    }
    return found;
  }

  static std::string Outside(const std::vector<Seen>& controls) {
    std::string found;
    for (const Seen& control : controls) {
      const RECT area = InParent(control.Window);
      const SIZE room = InsideOf(GetAncestor(control.Window, GA_PARENT));
      if (area.left >= 0 && area.top >= 0 && area.right <= room.cx && area.bottom <= room.cy) {
        continue;
      }
      found += control.Name + " " + Show(area) + " in " + Show(room) + "\n";
    }
    return found;
  }

  // Each edge lies where the design's does, scaled and rounded by itself.
  std::string OffGrid(const std::vector<Seen>& controls) const {
    static std::map<std::string, RECT> designed;
    std::string found;
    for (const Seen& control : controls) {
      const RECT area = InParent(control.Window);
      if (control.Name == "frmMain.sbStatusBar") continue;
      if (GetParam() == DesignDpi) designed[control.Name] = area;
      const auto known = designed.find(control.Name);
      if (known == designed.end()) {
        found += control.Name + " was not measured at " + std::to_string(DesignDpi) + " first\n";
        continue;
      }
      if (area.left == Scaled(known->second.left) && area.top == Scaled(known->second.top))
        continue;
      found += control.Name + " at " + Show(area) + ", designed " + Show(known->second) + "\n";
    }
    return found;
  }

  void Inspect(const std::string& form) const {
    const std::vector<Seen> controls = ControlsOf(form);
    ASSERT_FALSE(controls.empty()) << form;
    EXPECT_EQ(Unfitting(controls), "") << form;
    EXPECT_EQ(Overlapping(controls), "") << form;
    EXPECT_EQ(Outside(controls), "") << form;
    EXPECT_EQ(OffGrid(controls), "") << form;
  }
};

TEST_P(LookTest, EveryControlOfEveryPanelHasItsPlace) {
  Start(GetParam());
  Inspect("frmMain");
  for (const Screen& screen : Panels) {
    ASSERT_TRUE(Shown().Open(screen)) << screen.Panel;
    Inspect(screen.Panel);
  }
}

TEST_P(LookTest, EveryControlOfTheHelpFrameHasItsPlace) {
  Start(GetParam());
  Shown().Choose("submnuLaunchHelp");
  ASSERT_TRUE(WaitFor([&] { return IsWindowVisible(Shown().Find("frmMain.frahelp")) != FALSE; }));
  Inspect("frmMain");
}

TEST_P(LookTest, EveryControlOfTheDialogsHasItsPlace) {
  Start(GetParam());
  InDialog("submnuAbout", "FrmAbout", [this] { Inspect("FrmAbout"); });
  InDialog("submnuIEToolbar", "frmcustom", [this] { Inspect("frmcustom"); });
}

TEST_P(LookTest, TheMainWindowFitsASmallScreen) {
  Start(GetParam());
  const RECT area = OnScreen(Main());
  EXPECT_LE(area.right - area.left, Scaled(800));
  EXPECT_LE(area.bottom - area.top, Scaled(600));
}

class ResolutionTest : public LookFixture {
 protected:
  // Where every control of the main window and its panels lies in its parent, with the height of
  // its font; without what follows from the frame, which is the desktop's.
  std::map<std::string, std::string> Places() const {
    std::map<std::string, std::string> places;
    for (const auto& [name, window] : Shown().Named()) {
      if (name.find('.') == std::string::npos || name == "frmMain.sbStatusBar") continue;
      const RECT area = InParent(window);
      places[name] = std::to_string(area.left) + "," + std::to_string(area.top);
      // What spans the window is as wide as that, whose frame is rounded by itself.
      const bool spans = name == "frmMain.Toolbar1" || name == "frmMain.lblVCP1";
      if (!spans) places[name] += " wide " + std::to_string(area.right - area.left);
      // Without a font of its own a window has the system's, which stays as it was at the start.
      const LONG height = Within().FontOf(window).lfHeight;
      if (height < 0) places[name] += " font " + std::to_string(height);
    }
    return places;
  }
  using Rows = std::map<std::string, std::string>;
  static void ExpectSame(const Rows& places, const Rows& wanted) {
    EXPECT_EQ(places.size(), wanted.size());
    for (const auto& [name, place] : wanted) {
      const auto found = places.find(name);
      EXPECT_EQ(found == places.end() ? "" : found->second, place) << name;
    }
  }
  void OpenAll() const {
    for (const Screen& screen : Panels) ASSERT_TRUE(Shown().Open(screen)) << screen.Panel;
  }
};

TEST_F(ResolutionTest, AChangeOfItIsAsAFreshStart) {
  constexpr int Other = 144;
  Start(Other);
  OpenAll();
  const auto fresh = Places();
  End();
  Start();
  OpenAll();
  const auto before = Places();
  SendMessageA(Main(), DpiChanged, MAKEWPARAM(Other, Other), 0);
  ExpectSame(Places(), fresh);
  SendMessageA(Main(), DpiChanged, MAKEWPARAM(DesignDpi, DesignDpi), 0);
  ExpectSame(Places(), before);
}

INSTANTIATE_TEST_SUITE_P(AllResolutions, LookTest, testing::Values(96, 120, 144, 192),
                         [](const auto& tested) { return std::to_string(tested.param) + "Dpi"; });

}  // namespace
}  // namespace vantrel::e2e
