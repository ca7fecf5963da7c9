// Every text can be read, in the ordinary colours and in inverted ones.
#include "LookFixture.h"
#include "Pixels.h"

namespace vantrel::e2e {
namespace {

constexpr double Readable = 4.5;

class ColourTest : public LookFixture {
 protected:
  // A caption in the middle of a gradient is measured against its commonest colour.
  std::string Unreadable(const std::string& form) const {
    std::string found;
    for (const Seen& control : ControlsOf(form)) {
      const bool isContainer =
          (GetWindowLongA(control.Window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
      const bool hasCaption = control.Kind == "Button" || control.Kind == "VantrelWindow";
      if (!hasCaption || isContainer || control.Text.empty()) continue;
      if (!IsWindowEnabled(control.Window)) continue;
      const double contrast = ContrastWithin(PixelsOf(OnScreen(control.Window)));
      if (contrast >= Readable) continue;
      found += control.Name + " '" + control.Text + "': " + std::to_string(contrast) + "\n";
    }
    return found;
  }

  void ExpectAllReadable() const {
    for (const Screen& screen : Panels) {
      ASSERT_TRUE(Shown().Open(screen));
      for (const char* form : {"frmMain", screen.Panel}) {
        std::string unreadable;
        EXPECT_TRUE(WaitFor([&] { return (unreadable = Unreadable(form)).empty(); }, 2000))
            << form << "\n"
            << unreadable;
      }
    }
  }
};

TEST_F(ColourTest, EveryTextCanBeReadInTheOrdinaryColours) {
  Start();
  SetForegroundWindow(Main());
  ExpectAllReadable();
}

TEST_F(ColourTest, EveryTextCanBeReadInInvertedColours) {
  Start();
  SetForegroundWindow(Main());
  Within().InvertColors();
  ExpectAllReadable();
}

}  // namespace
}  // namespace vantrel::e2e
