// The Settings panel: options about the program itself rather than about blocking.
#ifndef VANTREL_WINDOWS_FRMFRAMESETTINGS_H_
#define VANTREL_WINDOWS_FRMFRAMESETTINGS_H_

#include "forms/Controls.h"
#include "forms/Form.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameSettings : public forms::Form {
 public:
  explicit FrmFrameSettings(forms::Toolkit& toolkit);

  forms::Frame Frame1{*this, "Frame1", {.Caption = "General Settings", .At = PanelFrame}};
  forms::Label Label1{Frame1,
                      "Label1",
                      {.Caption = "Choose how the program starts, closes and shows itself.",
                       .At = Grid(16, 22, 350, 15)}};
  forms::Label lblHGS{Frame1,
                      "lblHGS",
                      {.Caption = "Help",
                       .At = HelpPlace(22),
                       .ToolTipText = "Help on general settings",
                       .Drawn = forms::Look::Link,
                       .Alignment = forms::Align::Right}};
  forms::CheckBox chkGHideSystray{
      Frame1,
      "chkGHideSystray",
      {.Caption = "Hide to system tray when closed",
       .At = Grid(16, 52, 300, 17),
       .ToolTipText = "Enable to hide the program to system tray when program is closed"}};
  forms::Label Label14{Frame1,
                       "Label14",
                       {.Caption = "Help",
                        .At = HelpPlace(53),
                        .ToolTipText = "Help on hiding to the system tray",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkGSWindows{Frame1,
                               "chkGSWindows",
                               {.Caption = "Start with Windows",
                                .At = Grid(16, 82, 300, 17),
                                .ToolTipText = "Enable to start Vantrel on Windows startup"}};
  forms::Label Label15{Frame1,
                       "Label15",
                       {.Caption = "Help",
                        .At = HelpPlace(83),
                        .ToolTipText = "Help on starting with Windows",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkGUpdate{
      Frame1,
      "chkGUpdate",
      {.Caption = "Automatically check for updates",
       .At = Grid(16, 112, 300, 17),
       .ToolTipText = "Enable to automatically check for program updates when you "
                      "connect to internet"}};
  forms::Label Label25{Frame1,
                       "Label25",
                       {.Caption = "Help",
                        .At = HelpPlace(113),
                        .ToolTipText = "Help on automatic updates",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkGLog{
      Frame1,
      "chkGLog",
      {.Caption = "Keep a log of the Ads blocked",
       .At = Grid(16, 142, 300, 17),
       .ToolTipText = "Enable to keep a log of all the ads blocked by the program"}};
  forms::Label Label16{Frame1,
                       "Label16",
                       {.Caption = "Help",
                        .At = HelpPlace(143),
                        .ToolTipText = "Help on keeping a log",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkGShowToolbar{
      Frame1,
      "chkGShowToolbar",
      {.Caption = "Show Browser toolbar",
       .At = Grid(16, 172, 180, 17),
       .ToolTipText = "Enable to display Vantrel toolbar in internet explorer"},
      forms::Checked};
  forms::Label lblviewtoolbar{Frame1,
                              "lblviewtoolbar",
                              {.Caption = "View Toolbar",
                               .At = Grid(210, 173, 100, 15),
                               .ToolTipText = "What is a browser toolbar and where it is shown",
                               .Visible = false,
                               .Drawn = forms::Look::Link}};
  forms::Label Label13{Frame1,
                       "Label13",
                       {.Caption = "Help",
                        .At = HelpPlace(173),
                        .ToolTipText = "Help on the browser toolbar",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkScript{
      Frame1,
      "chkScript",
      {.Caption = "Disable Script Debugger (Recommended)",
       .At = Grid(16, 202, 300, 17),
       .ToolTipText = "By enabling this option, you will not receive scripting errors "
                      "when pop-ups are blocked"},
      forms::Checked};
  forms::CommandButton cmdtoolbar{
      Frame1, "cmdtoolbar", {.Caption = "&Customize Toolbar", .At = Grid(16, 246, 128, 23)}};
  forms::CommandButton Command4{
      Frame1, "Command4", {.Caption = "Check &Update", .At = Grid(156, 246, 128, 23)}};
  forms::CommandButton cmdresetSettings{
      Frame1, "cmdresetSettings", {.Caption = "&Reset", .At = Grid(296, 246, 128, 23)}};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMESETTINGS_H_
