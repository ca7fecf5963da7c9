// The check boxes of the expected settings, found on their panels by name.
#ifndef VANTREL_TESTS_SUPPORT_SETTINGBOXES_H_
#define VANTREL_TESTS_SUPPORT_SETTINGBOXES_H_

#include <stdexcept>
#include <string>

#include "forms/Controls.h"
#include "program/Windows.h"
#include "support/ExpectedSettings.h"

namespace vantrel::test {

// Makes the four panels that have settings if they are not there.
inline forms::CheckBox& BoxOf(program::Windows& windows, const ExpectedSetting& setting) {
  const std::string control = setting.Control;
  const auto dot = control.find('.');
  program::FormSlot* const panels[] = {&windows.FrmFrameMain, &windows.FrmFrameBlockPreferences,
                                       &windows.FrmFrameSettings, &windows.FrmFrameNotification};
  for (program::FormSlot* panel : panels) {
    forms::Form& form = panel->Touch();
    if (form.Name() != control.substr(0, dot)) continue;
    auto* box = dynamic_cast<forms::CheckBox*>(form.FindControl(control.substr(dot + 1)));
    if (box != nullptr) return *box;
  }
  throw std::logic_error("no check box is " + control);
}

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_SETTINGBOXES_H_
