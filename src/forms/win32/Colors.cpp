#include "forms/win32/Colors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantrel::forms::win32 {
namespace {

struct Substitute {
  Color Own;
  Color Scheme;
};

constexpr std::array SchemeColors{
    Substitute{palette::NavigationBack, palette::Window},
    Substitute{palette::PanelBack, palette::Window},
    Substitute{palette::Card, palette::Window},
    Substitute{palette::LinkText, palette::HotLight},
    Substitute{palette::LinkHover, palette::HotLight},
    Substitute{palette::DefaultHover, palette::HotLight},
    Substitute{palette::FrameLine, palette::WindowText},
    Substitute{palette::FrameText, palette::WindowText},
    Substitute{palette::NoteText, palette::WindowText},
    Substitute{palette::HeadingFrom, palette::ButtonFace},
    Substitute{palette::HeadingTo, palette::ButtonFace},
    Substitute{palette::TitleFrom, palette::Highlight},
    Substitute{palette::TitleTo, palette::Highlight},
    Substitute{palette::TitleText, palette::HighlightText},
    Substitute{palette::ToolbarFrom, palette::ButtonFace},
    Substitute{palette::ToolbarTo, palette::ButtonFace},
};

constexpr Color SystemBit = 0x80000000U;
constexpr double DarkLuminance = 0.35;
constexpr double ReadableContrast = 4.5;

double Luminance(COLORREF color) {
  const auto part = [](BYTE value) {
    const double share = value / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(GetRValue(color)) + 0.7152 * part(GetGValue(color)) +
         0.0722 * part(GetBValue(color));
}

bool HighContrastChosen() {
  HIGHCONTRASTA chosen{};
  chosen.cbSize = sizeof chosen;
  return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof chosen, &chosen, 0) &&
         (chosen.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace

double ContrastBetween(COLORREF one, COLORREF other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

COLORREF Colors::Screen(Color color) const {
  if ((color & SystemBit) == 0) return color & ~0xFF000000U;
  const std::size_t index = color & ~SystemBit;
  return index < scheme_.size() ? scheme_[index] : GetSysColor(static_cast<int>(index));
}

void Colors::Refresh() {
  for (int index = 0; index < SchemeSize; ++index) {
    scheme_[static_cast<std::size_t>(index)] = GetSysColor(index);
  }
  contrast_ = HighContrastChosen() || Luminance(Screen(palette::Window)) < DarkLuminance;
  brushes_.clear();
}

COLORREF Colors::Of(Color color) const {
  if (contrast_) {
    const auto* row = std::find_if(SchemeColors.begin(), SchemeColors.end(),
                                   [&](const Substitute& s) { return s.Own == color; });
    if (row != SchemeColors.end()) return Screen(row->Scheme);
  }
  return Screen(color);
}

COLORREF Colors::TextOn(Color text, Color ground) const {
  const COLORREF wanted = Of(text);
  if (!contrast_ || ContrastBetween(wanted, Of(ground)) >= ReadableContrast) return wanted;
  const COLORREF one = Of(palette::WindowText);
  const COLORREF other = Of(palette::Window);
  return ContrastBetween(one, Of(ground)) >= ContrastBetween(other, Of(ground)) ? one : other;
}

HBRUSH Colors::BrushOf(Color color) const {
  Brush& brush = brushes_[Of(color)];
  if (!brush.Valid()) brush = Brush(CreateSolidBrush(Of(color)));
  return brush.Get();
}

}  // namespace vantrel::forms::win32
