#include "forms/win32/Modality.h"

#include <utility>

#include "forms/win32/FormWindow.h"
#include "forms/win32/HandleOf.h"

namespace vantrel::forms::win32 {

void Modality::Begin(const WindowSystem& system, const FormWindow& dialog) {
  holds_ = true;
  for (const Form* other : system.LoadedForms()) {
    const HWND window = HandleOf(*other);
    if (window == dialog.Handle() || GetAncestor(window, GA_ROOT) != window ||
        !IsWindowEnabled(window)) {
      continue;
    }
    disabled_.push_back(window);
    EnableWindow(window, FALSE);
  }
}

bool Modality::End() {
  const bool held = std::exchange(holds_, false);
  for (const HWND window : std::exchange(disabled_, {})) EnableWindow(window, TRUE);
  return held;
}

}  // namespace vantrel::forms::win32
