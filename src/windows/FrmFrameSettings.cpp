#include "windows/FrmFrameSettings.h"

namespace vantrel::windows {

FrmFrameSettings::FrmFrameSettings(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameSettings", PanelDesign("Settings")) {}

}  // namespace vantrel::windows
