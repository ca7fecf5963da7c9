#include "windows/FrmFrameHistory.h"

namespace vantrel::windows {

FrmFrameHistory::FrmFrameHistory(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameHistory", PanelDesign("Clean")) {}

}  // namespace vantrel::windows
