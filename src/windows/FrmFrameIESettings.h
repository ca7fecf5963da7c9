// The IE Settings panel: backup and restore of the browser's registry settings.
#ifndef VANTREL_WINDOWS_FRMFRAMEIESETTINGS_H_
#define VANTREL_WINDOWS_FRMFRAMEIESETTINGS_H_

#include "forms/CommonDialog.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameIESettings : public forms::Form {
 public:
  explicit FrmFrameIESettings(forms::Toolkit& toolkit);

  forms::Frame Frame1{
      *this, "Frame1", {.Caption = "Internet Explorer Settings ", .At = PanelFrame}};
  forms::Label Label1{Frame1,
                      "Label1",
                      {.Caption = "Backup/ Restore your Internet Explorer settings ",
                       .At = Grid(16, 20, 350, 15),
                       .Drawn = forms::Look::PanelHeading}};
  forms::Label Label38{Frame1,
                       "Label38",
                       {.Caption = "Help",
                        .At = HelpPlace(20),
                        .ToolTipText = "Help on Internet Explorer settings",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::Label Label4{Frame1, "Label4", {.Caption = "Backup folder:", .At = Grid(16, 44, 200, 15)}};
  forms::TextBox txtIESettings{Frame1, "txtIESettings", {.At = Grid(16, 61, 322, 20)}};
  forms::CommandButton cmdBrowseIESettings{Frame1,
                                           "cmdBrowseIESettings",
                                           {.Caption = "Browse...",
                                            .At = Grid(346, 59, 78, 23),
                                            .ToolTipText = "browse for the path of the cookie"}};
  forms::Label Label2{
      Frame1,
      "Label2",
      {.Caption = "Backup your Internet Explorer settings ", .At = Grid(16, 98, 350, 15)}};
  forms::Label Label37{Frame1,
                       "Label37",
                       {.Caption = "Help",
                        .At = HelpPlace(98),
                        .ToolTipText = "Help on backing up the settings",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CommandButton cmdBackupIESettings{
      Frame1,
      "cmdBackupIESettings",
      {.Caption = "Backup",
       .At = Grid(16, 120, 92, 23),
       .ToolTipText = "Backup your Internet explorer registry settings"}};
  forms::Label Label3{Frame1, "Label3", {.Caption = "State:", .At = Grid(124, 124, 52, 15)}};
  forms::TextBox txtBackup{
      Frame1, "txtBackup", {.At = Grid(180, 120, 244, 46)}, {.ReadOnly = true, .MultiLine = true}};
  forms::Label Label5{
      Frame1,
      "Label5",
      {.Caption = "Restore your last saved IE settings ", .At = Grid(16, 186, 350, 15)}};
  forms::Label Label55{Frame1,
                       "Label55",
                       {.Caption = "Help",
                        .At = HelpPlace(186),
                        .ToolTipText = "Help on restoring the settings",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CheckBox chktakebackup{
      Frame1,
      "chktakebackup",
      {.Caption = "Take a backup of current settings", .At = Grid(16, 208, 330, 17)}};
  forms::CommandButton cmdRestoreIESettings{
      Frame1,
      "cmdRestoreIESettings",
      {.Caption = "Restore",
       .At = Grid(16, 236, 92, 23),
       .ToolTipText = "Restore your Internet explorer registry settings"}};

  // Stands on the panel and is not used.
  forms::CommonDialog CommonDialog2{*this, "CommonDialog2"};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMEIESETTINGS_H_
