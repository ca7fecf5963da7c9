#include "allowlist/Attach.h"

#include "allowlist/AllowListPanel.h"
#include "windows/FrmFrameAllowList.h"

namespace vantrel::allowlist {

void AttachAllowList(program::Program& program) {
  program.windows.FrmFrameAllowList.OnMade(
      [&program](windows::FrmFrameAllowList& panel) { Attach(program, panel); });
}

}  // namespace vantrel::allowlist
