// The Graph panel: the five counters in coloured boxes, their total, and a chart.
#ifndef VANTREL_WINDOWS_FRMFRAMEGRAPH_H_
#define VANTREL_WINDOWS_FRMFRAMEGRAPH_H_

#include "forms/Chart.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameGraph : public forms::Form {
 public:
  explicit FrmFrameGraph(forms::Toolkit& toolkit);

  forms::Label Label66{
      *this,
      "Label66",
      {.Caption = "Graphs and Statistics", .At = Grid(12, 8, 200, 15), .Visible = false}};
  forms::Frame Graphs{*this, "Graphs", {.Caption = "Graphs and Statistics", .At = PanelFrame}};
  forms::Label Label43{
      Graphs,
      "Label43",
      {.Caption = "Graphs", .At = Grid(14, 18, 54, 15), .Drawn = forms::Look::PanelHeading}};
  forms::Label Label1{
      Graphs,
      "Label1",
      {.Caption = "Graphs for the Vantrel", .At = Grid(72, 18, 200, 15), .Index = 0}};
  forms::Label Label44{Graphs,
                       "Label44",
                       {.Caption = "Help",
                        .At = HelpPlace(18),
                        .ToolTipText = "Help on Graphs",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::Chart MSChart1{Graphs,
                        "MSChart1",
                        {.Caption = "Blocked ads by kind", .At = Grid(14, 40, 316, 196)},
                        "R1",
                        {{"System", forms::palette::Popups, ""},
                         {"GDI", forms::palette::Dhtml, ""},
                         {"User", forms::palette::Dialogs, ""},
                         {"C4", forms::palette::Banners, ""},
                         {"C5", forms::palette::Flash, ""}}};
  // Each name stands under its box, but comes before it: a box is named by the label before it.
  forms::Label Label1_1{
      Graphs, "Label1", {.Caption = "Popups", .At = Grid(346, 61, 78, 15), .Index = 1}};
  forms::TextBox txtPop{
      Graphs, "txtPop", {.Caption = "59", .At = Grid(346, 40, 78, 20)}, {.ReadOnly = true}};
  forms::Label Label1_2{
      Graphs, "Label1", {.Caption = "DHTML", .At = Grid(346, 101, 78, 15), .Index = 2}};
  forms::TextBox txtDHTML{
      Graphs, "txtDHTML", {.Caption = "45", .At = Grid(346, 80, 78, 20)}, {.ReadOnly = true}};
  forms::Label Label1_3{
      Graphs, "Label1", {.Caption = "Dialogs", .At = Grid(346, 141, 78, 15), .Index = 3}};
  forms::TextBox txtWebD{
      Graphs, "txtWebD", {.Caption = "25", .At = Grid(346, 120, 78, 20)}, {.ReadOnly = true}};
  forms::Label Label1_4{
      Graphs, "Label1", {.Caption = "Banners", .At = Grid(346, 181, 78, 15), .Index = 4}};
  forms::TextBox txtBanner{
      Graphs, "txtBanner", {.Caption = "66", .At = Grid(346, 160, 78, 20)}, {.ReadOnly = true}};
  forms::Label Label1_5{
      Graphs, "Label1", {.Caption = "Flash", .At = Grid(346, 221, 78, 15), .Index = 5}};
  forms::TextBox txtFlash{
      Graphs, "txtFlash", {.Caption = "90", .At = Grid(346, 200, 78, 20)}, {.ReadOnly = true}};
  forms::Label lbltotallog{
      Graphs, "lbltotallog", {.Caption = "Total:", .At = Grid(14, 257, 270, 15)}};
  forms::CommandButton Command12{
      Graphs,
      "Command12",
      {.Caption = "Details Logs >>", .At = Grid(300, 253, 124, 23), .ToolTipText = "Detail Logs"}};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMEGRAPH_H_
