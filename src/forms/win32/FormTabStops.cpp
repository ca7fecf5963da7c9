#include <algorithm>

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

bool FormWindow::IsCovered(const Control& control, const FormWindow& panel) const {
  RECT area{};
  RECT cover{};
  RECT common{};
  if (!GetWindowRect(HandleOf(control), &area) || !GetWindowRect(panel.Handle(), &cover)) {
    return false;
  }
  return IntersectRect(&common, &area, &cover) && EqualRect(&common, &area);
}

std::vector<Control*> FormWindow::TabStops() const {
  const auto panel = TopPanel();
  std::vector<Control*> stops = form_.TabOrder();
  std::erase_if(stops, [&](const Control* stop) {
    if (!IsWindow(HandleOf(*stop))) return true;
    if (&stop->Owner() == &form_) return panel != nullptr && IsCovered(*stop, *panel);
    return panel == nullptr || &stop->Owner() != &panel->Model();
  });
  return stops;
}

Control* FormWindow::NextStop(const Control* from, bool backwards) const {
  return forms::NextStop(TabStops(), from, backwards);
}

}  // namespace vantrel::forms::win32
