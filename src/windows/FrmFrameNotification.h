// The Notification panel: how the user hears of a block.
#ifndef VANTREL_WINDOWS_FRMFRAMENOTIFICATION_H_
#define VANTREL_WINDOWS_FRMFRAMENOTIFICATION_H_

#include "forms/ComboBox.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameNotification : public forms::Form {
 public:
  explicit FrmFrameNotification(forms::Toolkit& toolkit);

  forms::Frame Frame1{*this, "Frame1", {.Caption = "Notification Settings", .At = PanelFrame}};
  forms::Label Label1{
      Frame1,
      "Label1",
      {.Caption = "Choose how you are told that an ad was blocked.", .At = Grid(16, 22, 350, 15)}};
  forms::Label Label42{Frame1,
                       "Label42",
                       {.Caption = "Help",
                        .At = HelpPlace(22),
                        .ToolTipText = "Help on notification settings",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkNAll{
      Frame1, "chkNAll", {.Caption = "Don't Notify at all", .At = Grid(16, 50, 330, 17)}};
  forms::Label Label58{Frame1,
                       "Label58",
                       {.Caption = "Help",
                        .At = HelpPlace(51),
                        .ToolTipText = "Help on not being notified",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkNW{
      Frame1, "chkNW", {.Caption = "Display a notification window", .At = Grid(16, 80, 330, 17)}};
  forms::Label Label49{Frame1,
                       "Label49",
                       {.Caption = "Help",
                        .At = HelpPlace(81),
                        .ToolTipText = "Help on the notification window",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkNS{Frame1, "chkNS", {.Caption = "Play a sound", .At = Grid(16, 110, 106, 17)}};
  forms::ComboBox cmbsound{Frame1,
                           "cmbsound",
                           {.At = Grid(130, 108, 150, 21), .ToolTipText = "The sound to be played"},
                           forms::ComboStyle::PickOnly,
                           {"alert", "click", "crash", "double", "drop", "pop", "pop2", "slip",
                            "vanish", "vaporize", "woosh"}};
  forms::Label Label35{Frame1,
                       "Label35",
                       {.Caption = "Test Sound",
                        .At = Grid(292, 111, 76, 15),
                        .ToolTipText = "Play the selected sound",
                        .Drawn = forms::Look::Link}};
  forms::Label Label51{Frame1,
                       "Label51",
                       {.Caption = "Help",
                        .At = HelpPlace(111),
                        .ToolTipText = "Help on playing a sound",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkNPH{
      Frame1,
      "chkNPH",
      {.Caption = "Display place holders for block Image Ads", .At = Grid(16, 140, 330, 17)}};
  forms::Label Label52{Frame1,
                       "Label52",
                       {.Caption = "Help",
                        .At = HelpPlace(141),
                        .ToolTipText = "Help on place holders for image ads",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkNPHF{
      Frame1,
      "chkNPHF",
      {.Caption = "Display place holders for block Flash Ads", .At = Grid(16, 170, 330, 17)}};
  forms::Label Label53{Frame1,
                       "Label53",
                       {.Caption = "Help",
                        .At = HelpPlace(171),
                        .ToolTipText = "Help on place holders for Flash ads",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chkNMC{
      Frame1,
      "chkNMC",
      {.Caption = "Change Mouse Cursor", .At = Grid(16, 200, 330, 17), .Enabled = false}};
  forms::Label Label50{Frame1,
                       "Label50",
                       {.Caption = "Help",
                        .At = HelpPlace(201),
                        .ToolTipText = "Help on the mouse cursor",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CommandButton cmdDefaultNotify{Frame1,
                                        "cmdDefaultNotify",
                                        {.Caption = "Default",
                                         .At = Grid(348, 248, 76, 23),
                                         .ToolTipText = "Set the recommended notifications"}};

  // True while the list's text is put right for the user, so that its click saves nothing.
  bool CorrectingSound = false;
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMENOTIFICATION_H_
