#include "Pixels.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace vantrel::e2e {
namespace {

double Luminance(COLORREF color) {
  const auto part = [](BYTE value) {
    const double share = value / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(GetRValue(color)) + 0.7152 * part(GetGValue(color)) +
         0.0722 * part(GetBValue(color));
}

double Contrast(COLORREF one, COLORREF other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace

std::vector<COLORREF> PixelsOf(const RECT& area) {
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  std::vector<COLORREF> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  const HDC screen = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(screen);
  const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
  const HGDIOBJ before = SelectObject(memory, bitmap);
  BitBlt(memory, 0, 0, width, height, screen, area.left, area.top, SRCCOPY);
  SelectObject(memory, before);
  BITMAPINFO form{};
  form.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  GetDIBits(screen, bitmap, 0, static_cast<UINT>(height), pixels.data(), &form, DIB_RGB_COLORS);
  DeleteObject(bitmap);
  DeleteDC(memory);
  ReleaseDC(nullptr, screen);
  // A bitmap's blue and red stand the other way round.
  for (COLORREF& pixel : pixels) {
    pixel = RGB(GetBValue(pixel), GetGValue(pixel), GetRValue(pixel));
  }
  return pixels;
}

COLORREF GroundWithin(const std::vector<COLORREF>& pixels) {
  std::map<COLORREF, int> counts;
  for (const COLORREF pixel : pixels) ++counts[pixel];
  if (counts.empty()) return CLR_INVALID;
  return std::max_element(
             counts.begin(), counts.end(),
             [](const auto& one, const auto& other) { return one.second < other.second; })
      ->first;
}

double ContrastWithin(const std::vector<COLORREF>& pixels) {
  const COLORREF ground = GroundWithin(pixels);
  double most = 1;
  for (const COLORREF color : std::set<COLORREF>(pixels.begin(), pixels.end())) {
    most = std::max(most, Contrast(color, ground));
  }
  return most;
}

}  // namespace vantrel::e2e
