#include "windows/FrmAbout.h"

namespace vantrel::windows {

FrmAbout::FrmAbout(forms::Toolkit& toolkit)
    : Form(toolkit, "FrmAbout",
           {.Caption = "About Qorvel Software Vantrel",
            .Width = Steps(364),
            .Height = Steps(207),
            .Left = -1,
            .Top = -1,
            .Frame = forms::Border::Dialog}) {}

}  // namespace vantrel::windows
