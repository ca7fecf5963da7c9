#include "forms/win32/FormLayout.h"

#include "forms/Bars.h"
#include "forms/Controls.h"
#include "forms/win32/HandleOf.h"
#include "forms/win32/Painting.h"

namespace vantrel::forms::win32 {
namespace {

void Put(const Control& control, const RECT& area) {
  SetWindowPos(HandleOf(control), nullptr, area.left, area.top, WidthOf(area), HeightOf(area),
               SWP_NOZORDER | SWP_NOACTIVATE);
}

int StatusTop(const Form& form, const RECT& inside, const Scale& scale) {
  for (const Control* control : form.Controls()) {
    if (dynamic_cast<const StatusBar*>(control) != nullptr && control->Visible()) {
      return inside.bottom - scale.Pixels(control->At().Height);
    }
  }
  return inside.bottom;
}

RECT Stretched(const Control& control, const RECT& inside, int statusTop, const Scale& scale) {
  RECT area = scale.Rectangle(control.At());
  if (dynamic_cast<const StatusBar*>(&control) != nullptr) {
    return {inside.left, statusTop, inside.right, inside.bottom};
  }
  if (dynamic_cast<const Toolbar*>(&control) != nullptr || control.Drawn() == Look::Title) {
    area.right = inside.right;
  }
  if (dynamic_cast<const PictureBox*>(&control) != nullptr && area.left == 0) {
    area.bottom = statusTop;
  }
  return area;
}

bool IsContainer(const Control& control) {
  return dynamic_cast<const Frame*>(&control) != nullptr ||
         dynamic_cast<const PictureBox*>(&control) != nullptr;
}

}  // namespace

void LayOutMain(const Form& form, HWND window, const Scale& scale) {
  const RECT inside = ClientArea(window);
  const int statusTop = StatusTop(form, inside, scale);
  for (const Control* control : form.Controls()) {
    if (control->Container() != nullptr || control->Peer() == nullptr) continue;
    const RECT area = Stretched(*control, inside, statusTop, scale);
    const RECT designed = scale.Rectangle(control->At());
    if (!EqualRect(&area, &designed)) Put(*control, area);
  }
}

void SinkContainers(const Form& form) {
  for (const Control* control : form.Controls()) {
    if (!IsContainer(*control) || control->Peer() == nullptr) continue;
    SetWindowPos(HandleOf(*control), HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

}  // namespace vantrel::forms::win32
