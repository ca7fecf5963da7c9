// The Welcome panel: Start and Stop, the kind of connection, and the running count of blocked ads.
#ifndef VANTREL_WINDOWS_FRMFRAMEMAIN_H_
#define VANTREL_WINDOWS_FRMFRAMEMAIN_H_

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameMain : public forms::Form {
 public:
  explicit FrmFrameMain(forms::Toolkit& toolkit);

  forms::Label Lblhelp{
      *this,
      "Lblhelp",
      {.Caption = "Select your internet connection and click Start button to block popups. To "
                  "customize click on the Settings. ",
       .At = Grid(12, 10, 438, 32)}};
  forms::Frame Frame4{
      *this, "Frame4", {.Caption = "Start blocking Advertisments", .At = Grid(12, 50, 438, 102)}};
  forms::OptionButton optDial{
      Frame4,
      "optDial",
      {.Caption = "For Dialup internet connection ", .At = Grid(16, 22, 300, 17)}};
  forms::OptionButton optMedium{
      Frame4,
      "optMedium",
      {.Caption = "For medium connection (DSL/Cable)", .At = Grid(16, 47, 300, 17)},
      true};
  forms::OptionButton optFast{
      Frame4, "optFast", {.Caption = "For fast connection (T1)", .At = Grid(16, 72, 300, 17)}};
  forms::CommandButton cmdstart{
      Frame4,
      "cmdstart",
      {.Caption = "Start", .At = Grid(332, 16, 92, 23), .ToolTipText = "Start Blocking"}};
  forms::CommandButton cmdstop{
      Frame4,
      "cmdstop",
      {.Caption = "Stop", .At = Grid(332, 44, 92, 23), .ToolTipText = "Stop blocking"}};
  forms::CommandButton cmdtest{
      Frame4,
      "cmdtest",
      {.Caption = "Test", .At = Grid(332, 72, 92, 23), .ToolTipText = "Test popup blocking"}};
  forms::Frame Frame1{*this, "Frame1", {.At = Grid(12, 164, 438, 64), .Drawn = forms::Look::Card}};
  forms::Label Label8{Frame1, "Label8", {.Caption = "Ads blocked:", .At = Grid(14, 16, 80, 15)}};
  forms::Label lblno{Frame1,
                     "lblno",
                     {.Caption = "0",
                      .At = Grid(98, 5, 220, 32),
                      .Drawn = forms::Look::Figure,
                      .TextFont = {.Size = 18, .Bold = true}}};
  forms::Label Label4{Frame1,
                      "Label4",
                      {.Caption = "Stopping around 10,00,0000 ads.",
                       .At = Grid(14, 42, 304, 15),
                       .Drawn = forms::Look::Note}};
  forms::Image Image1{Frame1, "Image1", {.At = Grid(376, 8, 48, 48)}};
  forms::CheckBox ChkMinimize{
      *this,
      "ChkMinimize",
      {.Caption = "Next time start the program in System Tray",
       .At = Grid(12, 242, 330, 17),
       .ToolTipText = "Enable to launch program to system tray next time it is started"}};
  forms::Label Label9{*this,
                      "Label9",
                      {.Caption = "Help",
                       .At = Grid(410, 243, 40, 15),
                       .ToolTipText = "Help on starting in the System Tray",
                       .Drawn = forms::Look::Link,
                       .Alignment = forms::Align::Right}};
  forms::Label Label62{*this,
                       "Label62",
                       {.Caption = "Visit the website",
                        .At = Grid(12, 276, 140, 15),
                        .ToolTipText = "Open the website of Qorvel Software",
                        .Drawn = forms::Look::Link}};
  forms::Label Label6{*this,
                      "Label6",
                      {.Caption = "Help",
                       .At = Grid(410, 276, 40, 15),
                       .ToolTipText = "Help on the Welcome panel",
                       .Drawn = forms::Look::Link,
                       .Alignment = forms::Align::Right}};
  forms::TextBox txtCommand{*this, "txtCommand", {.At = Grid(170, 273, 100, 20), .Visible = false}};
  forms::Timer Timer1{*this, "Timer1", 2000};

  forms::ImageList ImageList2{*this, "ImageList2", 1};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMEMAIN_H_
