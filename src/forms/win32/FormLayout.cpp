#include "forms/win32/FormLayout.h"

#include "forms/Controls.h"
#include "forms/Placement.h"
#include "forms/win32/HandleOf.h"
#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

bool IsContainer(const Control& control) {
  return dynamic_cast<const Frame*>(&control) != nullptr ||
         dynamic_cast<const PictureBox*>(&control) != nullptr;
}

}  // namespace

void LayOut(const Form& form, HWND window, const Scale& scale) {
  const RECT area = ClientArea(window);
  const Size inside{scale.Twips(area.right), scale.Twips(area.bottom)};
  for (const Control* control : form.Controls()) {
    if (control->Anchored() == Anchors{} || control->Peer() == nullptr) continue;
    const RECT place = scale.Rectangle(
        PlaceWithin(inside, control->At(), control->Anchored(), form.Designed().Inside));
    SetWindowPos(HandleOf(*control), nullptr, place.left, place.top, WidthOf(place),
                 HeightOf(place), SWP_NOZORDER | SWP_NOACTIVATE);
  }
}

Place PlaceOf(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return {area.left, area.top, WidthOf(area), HeightOf(area)};
}

Place WorkAreaAround(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoA(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  const RECT& area = monitor.rcWork;
  return {area.left, area.top, WidthOf(area), HeightOf(area)};
}

void KeepReachable(HWND window) {
  if (IsZoomed(window) || IsIconic(window)) return;
  const Place now = PlaceOf(window);
  const Place place = ReachablePlace(now, WorkAreaAround(window));
  if (place == now) return;
  SetWindowPos(window, nullptr, place.Left, place.Top, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void SinkContainers(const Form& form) {
  for (const Control* control : form.Controls()) {
    if (!IsContainer(*control) || control->Peer() == nullptr) continue;
    SetWindowPos(HandleOf(*control), HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

}  // namespace vantrel::forms::win32
