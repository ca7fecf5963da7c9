#include "windows/frmcustom.h"

namespace vantrel::windows {

frmcustom::frmcustom(forms::Toolkit& toolkit)
    : Form(toolkit, "frmcustom",
           {.Caption = "  Customize Toolbar - Vantrel",
            .Width = Steps(504),
            .Height = Steps(347),
            .Left = -1,
            .Top = -1,
            .Frame = forms::Border::Dialog}) {}

}  // namespace vantrel::windows
