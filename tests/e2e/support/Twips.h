// Sizes as the windows' design has them, on this screen.
#ifndef VANTREL_TESTS_E2E_SUPPORT_TWIPS_H_
#define VANTREL_TESTS_E2E_SUPPORT_TWIPS_H_

#include <windows.h>

namespace vantrel::e2e {

inline int Pixels(int twips) {
  constexpr int TwipsAnInch = 1440;
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return MulDiv(twips, dpi, TwipsAnInch);
}

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_TWIPS_H_
