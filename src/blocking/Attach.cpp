#include "blocking/Attach.h"

#include "blocking/BlockPreferencesPanel.h"
#include "blocking/GeneralSettingsPanel.h"
#include "blocking/NotificationPanel.h"
#include "blocking/WelcomePanel.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/FrmFrameSettings.h"

namespace vantrel::blocking {
namespace {

template <class Window>
void BindWhenMade(program::Program& program, program::WindowSlot<Window>& slot) {
  slot.OnMade([&program](Window& form) { Attach(program, form); });
}

}  // namespace

void AttachBlocking(program::Program& program) {
  BindWhenMade(program, program.windows.FrmFrameMain);
  BindWhenMade(program, program.windows.FrmFrameBlockPreferences);
  BindWhenMade(program, program.windows.FrmFrameSettings);
  BindWhenMade(program, program.windows.FrmFrameNotification);
}

}  // namespace vantrel::blocking
