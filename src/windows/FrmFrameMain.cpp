#include "windows/FrmFrameMain.h"

namespace vantrel::windows {

FrmFrameMain::FrmFrameMain(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameMain", PanelDesign("Welcome")) {}

}  // namespace vantrel::windows
