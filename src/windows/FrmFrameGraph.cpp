#include "windows/FrmFrameGraph.h"

namespace vantrel::windows {

FrmFrameGraph::FrmFrameGraph(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmFrameGraph", PanelDesign("Graphs and Statistics")) {
  txtPop.SetBackColor(forms::palette::Popups);
  txtDHTML.SetBackColor(forms::palette::Dhtml);
  txtWebD.SetBackColor(forms::palette::Dialogs);
  txtBanner.SetBackColor(forms::palette::Banners);
  txtFlash.SetBackColor(forms::palette::Flash);
}

}  // namespace vantrel::windows
