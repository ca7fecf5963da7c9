#include "iemaintenance/Attach.h"

#include "program/PanelHosting.h"
#include "windows/FrmFrameIEPlugin.h"
#include "windows/FrmFrameIESettings.h"

namespace vantrel::iemaintenance {
namespace {

template <class Slot>
void HostOnLoad(program::Program& program, Slot& slot) {
  slot.OnMade([&program](auto& panel) {
    panel.Load = [&program, &panel] { program::HostPanel(program, panel); };
  });
}

}  // namespace

void AttachIEMaintenance(program::Program& program) {
  HostOnLoad(program, program.windows.FrmFrameIESettings);
  HostOnLoad(program, program.windows.FrmFrameIEPlugin);
}

}  // namespace vantrel::iemaintenance
