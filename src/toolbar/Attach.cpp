#include "toolbar/Attach.h"

#include "toolbar/CustomizeDialog.h"
#include "windows/frmcustom.h"

namespace vantrel::toolbar {

void AttachToolbar(program::Program& program) {
  program.windows.frmcustom.OnMade([&program](windows::frmcustom& form) { Attach(program, form); });
}

}  // namespace vantrel::toolbar
