// The palette under the schemes that users choose.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "forms/ColorScheme.h"

namespace vantrel::forms {
namespace {

constexpr Color Black = Rgb(0, 0, 0);
constexpr Color White = Rgb(255, 255, 255);

// What a scheme gives for the colours of the palette.
struct SchemeCase {
  const char* Name;
  bool HighContrast;
  Color Window, WindowText, Highlight, HighlightText, ButtonFace, ButtonText, GrayText, HotLight;
};

constexpr SchemeCase Ordinary{"Ordinary",
                              false,
                              White,
                              Black,
                              Rgb(49, 106, 197),
                              White,
                              Rgb(236, 233, 216),
                              Black,
                              Rgb(172, 168, 153),
                              Rgb(0, 0, 128)};
constexpr SchemeCase HighContrastSchemes[] = {
    {"Black", true, Black, White, Rgb(128, 0, 128), White, Black, White, Rgb(0, 255, 0),
     Rgb(128, 128, 255)},
    {"White", true, White, Black, Black, White, White, Black, Rgb(0, 128, 0), Rgb(0, 0, 128)},
    {"One", true, Black, Rgb(255, 255, 0), Rgb(0, 128, 0), White, Black, Rgb(255, 255, 0),
     Rgb(0, 255, 0), Rgb(128, 128, 255)},
    {"Two", true, Black, Rgb(0, 255, 0), Rgb(0, 0, 255), White, Black, Rgb(0, 255, 0),
     Rgb(0, 255, 0), Rgb(128, 128, 255)},
    // One whose links and disabled texts cannot be read on its own windows.
    {"Careless", true, Black, White, Rgb(32, 32, 32), Rgb(64, 64, 64), Rgb(0, 0, 96), White,
     Rgb(48, 48, 48), Rgb(0, 0, 128)},
    {"Dark", false, Rgb(32, 32, 32), Rgb(230, 230, 230), Rgb(60, 90, 160), White, Rgb(50, 50, 50),
     Rgb(230, 230, 230), Rgb(130, 130, 130), Rgb(120, 170, 255)}};

ColorScheme SchemeOf(const SchemeCase& colors) {
  ColorScheme::SystemColors system{};
  system[2] = colors.Highlight;
  system[5] = colors.Window;
  system[8] = colors.WindowText;
  system[13] = colors.Highlight;
  system[14] = colors.HighlightText;
  system[15] = colors.ButtonFace;
  system[17] = colors.GrayText;
  system[18] = colors.ButtonText;
  system[26] = colors.HotLight;
  return {system, colors.HighContrast};
}

class HighContrast : public testing::TestWithParam<SchemeCase> {
 protected:
  const ColorScheme scheme_ = SchemeOf(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Schemes, HighContrast, testing::ValuesIn(HighContrastSchemes),
                         [](const auto& tested) { return tested.param.Name; });

// Every surface of the windows with every text that may stand on it.
TEST_P(HighContrast, EveryTextCanBeReadOnEveryGround) {
  const std::vector<Color> grounds{
      palette::Window,      palette::NavigationBack, palette::PanelBack, palette::Card,
      palette::HeadingFrom, palette::HeadingTo,      palette::TitleFrom, palette::TitleTo,
      palette::ToolbarFrom, palette::ToolbarTo,      palette::Highlight, palette::ButtonFace,
      palette::Popups,      palette::Dhtml,          palette::Dialogs,   palette::Banners,
      palette::Flash};
  const std::vector<Color> texts{
      palette::WindowText, palette::ButtonText,    palette::GrayText,   palette::LinkText,
      palette::LinkHover,  palette::DefaultHover,  palette::PureBlue,   palette::FrameText,
      palette::NoteText,   palette::Figure,        palette::TitleText,  palette::HighlightText,
      palette::HotLight,   palette::ActiveCaption, palette::HeadingFrom};
  for (const Color ground : grounds) {
    for (const Color text : texts) {
      EXPECT_GE(ContrastBetween(scheme_.TextOn(text, ground), scheme_.Of(ground)), 4.5)
          << std::hex << text << " on " << ground;
    }
  }
}

TEST_P(HighContrast, TheProgramsOwnSurfacesTakeTheSchemesColours) {
  EXPECT_TRUE(scheme_.Contrast());
  const SchemeCase& colors = GetParam();
  const std::vector<std::pair<Color, Color>> rows{{palette::NavigationBack, colors.Window},
                                                  {palette::PanelBack, colors.Window},
                                                  {palette::Card, colors.Window},
                                                  {palette::HeadingFrom, colors.ButtonFace},
                                                  {palette::HeadingTo, colors.ButtonFace},
                                                  {palette::TitleFrom, colors.Highlight},
                                                  {palette::TitleTo, colors.Highlight},
                                                  {palette::ToolbarFrom, colors.ButtonFace},
                                                  {palette::ToolbarTo, colors.ButtonFace},
                                                  {palette::FrameLine, colors.WindowText},
                                                  {palette::TitleText, colors.HighlightText}};
  for (const auto& [own, shown] : rows) EXPECT_EQ(scheme_.Of(own), shown) << std::hex << own;
}

TEST_P(HighContrast, ATextThatCanBeReadIsShownAsItIsWanted) {
  EXPECT_EQ(scheme_.TextOn(palette::WindowText, palette::Window), GetParam().WindowText);
}

TEST(ColorScheme, AnOrdinarySchemeLeavesTheProgramItsColours) {
  const ColorScheme scheme = SchemeOf(Ordinary);
  EXPECT_FALSE(scheme.Contrast());
  for (const Color own : {palette::NavigationBack, palette::PanelBack, palette::TitleFrom,
                          palette::LinkText, palette::ToolbarTo}) {
    EXPECT_EQ(scheme.Of(own), own);
    EXPECT_EQ(scheme.TextOn(own, palette::PanelBack), own);
  }
  EXPECT_EQ(scheme.Of(palette::Highlight), Ordinary.Highlight);
}

TEST(ColorScheme, TheUsersChoiceAloneReplacesThem) {
  SchemeCase chosen = Ordinary;
  chosen.HighContrast = true;
  EXPECT_NE(SchemeOf(chosen), SchemeOf(Ordinary));
  EXPECT_EQ(SchemeOf(chosen).Of(palette::NavigationBack), White);
}

TEST(ColorScheme, AnIndexThatTheSchemeLacksIsBlack) {
  EXPECT_EQ(SchemeOf(Ordinary).Of(SystemColor(31)), Black);
}

TEST(ColorScheme, ContrastGoesFromOneToTwentyOne) {
  EXPECT_DOUBLE_EQ(ContrastBetween(White, White), 1);
  EXPECT_DOUBLE_EQ(ContrastBetween(White, Black), 21);
  EXPECT_DOUBLE_EQ(ContrastBetween(Black, White), 21);
  EXPECT_NEAR(ContrastBetween(Rgb(0, 0, 255), White), 8.59, 0.01);
}

}  // namespace
}  // namespace vantrel::forms
