#include "forms/ColorScheme.h"

#include <algorithm>
#include <cmath>

namespace vantrel::forms {
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

constexpr bool NamesEachColorOnce() {
  for (const Substitute& one : SchemeColors) {
    const auto same = [&](const Substitute& other) { return other.Own == one.Own; };
    if (std::count_if(SchemeColors.begin(), SchemeColors.end(), same) != 1) return false;
  }
  return true;
}
static_assert(NamesEachColorOnce());

// What a scheme writes its own texts with, for a ground on which the wanted colour cannot be read.
constexpr std::array Inks{palette::WindowText, palette::Window, palette::ButtonText,
                          palette::HighlightText};

constexpr Color SystemBit = 0x80000000U;
constexpr double DarkLuminance = 0.35;
constexpr double ReadableContrast = 4.5;

double Luminance(Color color) {
  const auto part = [color](unsigned shift) {
    const double share = (color >> shift & 255U) / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

}  // namespace

double ContrastBetween(Color one, Color other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

ColorScheme::ColorScheme(const SystemColors& system, bool highContrast) : system_(system) {
  contrast_ = highContrast || Luminance(Screen(palette::Window)) < DarkLuminance;
}

Color ColorScheme::Screen(Color color) const {
  if ((color & SystemBit) == 0) return color & ~0xFF000000U;
  const std::size_t index = color & ~SystemBit;
  return index < Size ? system_[index] : 0;
}

Color ColorScheme::Of(Color color) const {
  if (contrast_) {
    const auto* row = std::find_if(SchemeColors.begin(), SchemeColors.end(),
                                   [&](const Substitute& s) { return s.Own == color; });
    if (row != SchemeColors.end()) return Screen(row->Scheme);
  }
  return Screen(color);
}

Color ColorScheme::TextOn(Color text, Color ground) const {
  const Color wanted = Of(text);
  const auto contrast = [&](Color ink) { return ContrastBetween(Of(ink), Of(ground)); };
  if (!contrast_ || contrast(text) >= ReadableContrast) return wanted;
  return Of(*std::max_element(Inks.begin(), Inks.end(), [&](Color one, Color other) {
    return contrast(one) < contrast(other);
  }));
}

}  // namespace vantrel::forms
