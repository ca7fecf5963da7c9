// The Allowed List panel: the sites on which ads are let through, each with its kinds.
#ifndef VANTREL_WINDOWS_FRMFRAMEALLOWLIST_H_
#define VANTREL_WINDOWS_FRMFRAMEALLOWLIST_H_

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameAllowList : public forms::Form {
 public:
  explicit FrmFrameAllowList(forms::Toolkit& toolkit);

  forms::ImageList imglweb{*this, "imglweb", {"a"}};

  forms::Label Label63{
      *this, "Label63", {.Caption = "Allowed List", .At = Grid(12, 8, 200, 15), .Visible = false}};
  forms::Frame Frame11{*this, "Frame11", {.Caption = "Allowed List", .At = PanelFrame}};
  forms::Label Label5{
      Frame11,
      "Label5",
      {.Caption = "Allow list", .At = Grid(16, 18, 200, 15), .Drawn = forms::Look::PanelHeading}};
  forms::Label Label39{Frame11,
                       "Label39",
                       {.Caption = "Help",
                        .At = HelpPlace(18),
                        .ToolTipText = "Help on Allowed List",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::Label Label1{
      Frame11,
      "Label1",
      {.Caption = "Add the websites to your allow list. Press 'CTRL' key to temporarily allow "
                  "the popups while clicking.",
       .At = Grid(16, 36, 408, 30)}};
  forms::Label Label2{Frame11, "Label2", {.Caption = "Website:", .At = Grid(16, 73, 56, 15)}};
  forms::TextBox txtName{
      Frame11, "txtName", {.Caption = "www.example.com", .At = Grid(76, 70, 348, 20)}};
  forms::CheckBox chkAPopups{Frame11,
                             "chkAPopups",
                             {.Caption = "Allow Popup Ads", .At = Grid(16, 96, 124, 17)},
                             forms::Checked};
  forms::CheckBox chkADhtml{Frame11,
                            "chkADhtml",
                            {.Caption = "Allow DHTML Fly ins", .At = Grid(142, 96, 134, 17)},
                            forms::Checked};
  forms::CheckBox chkADialog{Frame11,
                             "chkADialog",
                             {.Caption = "Allow Web Page Dialogs", .At = Grid(278, 96, 152, 17)},
                             forms::Checked};
  forms::CheckBox chkABanner{Frame11,
                             "chkABanner",
                             {.Caption = "Allow Banner Ads", .At = Grid(16, 115, 124, 17)},
                             forms::Checked};
  forms::CheckBox chkAFlash{Frame11,
                            "chkAFlash",
                            {.Caption = "Allow Flash Ads", .At = Grid(142, 115, 134, 17)},
                            forms::Checked};
  forms::CheckBox chkADialogBox{
      Frame11,
      "chkADialogBox",
      {.Caption = "Allow Dialog Boxes", .At = Grid(278, 115, 152, 17), .Visible = false},
      forms::Checked};
  forms::CommandButton cmdAddWebsite{
      Frame11, "cmdAddWebsite", {.Caption = "Add to allow list", .At = Grid(16, 138, 130, 23)}};
  forms::CommandButton cmdEditAllowed{
      Frame11, "cmdEditAllowed", {.Caption = "Edit allow list", .At = Grid(155, 138, 130, 23)}};
  forms::CommandButton cmdRemove{
      Frame11, "cmdRemove", {.Caption = "Delete from allow list", .At = Grid(294, 138, 130, 23)}};
  forms::ListView lstGroup{Frame11,
                           "lstGroup",
                           {.Caption = "Allowed websites", .At = Grid(16, 168, 408, 86)},
                           {.Columns = {{"Website", Steps(126)},
                                        {"Popups", Steps(52)},
                                        {"DHTML", Steps(52)},
                                        {"Dialogs", Steps(52)},
                                        {"Banner", Steps(52)},
                                        {"Flash", Steps(52)}},
                            .SmallIcons = &imglweb}};
  forms::Label lblstatus{Frame11, "lblstatus", {.At = Grid(16, 257, 330, 28)}};
  forms::Label lblnumberAL{Frame11, "lblnumberAL", {.At = Grid(352, 257, 72, 15)}};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMEALLOWLIST_H_
