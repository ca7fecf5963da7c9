#include "forms/win32/SpokenName.h"

#include <algorithm>

#include "forms/Controls.h"
#include "forms/Form.h"

namespace vantrel::forms::win32 {
namespace {

bool IsLabelled(const Control& control) {
  const auto& all = control.Owner().Controls();
  const auto at = std::find(all.begin(), all.end(), &control);
  if (at == all.begin() || at == all.end()) return false;
  const auto* before = dynamic_cast<const Label*>(*(at - 1));
  return before != nullptr && before->Container() == control.Container() && before->Visible() &&
         !before->IsTabStop() && !before->Caption().empty();
}

std::string NameFor(const Control& control) {
  if (!control.ToolTipText().empty()) return control.ToolTipText();
  for (const Control* around = control.Container(); around != nullptr;
       around = around->Container()) {
    if (!around->WindowText().empty()) return around->WindowText();
  }
  return control.Name();
}

}  // namespace

void MakeSpokenName(const Control& control, HWND parent) {
  if (IsLabelled(control)) return;
  CreateWindowExA(0, "STATIC", NameFor(control).c_str(), WS_CHILD | WS_VISIBLE | SS_NOPREFIX, 0, 0,
                  0, 0, parent, nullptr, GetModuleHandleA(nullptr), nullptr);
}

}  // namespace vantrel::forms::win32
