#include "windows/FrmFrameIESettings.h"

namespace vantrel::windows {

FrmFrameIESettings::FrmFrameIESettings(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameIESettings", PanelDesign("IE Settings")) {}

}  // namespace vantrel::windows
