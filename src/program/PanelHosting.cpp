#include "program/PanelHosting.h"

#include "windows/frmMain.h"

namespace vantrel::program {

void HostPanel(Program& program, forms::Form& panel) {
  windows::frmMain& main = *program.windows.frmMain;
  program.platform.desktop.SetParent(panel.hWnd(), main.hWnd());
  panel.SetHost(&main);
}

}  // namespace vantrel::program
