#include "windows/FrmFrameAllowList.h"

namespace vantrel::windows {

FrmFrameAllowList::FrmFrameAllowList(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameAllowList", PanelDesign("Allowed List")) {}

}  // namespace vantrel::windows
