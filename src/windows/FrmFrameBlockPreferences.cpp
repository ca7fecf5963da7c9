#include "windows/FrmFrameBlockPreferences.h"

namespace vantrel::windows {

FrmFrameBlockPreferences::FrmFrameBlockPreferences(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameBlockPreferences", PanelDesign("Ad Blocking")) {}

}  // namespace vantrel::windows
