// The small dialog that shows the program's name, version and maker.
#ifndef VANTREL_WINDOWS_FRMABOUT_H_
#define VANTREL_WINDOWS_FRMABOUT_H_

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmAbout : public forms::Form {
 public:
  explicit FrmAbout(forms::Toolkit& toolkit);

  forms::ImageList ImgHelpLogo{*this, "ImgHelpLogo", 2};

  forms::Image ImgLTop{*this, "ImgLTop", {.At = Grid(12, 10, 340, 8)}};
  forms::Label Label1{
      *this,
      "Label1",
      {.Caption = "Vantrel", .At = Grid(92, 34, 260, 26), .TextFont = {.Size = 14, .Bold = true}}};
  forms::Label Label2{*this, "Label2", {.Caption = "Version 2.00", .At = Grid(92, 64, 260, 15)}};
  forms::Image Image2{*this, "Image2", {.At = Grid(12, 28, 64, 64)}};
  forms::Label Label3{
      *this,
      "Label3",
      {.Caption = "Copyright (c) Qorvel Software. All rights reserved. This program is protected "
                  "by copyright law.",
       .At = Grid(12, 104, 340, 32),
       .Drawn = forms::Look::Note}};
  forms::Label Label30{*this,
                       "Label30",
                       {.Caption = "Qorvel Software Website",
                        .At = Grid(12, 146, 170, 15),
                        .ToolTipText = "Open the website of Qorvel Software",
                        .Drawn = forms::Look::Link}};
  forms::Label Label61{*this,
                       "Label61",
                       {.Caption = "Help && Support",
                        .At = Grid(192, 146, 110, 15),
                        .ToolTipText = "Open the help pages",
                        .Drawn = forms::Look::Link}};
  forms::CommandButton CmdOK{
      *this,
      "CmdOK",
      {.Caption = "OK", .At = Grid(276, 172, 76, 23), .Default = true, .Cancel = true}};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMABOUT_H_
