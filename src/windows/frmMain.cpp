#include "windows/frmMain.h"

namespace vantrel::windows {

frmMain::frmMain(forms::Toolkit& toolkit)
    : Form(toolkit, "frmMain",
           {.Caption = "Qorvel Software Vantrel",
            .Width = 9300,
            .Height = 6998,
            .Left = -1,
            .Top = -1,
            .Frame = forms::Border::Sizable,
            // With the widest frame and the highest caption and menu bar in use.
            .Inside = {Steps(612), Steps(412)},
            .Smallest = {9300, 6825}}) {}

controls::PropertyBag frmMain::SavedLink(const char* caption, forms::Color foreColor) {
  return {{"caption", caption},
          {"hyperlink", ""},
          {"hovercolor", controls::HyperLink::ColorText(forms::palette::ActiveCaption)},
          {"forecolor", controls::HyperLink::ColorText(foreColor)}};
}

}  // namespace vantrel::windows
