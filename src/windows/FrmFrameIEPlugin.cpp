#include "windows/FrmFrameIEPlugin.h"

namespace vantrel::windows {

FrmFrameIEPlugin::FrmFrameIEPlugin(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameIEPlugin", PanelDesign("IE Plugins")) {}

}  // namespace vantrel::windows
