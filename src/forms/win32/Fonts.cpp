#include "forms/win32/Fonts.h"

#include <cmath>

namespace vantrel::forms::win32 {
namespace {

constexpr const char* DialogFont = "MS Shell Dlg 2";
constexpr int PointsPerInch = 72;

}  // namespace

HFONT Fonts::Of(const Font& font) {
  const std::string name = *font.Name != '\0' ? font.Name : DialogFont;
  const int height = static_cast<int>(std::lround(font.Size * scale_.Dpi() / PointsPerInch));
  FontHandle& made = fonts_[Key(name, height, font.Bold, font.Underline)];
  if (!made.Valid()) {
    made = FontHandle(CreateFontA(-height, 0, 0, 0, font.Bold ? FW_BOLD : FW_NORMAL, FALSE,
                                  font.Underline, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                  CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE,
                                  name.c_str()));
  }
  return made.Get();
}

}  // namespace vantrel::forms::win32
