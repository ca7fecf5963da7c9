#include <algorithm>

#include "forms/Controls.h"
#include "forms/Keys.h"
#include "forms/win32/FormWindow.h"
#include "forms/win32/HandleOf.h"

namespace vantrel::forms::win32 {

std::shared_ptr<FormWindow> FormWindow::TopPanel() const {
  for (HWND child = GetTopWindow(Handle()); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    auto panel = System().FindForm(child);
    if (panel != nullptr && IsWindowVisible(child)) return panel;
  }
  return nullptr;
}

bool FormWindow::IsCovered(HWND control, const FormWindow& panel) {
  RECT area{};
  RECT cover{};
  RECT common{};
  if (!GetWindowRect(control, &area) || !GetWindowRect(panel.Handle(), &cover)) {
    return false;
  }
  return IntersectRect(&common, &area, &cover) && EqualRect(&common, &area);
}

std::vector<Control*> FormWindow::TabStops() const {
  const auto panel = TopPanel();
  std::vector<Control*> stops = form_.TabOrder();
  std::erase_if(stops, [&](const Control* stop) {
    if (!IsWindow(HandleOf(*stop))) return true;
    if (&stop->Owner() == &form_) return panel != nullptr && IsCovered(HandleOf(*stop), *panel);
    return panel == nullptr || &stop->Owner() != &panel->Model();
  });
  return stops;
}

Control* FormWindow::NextStop(const Control* from, bool backwards) const {
  return forms::NextStop(TabStops(), from, backwards);
}

// Whether the window of a control shows, is enabled, and does not lie under another panel.
bool FormWindow::CanHaveFocus(HWND control) const {
  if (!IsChild(Handle(), control) || !IsWindowVisible(control) || !IsWindowEnabled(control)) {
    return false;
  }
  const auto panel = TopPanel();
  return panel == nullptr || IsChild(panel->Handle(), control) || !IsCovered(control, *panel);
}

// What was focused when the window was left; if that went under a panel, the panel's first stop;
// else the window's.
void FormWindow::RestoreFocus() {
  if (lastFocus_ != nullptr && CanHaveFocus(lastFocus_)) {
    ::SetFocus(lastFocus_);
    return;
  }
  const auto panel = lastFocus_ != nullptr ? TopPanel() : nullptr;
  const Control* first = panel != nullptr ? panel->NextStop(nullptr, false) : nullptr;
  if (first == nullptr) first = NextStop(nullptr, false);
  // In a dialog Enter is to answer, not to follow a link.
  if (dynamic_cast<const Label*>(first) != nullptr && !IsMain()) {
    if (const Control* answer = DefaultButton(form_)) first = answer;
  }
  if (first != nullptr) ::SetFocus(HandleOf(*first));
}

// A panel that goes with the focus in it gives it to the window around it.
void FormWindow::LeaveFocus() {
  if (!IsPanel() || !IsChild(Handle(), GetFocus())) return;
  const HWND root = GetAncestor(Handle(), GA_ROOT);
  const auto around = System().FindForm(root);
  const Control* next = around != nullptr ? around->NextStop(nullptr, false) : nullptr;
  ::SetFocus(next != nullptr ? HandleOf(*next) : root);
}

// What moves the focus within the window, or from it and to it.
bool FormWindow::IsFocusMove(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_SETFOCUS:
      // The end of a box makes its owner active, also a hidden one: the keyboard would be dead.
      if (IsWindowVisible(Handle())) {
        RestoreFocus();
      } else {
        ActivateOther();
      }
      return true;
    case WM_NEXTDLGCTL: {
      const bool isHandle = LOWORD(second) != 0;
      const Control* next = isHandle ? nullptr : NextStop(System().Focus(), first != 0);
      const auto window = isHandle          ? reinterpret_cast<HWND>(first)
                          : next != nullptr ? HandleOf(*next)
                                            : Handle();
      ::SetFocus(window);
      return true;
    }
    case WM_ACTIVATE:
      if (LOWORD(first) != WA_INACTIVE) {
        System().Raise([this] { form_.BecomesActive(); });
        // A focus that the event has put into the window stays there.
        return IsChild(Handle(), GetFocus()) != FALSE;
      }
      if (IsChild(Handle(), GetFocus())) lastFocus_ = GetFocus();
      return false;
    default:
      return false;
  }
}

}  // namespace vantrel::forms::win32
