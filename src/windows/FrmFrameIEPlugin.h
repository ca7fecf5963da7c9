// The IE Plugins panel: what has attached itself to the browser.
#ifndef VANTREL_WINDOWS_FRMFRAMEIEPLUGIN_H_
#define VANTREL_WINDOWS_FRMFRAMEIEPLUGIN_H_

#include "forms/Controls.h"
#include "forms/FileListBox.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameIEPlugin : public forms::Form {
 public:
  explicit FrmFrameIEPlugin(forms::Toolkit& toolkit);

  forms::ImageList imgbho{*this, "imgbho", {"bho", "pgn", "tb", "mnu"}};

  forms::Frame Frame1{
      *this, "Frame1", {.Caption = "Internet Explorer Plugins / BHO", .At = PanelFrame}};
  forms::Label Label1{Frame1,
                      "Label1",
                      {.Caption = "IE Plugins found",
                       .At = Grid(14, 18, 200, 15),
                       .Drawn = forms::Look::PanelHeading}};
  forms::Label Label2{Frame1,
                      "Label2",
                      {.Caption = "The List of Plugins /BHO found with the internet explorer",
                       .At = Grid(14, 36, 350, 15)}};
  forms::Label Label41{Frame1,
                       "Label41",
                       {.Caption = "Help",
                        .At = HelpPlace(36),
                        .ToolTipText = "Help on plug-ins and BHO",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::ListView lstBHO{Frame1,
                         "lstBHO",
                         {.Caption = "Plug-ins and BHO", .At = Grid(14, 56, 410, 188)},
                         {.Columns = {{"Name", Steps(292)}, {"Type", Steps(96)}},
                          .CheckBoxes = true,
                          .SmallIcons = &imgbho}};
  forms::Label lblTotalBHO{Frame1, "lblTotalBHO", {.At = Grid(14, 256, 194, 15)}};
  forms::CommandButton cmdRefreshBHO{
      Frame1,
      "cmdRefreshBHO",
      {.Caption = "Refresh", .At = Grid(212, 252, 102, 23), .ToolTipText = "Refresh list"}};
  forms::CommandButton cmddeleteBHO{Frame1,
                                    "cmddeleteBHO",
                                    {.Caption = "Delete selected",
                                     .At = Grid(322, 252, 102, 23),
                                     .ToolTipText = "Remove selected plug-in/BHO"}};
  // Only lists the plug-in folder; nobody sees it.
  forms::FileListBox flbpluginsfile{
      Frame1, "flbpluginsfile", {.At = Grid(14, 56, 100, 60), .Visible = false}};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMEIEPLUGIN_H_
