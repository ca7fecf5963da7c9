// The main window: the left column of links, menus, toolbar, title and status bar around the place
// of the panels, and the Help frame.
#ifndef VANTREL_WINDOWS_FRMMAIN_H_
#define VANTREL_WINDOWS_FRMMAIN_H_

#include "controls/HyperLink.h"
#include "forms/Bars.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class frmMain : public forms::Form {
 public:
  explicit frmMain(forms::Toolkit& toolkit);

  forms::ImageList imgexplore{*this, "imgexplore", 26};
  forms::ImageList IMgListTool{*this, "IMgListTool", 10};
  forms::ImageList imgline{*this, "imgline", 1};
  forms::ImageList ImgHelpLogo{*this, "ImgHelpLogo", 1};

  forms::Menu mnufile{*this, "mnufile", "&File"};
  forms::Menu mnuWelcome{mnufile, "mnuWelcome", "&Welcome"};
  forms::Menu MnuStartBlocking{mnufile, "MnuStartBlocking", "&Start Blocking"};
  forms::Menu mnutest{mnufile, "mnutest", "&Test"};
  forms::Menu MnuStop{mnufile, "MnuStop", "St&op"};
  forms::Menu mnutest12{mnufile, "mnutest12", "testq", false};
  forms::Menu mnusap1{mnufile, "mnusap1", "-"};
  forms::Menu MnuPanic{mnufile, "MnuPanic", "&Panic"};
  forms::Menu MnuHide{mnufile, "MnuHide", "&Hide"};
  forms::Menu MnuExit{mnufile, "MnuExit", "E&xit"};

  forms::Menu MNuOptions{*this, "MNuOptions", "O&ptions"};
  forms::Menu MnuAdBlocking{MNuOptions, "MnuAdBlocking", "&Ad Blocking"};
  forms::Menu mnusep2{MNuOptions, "mnusep2", "-"};
  forms::Menu mnuSettings{MNuOptions, "mnuSettings", "S&ettings"};
  forms::Menu MnuClean{MNuOptions, "MnuClean", "&Clean"};
  forms::Menu MNuAllowlist{MNuOptions, "MNuAllowlist", "Allow &List"};
  forms::Menu MnuNotification{MNuOptions, "MnuNotification", "&Notification"};
  forms::Menu mnusep3{MNuOptions, "mnusep3", "-"};
  forms::Menu submnuIESettings{MNuOptions, "submnuIESettings", "&IE Settings"};
  forms::Menu submnuIEPlugins{MNuOptions, "submnuIEPlugins", "IE &Plugins"};
  forms::Menu mnusep4{MNuOptions, "mnusep4", "-"};
  forms::Menu submnuIEToolbar{MNuOptions, "submnuIEToolbar", "IE &Toolbar"};

  forms::Menu mnuView{*this, "mnuView", "&View"};
  forms::Menu submnugraph{mnuView, "submnugraph", "&Graph"};
  forms::Menu submnuDetailLog{mnuView, "submnuDetailLog", "&Detail Log"};
  forms::Menu submnuLogFile{mnuView, "submnuLogFile", "&Log file"};

  forms::Menu mnuHelp{*this, "mnuHelp", "&Help"};
  forms::Menu submnuLaunchHelp{mnuHelp, "submnuLaunchHelp", "&Launch Help"};
  forms::Menu mnusep6{mnuHelp, "mnusep6", "-"};
  forms::Menu submnuAbout{mnuHelp, "submnuAbout", "&About Vantrel"};

  // The menu of the tray icon.
  forms::Menu mnusystemone{*this, "mnusystemone", "System", false};
  forms::Menu mnusysOpen{mnusystemone, "mnusysOpen", "Open Vantrel"};
  forms::Menu mnu1{mnusystemone, "mnu1", "-"};
  forms::Menu mnusysBlock{mnusystemone, "mnusysBlock", "Block Settings"};
  forms::Menu mnu2{mnusystemone, "mnu2", "-"};
  forms::Menu MNuAllow{mnusystemone, "MNuAllow", "Allow List"};
  forms::Menu mnusysCleaning{mnusystemone, "mnusysCleaning", "History cleaning"};
  forms::Menu mnu3{mnusystemone, "mnu3", "-"};
  forms::Menu mnusysupdates{mnusystemone, "mnusysupdates", "Check for Updates", false};
  forms::Menu mnusystellf{mnusystemone, "mnusystellf", "Tell a Friend", false};
  forms::Menu mnu4{mnusystemone, "mnu4", "-"};
  forms::Menu mnusysexit{mnusystemone, "mnusysexit", "Exit"};

  forms::Toolbar Toolbar1{*this,
                          "Toolbar1",
                          {.At = Grid(0, 0, 612, 34), .Anchored = {.Right = true}},
                          IMgListTool,
                          {{"General Settings", 1},
                           {},
                           {"Start Blocking Ads", 2},
                           {"Stop Blocking Ads", 3},
                           {},
                           {"Clean History", 4},
                           {"Internet Explorer Settings", 5},
                           {"Internet Explorer Plugins", 6},
                           {"Customize Internet Explorer Toolbar", 7},
                           {},
                           {"Minimize all the Applications", 8},
                           {},
                           {"Hide in System Tray", 9},
                           {},
                           {"Help ", 10}}};

  forms::PictureBox PicBase{
      *this, "PicBase", {.At = Grid(0, 34, 150, 356), .Anchored = {.Bottom = true}}};
  forms::Image ImgLTop{PicBase, "ImgLTop", {.At = Grid(11, 2, 128, 4)}};
  forms::Label Label1{
      PicBase,
      "Label1",
      {.Caption = "Preferences", .At = Grid(0, 8, 150, 19), .Drawn = forms::Look::GroupHeading}};
  forms::Image ImgWelcome{PicBase, "ImgWelcome", {.At = Grid(12, 30, 16, 16)}};
  controls::HyperLink LnkWelcome{PicBase,
                                 "LnkWelcome",
                                 {.At = Grid(34, 31, 112, 14)},
                                 SavedLink("Welcome", forms::palette::PureBlue)};
  forms::Image ImgAdBlocking{PicBase, "ImgAdBlocking", {.At = Grid(12, 50, 16, 16)}};
  controls::HyperLink LnkAdBlocking{
      PicBase, "LnkAdBlocking", {.At = Grid(34, 51, 112, 14)}, SavedLink("Ad Blocking")};
  forms::Image ImgSettings{PicBase, "ImgSettings", {.At = Grid(12, 70, 16, 16)}};
  controls::HyperLink LnkSettings{
      PicBase, "LnkSettings", {.At = Grid(34, 71, 112, 14)}, SavedLink("Settings")};
  forms::Image ImgAllowed{PicBase, "ImgAllowed", {.At = Grid(12, 90, 16, 16)}};
  controls::HyperLink LnkAllowedList{
      PicBase, "LnkAllowedList", {.At = Grid(34, 91, 112, 14)}, SavedLink("Allowed List")};
  forms::Image IMgNotify{PicBase, "IMgNotify", {.At = Grid(12, 110, 16, 16)}};
  controls::HyperLink LnkNotification{
      PicBase, "LnkNotification", {.At = Grid(34, 111, 112, 14)}, SavedLink("Notification")};
  forms::Label Label2{
      PicBase,
      "Label2",
      {.Caption = "Security", .At = Grid(0, 135, 150, 19), .Drawn = forms::Look::GroupHeading}};
  forms::Image ImgClean{PicBase, "ImgClean", {.At = Grid(12, 157, 16, 16)}};
  controls::HyperLink lnkClean{
      PicBase, "lnkClean", {.At = Grid(34, 158, 112, 14)}, SavedLink("Clean")};
  forms::Image IeSettings{PicBase, "IeSettings", {.At = Grid(12, 177, 16, 16)}};
  controls::HyperLink LnkIESettings{
      PicBase, "LnkIESettings", {.At = Grid(34, 178, 112, 14)}, SavedLink("IE Settings")};
  forms::Image ImgIEPlug{PicBase, "ImgIEPlug", {.At = Grid(12, 197, 16, 16)}};
  controls::HyperLink LnkIePlug{
      PicBase, "LnkIePlug", {.At = Grid(34, 198, 112, 14)}, SavedLink("IE/ Plugins / BHO")};
  forms::Image ImgCheckRepair{PicBase, "ImgCheckRepair", {.At = Grid(12, 217, 16, 16)}};
  controls::HyperLink lnkCheckAndRepair{
      PicBase, "lnkCheckAndRepair", {.At = Grid(34, 218, 112, 14)}, SavedLink("Check and Repair")};
  forms::Label Label3{PicBase,
                      "Label3",
                      {.Caption = "Help and Statistics",
                       .At = Grid(0, 242, 150, 19),
                       .Drawn = forms::Look::GroupHeading}};
  forms::Image ImgGraph{PicBase, "ImgGraph", {.At = Grid(12, 264, 16, 16)}};
  controls::HyperLink LnkGraph{
      PicBase, "LnkGraph", {.At = Grid(34, 265, 112, 14)}, SavedLink("Graph")};
  forms::Image ImgDetails{PicBase, "ImgDetails", {.At = Grid(12, 284, 16, 16)}};
  controls::HyperLink LnkLog{
      PicBase, "LnkLog", {.At = Grid(34, 285, 112, 14)}, SavedLink("Detail Log")};
  forms::Image ImgHelp{PicBase, "ImgHelp", {.At = Grid(12, 304, 16, 16)}};
  controls::HyperLink LnkHelp{
      PicBase, "LnkHelp", {.At = Grid(34, 305, 112, 14)}, SavedLink("Help")};
  forms::Image imgbottom{PicBase, "imgbottom", {.At = Grid(11, 329, 128, 4)}};

  forms::Label lblVCP1{*this,
                       "lblVCP1",
                       {.Caption = "Qorvel Software Vantrel ",
                        .At = Grid(150, 34, 462, 28),
                        .Drawn = forms::Look::Title,
                        .TextFont = {.Size = 10, .Bold = true},
                        .Anchored = {.Right = true}}};

  // The Help frame, at the place of the panels.
  forms::Frame frahelp{*this, "frahelp", {.At = PanelPlace, .Visible = false}};
  forms::Frame Frame6{frahelp, "Frame6", {.Caption = "Help topics - Grimbolt", .At = PanelFrame}};
  forms::Image ImgHelpImage{Frame6, "ImgHelpImage", {.At = Grid(16, 22, 64, 64)}};
  forms::Label Label11{
      Frame6,
      "Label11",
      {.Caption = "Vantrel", .At = Grid(96, 24, 240, 26), .TextFont = {.Size = 14, .Bold = true}}};
  forms::Label Label10{Frame6, "Label10", {.Caption = "Version 1.0", .At = Grid(96, 56, 240, 15)}};
  forms::Label Label57{Frame6,
                       "Label57",
                       {.Caption = "Help",
                        .At = HelpPlace(22),
                        .ToolTipText = "Help on help",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::Image ImghelpLine{Frame6, "ImghelpLine", {.At = Grid(16, 98, 408, 4)}};
  forms::Label Label29{Frame6,
                       "Label29",
                       {.Caption = "Online help",
                        .At = Grid(16, 114, 140, 15),
                        .ToolTipText = "Open the help on the website",
                        .Drawn = forms::Look::Link}};
  forms::Label Label31{Frame6,
                       "Label31",
                       {.Caption = "FAQ's",
                        .At = Grid(16, 138, 140, 15),
                        .ToolTipText = "Open the questions and answers on the website",
                        .Drawn = forms::Look::Link}};
  forms::Label Label32{Frame6,
                       "Label32",
                       {.Caption = "Help",
                        .At = Grid(16, 162, 140, 15),
                        .ToolTipText = "Open the help pages",
                        .Drawn = forms::Look::Link}};
  forms::Label Label61{Frame6,
                       "Label61",
                       {.Caption = "Help && Support",
                        .At = Grid(16, 186, 140, 15),
                        .ToolTipText = "Open the help and support page",
                        .Drawn = forms::Look::Link}};
  forms::Label Label33{Frame6, "Label33", {.Caption = "Vantrel", .At = Grid(220, 114, 204, 15)}};
  forms::Label Label34{Frame6, "Label34", {.Caption = "Address", .At = Grid(220, 138, 204, 15)}};
  forms::Label Label30{Frame6,
                       "Label30",
                       {.Caption = "Qorvel Software Website",
                        .At = Grid(220, 162, 204, 15),
                        .ToolTipText = "Open the website of Qorvel Software",
                        .Drawn = forms::Look::Link}};

  forms::StatusBar sbStatusBar{
      *this,
      "sbStatusBar",
      {.At = Grid(0, 390, 612, 22), .Anchored = {.Top = false, .Right = true, .Bottom = true}},
      {{forms::StatusPanelKind::Text, "Status", 0},
       {forms::StatusPanelKind::Date, "", Steps(100)},
       {forms::StatusPanelKind::Time, "", Steps(100)}}};

  // Never seen: the mailbox of commands, which the start hides, with its trace, and two named ways
  // to the engine's entry.
  forms::CommandButton cmdDummy{
      *this, "cmdDummy", {.Caption = "Command", .At = Grid(160, 366, 76, 23)}};
  // Nobody sees the lines: breaking those of long commands would cost the receiver seconds.
  forms::TextBox Text1{*this,
                       "Text1",
                       {.Caption = "Text1", .At = Grid(240, 366, 100, 20), .Visible = false},
                       {.MultiLine = true, .WordWrap = false}};
  forms::CommandButton cmdADDBHO{
      *this, "cmdADDBHO", {.Caption = "AddBHO", .At = Grid(350, 366, 76, 23), .Visible = false}};
  forms::CommandButton cmdRemoveBHO{
      *this,
      "cmdRemoveBHO",
      {.Caption = "RemoveBHO", .At = Grid(430, 366, 86, 23), .Visible = false}};
  forms::Timer Timer1{*this, "Timer1", 2000};

 private:
  // What is saved of a link of the left column.
  static controls::PropertyBag SavedLink(const char* caption,
                                         forms::Color foreColor = forms::palette::Highlight);
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMMAIN_H_
