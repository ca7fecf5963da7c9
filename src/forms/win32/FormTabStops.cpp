#include <algorithm>

#include "forms/Controls.h"
#include "forms/win32/FormWindow.h"

namespace vantrel::forms::win32 {
namespace {

HWND HandleOf(const Control& control) { return reinterpret_cast<HWND>(control.WindowHandle()); }

// Of a group of options Tab visits the selected one, or the first while none is.
bool StandsForGroup(const Control& control) {
  const auto* option = dynamic_cast<const OptionButton*>(&control);
  if (option == nullptr || option->Value()) return true;
  const OptionButton* first = nullptr;
  for (const Control* other : option->Owner().Controls()) {
    const auto* candidate = dynamic_cast<const OptionButton*>(other);
    if (candidate == nullptr || candidate->Container() != option->Container() ||
        !candidate->Reachable()) {
      continue;
    }
    if (candidate->Value()) return false;
    if (first == nullptr) first = candidate;
  }
  return option == first;
}

}  // namespace

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
    if (!IsWindow(HandleOf(*stop)) || !StandsForGroup(*stop)) return true;
    if (&stop->Owner() == &form_) return panel != nullptr && IsCovered(*stop, *panel);
    return panel == nullptr || &stop->Owner() != &panel->Model();
  });
  return stops;
}

Control* FormWindow::NextStop(const Control* from, bool backwards) const {
  std::vector<Control*> stops = TabStops();
  if (stops.empty()) return nullptr;
  if (backwards) std::reverse(stops.begin(), stops.end());
  const auto at = std::find(stops.begin(), stops.end(), from);
  return at == stops.end() || at + 1 == stops.end() ? stops.front() : *(at + 1);
}

}  // namespace vantrel::forms::win32
