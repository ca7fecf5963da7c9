#include "cleaning/Attach.h"

#include "program/PanelHosting.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::cleaning {

void AttachCleaning(program::Program& program) {
  program.windows.FrmFrameHistory.OnMade([&program](windows::FrmFrameHistory& panel) {
    panel.Load = [&program, &panel] { program::HostPanel(program, panel); };
  });
}

}  // namespace vantrel::cleaning
