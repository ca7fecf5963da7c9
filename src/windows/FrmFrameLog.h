// The Detail Log panel: the counters as a table, and the log file's links.
#ifndef VANTREL_WINDOWS_FRMFRAMELOG_H_
#define VANTREL_WINDOWS_FRMFRAMELOG_H_

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ListView.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameLog : public forms::Form {
 public:
  explicit FrmFrameLog(forms::Toolkit& toolkit);

  forms::Label Label67{
      *this, "Label67", {.Caption = "Detail Logs", .At = Grid(12, 8, 200, 15), .Visible = false}};
  forms::Frame Frame14{*this, "Frame14", {.Caption = "Detail Logs", .At = PanelFrame}};
  forms::Label Label45{Frame14,
                       "Label45",
                       {.Caption = "Advertisements and Popups Blocked statistics",
                        .At = Grid(14, 18, 350, 15),
                        .Drawn = forms::Look::PanelHeading}};
  forms::Label Label46{Frame14,
                       "Label46",
                       {.Caption = "Help",
                        .At = HelpPlace(18),
                        .ToolTipText = "Help on Detail Logs",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::Label Label1{
      Frame14,
      "Label1",
      {.Caption = "The number of Popups and Advertisements blocked", .At = Grid(14, 40, 350, 15)}};
  forms::ListView lstLog{
      Frame14,
      "lstLog",
      {.Caption = "Blocked ads", .At = Grid(14, 62, 410, 150)},
      {.Columns = {{"Type", Steps(292)}, {"Count", Steps(114), forms::Align::Right}}}};
  forms::Label lblResetLog{Frame14,
                           "lblResetLog",
                           {.Caption = "Reset Log",
                            .At = Grid(14, 226, 80, 15),
                            .ToolTipText = "Reset all Logs",
                            .Drawn = forms::Look::Link}};
  forms::Label Label54{
      Frame14,
      "Label54",
      {.Caption = "View Log", .At = Grid(104, 226, 80, 15), .Drawn = forms::Look::Link}};
  forms::CommandButton Command11{Frame14,
                                 "Command11",
                                 {.Caption = " Graphical View >>",
                                  .At = Grid(296, 252, 128, 23),
                                  .ToolTipText = "Graphical view"}};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMELOG_H_
