#include "allowlist/Attach.h"

#include "program/PanelHosting.h"
#include "windows/FrmFrameAllowList.h"

namespace vantrel::allowlist {

void AttachAllowList(program::Program& program) {
  program.windows.FrmFrameAllowList.OnMade([&program](windows::FrmFrameAllowList& panel) {
    panel.Load = [&program, &panel] { program::HostPanel(program, panel); };
  });
}

}  // namespace vantrel::allowlist
