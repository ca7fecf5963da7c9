#include "windows/FrmFrameLog.h"

namespace vantrel::windows {

FrmFrameLog::FrmFrameLog(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameLog", PanelDesign("Detail Logs")) {}

}  // namespace vantrel::windows
