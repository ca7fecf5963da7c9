// The Ad Blocking panel: what is to be blocked, and the presets by kind of connection.
#ifndef VANTREL_WINDOWS_FRMFRAMEBLOCKPREFERENCES_H_
#define VANTREL_WINDOWS_FRMFRAMEBLOCKPREFERENCES_H_

#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameBlockPreferences : public forms::Form {
 public:
  explicit FrmFrameBlockPreferences(forms::Toolkit& toolkit);

  forms::Frame Frame1{*this, "Frame1", {.Caption = "Block Preferences", .At = PanelFrame}};
  forms::Label Label1{
      Frame1, "Label1", {.Caption = "Internet connection:", .At = Grid(16, 23, 124, 15)}};
  forms::ComboBox cmbinternet{Frame1,
                              "cmbinternet",
                              {.Caption = "Custom", .At = Grid(144, 19, 170, 21)},
                              forms::ComboStyle::Editable,
                              {"Custom", "Dial Up", "DSL/Cable", "High Speed /T1 Line"}};
  forms::Label Label12{Frame1,
                       "Label12",
                       {.Caption = "Help",
                        .At = HelpPlace(23),
                        .ToolTipText = "Help on blocking preferences",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkAll{
      Frame1, "chkAll", {.Caption = "Block All Popup Ads", .At = Grid(16, 52, 300, 17)}};
  forms::Label Label17{Frame1,
                       "Label17",
                       {.Caption = "Help",
                        .At = HelpPlace(53),
                        .ToolTipText = "Help on blocking all popup ads",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkBPopup{
      Frame1, "chkBPopup", {.Caption = "Pop-up Ads", .At = Grid(36, 75, 300, 17)}, forms::Checked};
  forms::Label Label18{Frame1,
                       "Label18",
                       {.Caption = "Help",
                        .At = HelpPlace(76),
                        .ToolTipText = "Help on Pop-up Ads",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkBDhtml{Frame1,
                            "chkBDhtml",
                            {.Caption = "DHTML Fly-in Ads", .At = Grid(36, 98, 300, 17)},
                            forms::Checked};
  forms::Label Label22{Frame1,
                       "Label22",
                       {.Caption = "Help",
                        .At = HelpPlace(99),
                        .ToolTipText = "Help on DHTML Fly-in Ads",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkBDialog{Frame1,
                             "chkBDialog",
                             {.Caption = "Web Page Dialogs", .At = Grid(36, 121, 300, 17)},
                             forms::Checked};
  forms::Label Label20{Frame1,
                       "Label20",
                       {.Caption = "Help",
                        .At = HelpPlace(122),
                        .ToolTipText = "Help on Web Page Dialogs",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkBBanner{Frame1,
                             "chkBBanner",
                             {.Caption = "Banner Ads", .At = Grid(36, 144, 300, 17)},
                             forms::Checked};
  forms::Label Label21{Frame1,
                       "Label21",
                       {.Caption = "Help",
                        .At = HelpPlace(145),
                        .ToolTipText = "Help on Banner Ads",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkBFlash{
      Frame1, "chkBFlash", {.Caption = "Flash Ads", .At = Grid(36, 167, 300, 17)}, forms::Checked};
  forms::Label Label23{Frame1,
                       "Label23",
                       {.Caption = "Help",
                        .At = HelpPlace(168),
                        .ToolTipText = "Help on Flash Ads",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkBAdv{
      Frame1,
      "chkBAdv",
      {.Caption = "Block Ads from secure site (https://)", .At = Grid(36, 190, 300, 17)}};
  forms::Label Label24{Frame1,
                       "Label24",
                       {.Caption = "Help",
                        .At = HelpPlace(191),
                        .ToolTipText = "Help on ads from secure sites",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkBDialogBox{Frame1,
                                "chkBDialogBox",
                                {.Caption = "Messenger Ads", .At = Grid(16, 213, 300, 17)},
                                forms::Checked};
  forms::Label Label7{Frame1,
                      "Label7",
                      {.Caption = "Help",
                       .At = HelpPlace(214),
                       .ToolTipText = "Help on Messenger Ads",
                       .Drawn = forms::Look::Link,
                       .Alignment = forms::Align::Right}};
  forms::CheckBox chkBSpyware{
      Frame1,
      "chkBSpyware",
      {.Caption = "Block Automatic Spyware downloads", .At = Grid(16, 236, 300, 17)},
      forms::Checked};
  forms::Label Label2{Frame1,
                      "Label2",
                      {.Caption = "Help",
                       .At = HelpPlace(237),
                       .ToolTipText = "Help on automatic spyware downloads",
                       .Drawn = forms::Look::Link,
                       .Alignment = forms::Align::Right}};
  forms::CheckBox chkBFull{
      Frame1,
      "chkBFull",
      {.Caption = "Full Screen", .At = Grid(16, 259, 300, 17), .Enabled = false}};
  forms::CommandButton cmdsave{
      Frame1,
      "cmdsave",
      {.Caption = "&Save", .At = Grid(348, 256, 76, 23), .Visible = false, .Enabled = false}};

  // True while a single box's handler runs, so that its write to chkAll starts no cascade.
  bool PanelBusy = false;
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMEBLOCKPREFERENCES_H_
