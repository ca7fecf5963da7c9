#include "windows/FrmFrameNotification.h"

namespace vantrel::windows {

FrmFrameNotification::FrmFrameNotification(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameNotification", PanelDesign("Notification")) {}

}  // namespace vantrel::windows
