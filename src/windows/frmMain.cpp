#include "windows/frmMain.h"

namespace vantrel::windows {

frmMain::frmMain(forms::Toolkit& toolkit)
    : Form(toolkit, "frmMain",
           {.Caption = "Qorvel Software Vantrel",
            .Width = 9300,
            .Height = 6998,
            .Left = -1,
            .Top = -1,
            .Frame = forms::Border::Sizable}) {}

controls::PropertyBag frmMain::SavedLink(const char* caption, forms::Color foreColor) {
  return {{"caption", caption},
          {"hyperlink", ""},
          {"hovercolor", controls::HyperLink::ColorText(forms::palette::ActiveCaption)},
          {"forecolor", controls::HyperLink::ColorText(foreColor)}};
}

}  // namespace vantrel::windows
