// Every text can be read, in the ordinary colours, in inverted ones and under high contrast, and a
// change of the scheme is followed.
#include <map>

#include "LookFixture.h"
#include "Pixels.h"

namespace vantrel::e2e {
namespace {

constexpr double Readable = 4.5;

class ColourTest : public LookFixture {
 protected:
  // Where a control shows text on a ground of one colour, on the screen; empty where it shows none.
  static RECT TextAreaOf(const Seen& control) {
    if (control.Kind == "SysListView32") {
      return OnScreen(FindWindowExA(control.Window, nullptr, "SysHeader32", nullptr));
    }
    if (control.Text.empty()) return {};
    if (control.Kind == "msctls_statusbar32") {
      // The word before the gradient's end, within the border.
      const RECT bar = OnScreen(control.Window);
      return {bar.left + 4, bar.top + 4, bar.left + 50, bar.bottom - 3};
    }
    if (control.Kind == "ComboBox") {
      COMBOBOXINFO info{};
      info.cbSize = sizeof info;
      GetComboBoxInfo(control.Window, &info);
      MapWindowPoints(control.Window, nullptr, reinterpret_cast<POINT*>(&info.rcItem), 2);
      return info.rcItem;
    }
    if (control.Kind == "Edit") {
      RECT area{};
      GetClientRect(control.Window, &area);
      MapWindowPoints(control.Window, nullptr, reinterpret_cast<POINT*>(&area), 2);
      return area;
    }
    const bool isContainer =
        (GetWindowLongA(control.Window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
    const bool hasCaption = control.Kind == "Button" || control.Kind == "VantrelWindow";
    if (!hasCaption) return {};
    const RECT area = OnScreen(control.Window);
    // A frame's line is interrupted for its caption.
    return isContainer ? RECT{area.left + 12, area.top, area.left + 40, area.top + 15} : area;
  }

  // The commonest colour of each surface that the program draws in colours of its own.
  std::map<std::string, COLORREF> GroundsOf(const std::string& form) const {
    std::map<std::string, COLORREF> grounds;
    for (const Seen& control : ControlsOf(form)) {
      if (control.Kind != "VantrelWindow" && control.Kind != "msctls_statusbar32" &&
          control.Kind != "ToolbarWindow32") {
        continue;
      }
      // Pictures are the same under every scheme.
      if (control.Name.find(".Im") != std::string::npos) continue;
      grounds[control.Name] = GroundWithin(PixelsOf(OnScreen(control.Window)));
    }
    return grounds;
  }

  static std::string Common(const std::map<std::string, COLORREF>& one,
                            const std::map<std::string, COLORREF>& other) {
    std::string common;
    for (const auto& [name, color] : one) {
      const auto found = other.find(name);
      // The scheme's own windows are white as well.
      if (color != 0xFFFFFF && found != other.end() && found->second == color)
        common += name + "\n";
    }
    return common;
  }

  // A caption in the middle of a gradient is measured against its commonest colour.
  std::string Unreadable(const std::string& form) const {
    std::string found;
    for (const Seen& control : ControlsOf(form)) {
      if (!IsWindowEnabled(control.Window)) continue;
      const RECT area = TextAreaOf(control);
      if (IsRectEmpty(&area)) continue;
      const double contrast = ContrastWithin(PixelsOf(area));
      if (contrast >= Readable) continue;
      found += control.Name + " '" + control.Text + "': " + std::to_string(contrast) + "\n";
    }
    return found;
  }

  void ExpectReadable(const std::string& form) const {
    std::string unreadable;
    EXPECT_TRUE(WaitFor([&] { return (unreadable = Unreadable(form)).empty(); }, 2000))
        << form << "\n"
        << unreadable;
  }

  void ExpectAllReadable() const {
    for (const Screen& screen : Panels) {
      ASSERT_TRUE(Shown().Open(screen));
      ExpectReadable("frmMain");
      ExpectReadable(screen.Panel);
    }
    // From a panel that leaves the Welcome panel, which lies above the frame, hidden.
    ASSERT_TRUE(Shown().Open(Panels[2]));
    Shown().MouseClick("frmMain.LnkHelp");
    ASSERT_TRUE(WaitFor([&] { return IsWindowVisible(Shown().Find("frmMain.frahelp")) != FALSE; }));
    ExpectReadable("frmMain");
    InDialog("submnuAbout", "FrmAbout", [this] { ExpectReadable("FrmAbout"); });
    InDialog("submnuIEToolbar", "frmcustom", [this] { ExpectReadable("frmcustom"); });
  }
};

TEST_F(ColourTest, EveryTextCanBeReadInTheOrdinaryColours) {
  Start();
  SetForegroundWindow(Main());
  ExpectAllReadable();
}

class OtherSchemes : public ColourTest, public testing::WithParamInterface<inside::Scheme> {
 protected:
  void TearDown() override {
    Within().Choose(inside::Scheme::Own);
    ColourTest::TearDown();
  }
};

TEST_P(OtherSchemes, EveryTextCanBeRead) {
  Start();
  SetForegroundWindow(Main());
  Within().Choose(GetParam());
  ExpectAllReadable();
}

TEST_P(OtherSchemes, NoSurfaceKeepsTheProgramsOwnColours) {
  Start();
  SetForegroundWindow(Main());
  const auto own = GroundsOf("frmMain");
  Within().Choose(GetParam());
  std::string kept;
  EXPECT_TRUE(WaitFor([&] { return (kept = Common(own, GroundsOf("frmMain"))).empty(); }, 2000))
      << kept;
  Within().Choose(inside::Scheme::Own);
  EXPECT_TRUE(WaitFor([&] { return GroundsOf("frmMain") == own; }, 2000));
}

std::string NameOf(const testing::TestParamInfo<inside::Scheme>& tested) {
  constexpr const char* Names[] = {"Own", "Inverted", "Black", "White"};
  return Names[static_cast<int>(tested.param)];
}

INSTANTIATE_TEST_SUITE_P(All, OtherSchemes,
                         testing::Values(inside::Scheme::Inverted,
                                         inside::Scheme::HighContrastBlack,
                                         inside::Scheme::HighContrastWhite),
                         NameOf);

}  // namespace
}  // namespace vantrel::e2e
