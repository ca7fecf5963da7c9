#include "cleaning/Attach.h"

#include "cleaning/CacheCleaner.h"
#include "cleaning/Cookies.h"
#include "program/PanelHosting.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::cleaning {

void AttachCleaning(program::Program& program) {
  program.windows.FrmFrameHistory.OnMade([&program](windows::FrmFrameHistory& panel) {
    panel.Load = [&program, &panel] { program::HostPanel(program, panel); };
    AttachCacheCleaner(program, panel);
    AttachCookies(program, panel);
  });
}

}  // namespace vantrel::cleaning
