#include "forms/win32/Modality.h"

#include <utility>

#include "forms/win32/FormWindow.h"
#include "forms/win32/HandleOf.h"

namespace vantrel::forms::win32 {
namespace {

struct Search {
  const WindowSystem& System;
  HWND Found;
};

// Tips and the lists of combo boxes are top-level windows too, without a caption.
bool TakesInput(HWND window) {
  return IsWindowVisible(window) && IsWindowEnabled(window) &&
         (GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
}

// From the topmost window down, until one answers false.
BOOL CALLBACK FindDialog(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  if (!TakesInput(window)) return TRUE;
  const auto form = search.System.FindForm(window);
  if (form != nullptr && !form->Model().Modal()) return TRUE;
  search.Found = window;
  return FALSE;
}

}  // namespace

HWND DialogInFront(const WindowSystem& system) {
  Search search{system, nullptr};
  EnumThreadWindows(GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&search));
  return search.Found;
}

void Modality::Begin(const WindowSystem& system, const FormWindow& dialog) {
  holds_ = true;
  // Shown within another dialog it was covered by that.
  EnableWindow(dialog.Handle(), TRUE);
  for (const Form* other : system.LoadedForms()) {
    const HWND window = HandleOf(*other);
    if (window != dialog.Handle() && GetAncestor(window, GA_ROOT) == window) Cover(window);
  }
}

void Modality::Cover(HWND shown) {
  if (!IsWindowEnabled(shown)) return;
  disabled_.push_back(shown);
  EnableWindow(shown, FALSE);
}

bool Modality::End() {
  const bool held = std::exchange(holds_, false);
  for (const HWND window : std::exchange(disabled_, {})) EnableWindow(window, TRUE);
  return held;
}

}  // namespace vantrel::forms::win32
