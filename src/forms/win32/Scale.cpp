#include "forms/win32/Scale.h"

#include "forms/win32/Handles.h"

namespace vantrel::forms::win32 {

Scale Scale::OfScreen() {
  const WindowContext screen(nullptr);
  const int dpi = GetDeviceCaps(screen.Get(), LOGPIXELSX);
  return Scale(dpi > 0 ? dpi : DesignDpi);
}

}  // namespace vantrel::forms::win32
