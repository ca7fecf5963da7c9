// Each window's controls as its users and its behaviour know them: name, kind, text, tool tip and
// the state that it is designed with.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "Designs.h"
#include "forms/ControlVisitor.h"

namespace vantrel::windows {
namespace {

// A control's kind, and the states it is designed with that are out of the ordinary, as words.
class Described : public forms::ControlVisitor {
 public:
  explicit Described(forms::Control& control) {
    if (!control.Visible()) Add("hidden");
    if (!control.Enabled()) Add("disabled");
    control.Accept(*this);
  }

  const std::string& Kind() const { return kind_; }
  const std::string& State() const { return state_; }

 private:
  void Visit(forms::Chart&) override { kind_ = "chart"; }
  void Visit(forms::CheckBox& box) override {
    kind_ = "check box";
    if (box.Value() == forms::Checked) Add("ticked");
  }
  void Visit(forms::ComboBox& box) override {
    kind_ = box.Style() == forms::ComboStyle::Editable ? "editable list" : "pick list";
  }
  void Visit(forms::CommandButton&) override { kind_ = "button"; }
  void Visit(forms::FileListBox&) override { kind_ = "file list"; }
  void Visit(forms::Frame&) override { kind_ = "frame"; }
  void Visit(forms::Image&) override { kind_ = "image"; }
  void Visit(forms::Label& label) override { kind_ = label.IsTabStop() ? "link" : "label"; }
  void Visit(forms::ListView& list) override {
    kind_ = "list";
    if (list.CheckBoxes()) Add("check boxes");
  }
  void Visit(forms::OptionButton& option) override {
    kind_ = "option";
    if (option.Value()) Add("selected");
  }
  void Visit(forms::PictureBox&) override { kind_ = "area"; }
  void Visit(forms::ProgressBar&) override { kind_ = "progress bar"; }
  void Visit(forms::StatusBar&) override { kind_ = "status bar"; }
  void Visit(forms::TextBox& box) override {
    kind_ = "text box";
    if (box.ReadOnly()) Add("read-only");
    if (box.MultiLine()) Add("multi-line");
  }
  void Visit(forms::Timer& timer) override {
    kind_ = "timer";
    Add(std::to_string(timer.Interval()) + " ms");
  }
  void Visit(forms::Toolbar&) override { kind_ = "toolbar"; }
  void Visit(forms::UserControl&) override { kind_ = "own"; }

  void Add(const std::string& word) { state_ += (state_.empty() ? "" : ", ") + word; }

  std::string kind_;
  std::string state_;
};

// Every text is free where it is given as this.
constexpr const char* Any = "*";

struct Row {
  const char* Name;
  const char* Kind;
  const char* Text = "";
  const char* ToolTip = Any;
  const char* State = "";
};

using Rows = std::vector<Row>;

// The rows, and one for each of the names, all of one kind and text.
Rows With(Rows rows, const std::vector<const char*>& names, const char* kind, const char* text) {
  for (const char* name : names) rows.push_back({name, kind, text});
  return rows;
}

void ExpectControl(const forms::Form& form, const Row& row) {
  SCOPED_TRACE(form.Name() + "." + row.Name);
  forms::Control* const control = form.FindControl(row.Name);
  ASSERT_NE(control, nullptr);
  const Described described(*control);
  EXPECT_EQ(described.Kind(), row.Kind);
  EXPECT_EQ(described.State(), row.State);
  if (row.Text != Any) {
    EXPECT_EQ(control->WindowText(), row.Text);
  }
  if (row.ToolTip != Any) {
    EXPECT_EQ(control->ToolTipText(), row.ToolTip);
  }
}

// The names of a window's controls, those inside a control of its own kind apart.
std::vector<std::string> NamesOn(const forms::Form& form) {
  std::vector<std::string> names;
  for (const forms::Control* control : form.Controls()) {
    if (dynamic_cast<const forms::UserControl*>(control->Container()) != nullptr) continue;
    names.push_back(control->QualifiedName().substr(form.Name().size() + 1));
  }
  return names;
}

// The window has these controls and no other: a control without a row is designed by nobody.
void ExpectControls(const forms::Form& form, const Rows& rows) {
  std::vector<std::string> listed;
  for (const Row& row : rows) {
    ExpectControl(form, row);
    listed.emplace_back(row.Name);
  }
  EXPECT_THAT(NamesOn(form), testing::UnorderedElementsAreArray(listed));
}

class DesignedControls : public testing::Test {
 protected:
  Designs designs_;
};

TEST_F(DesignedControls, OfTheMainWindow) {
  const Rows rows{{"Toolbar1", "toolbar"},
                  {"sbStatusBar", "status bar"},
                  {"PicBase", "area"},
                  {"lblVCP1", "label", Any},
                  {"Label1", "label", "Preferences"},
                  {"Label2", "label", "Security"},
                  {"Label3", "label", "Help and Statistics"},
                  {"frahelp", "frame", "", Any, "hidden"},
                  {"Frame6", "frame", "Help topics - Grimbolt"},
                  {"Label29", "link", "Online help"},
                  {"Label31", "link", "FAQ's"},
                  {"Label32", "link", "Help"},
                  {"Label57", "link", "Help", "Help on help"},
                  {"Label30", "link", "Qorvel Software Website"},
                  {"Label61", "link", "Help && Support"},
                  {"Label33", "label", "Vantrel"},
                  {"Label34", "label", "Address"},
                  {"Label11", "label", "Vantrel"},
                  {"Label10", "label", "Version 1.0"},
                  {"cmdADDBHO", "button", "AddBHO", Any, "hidden"},
                  {"cmdRemoveBHO", "button", "RemoveBHO", Any, "hidden"},
                  {"cmdDummy", "button", Any},
                  {"Text1", "text box", Any, Any, "hidden, multi-line"},
                  {"Timer1", "timer", "", Any, "2000 ms"},
                  {"ImgLTop", "image"},
                  {"imgbottom", "image"},
                  {"ImghelpLine", "image"},
                  {"ImgHelpImage", "image"}};
  const std::vector<const char*> icons{
      "ImgWelcome", "ImgAdBlocking", "ImgSettings",    "ImgClean", "ImgAllowed", "IMgNotify",
      "IeSettings", "ImgIEPlug",     "ImgCheckRepair", "ImgGraph", "ImgDetails", "ImgHelp"};
  const std::vector<const char*> links{"LnkWelcome",    "LnkAdBlocking",  "LnkSettings",
                                       "lnkClean",      "LnkAllowedList", "LnkNotification",
                                       "LnkIESettings", "LnkIePlug",      "lnkCheckAndRepair",
                                       "LnkGraph",      "LnkLog",         "LnkHelp"};
  ExpectControls(designs_.Main, With(With(rows, icons, "image", ""), links, "own", Any));
}

TEST_F(DesignedControls, OfTheWelcomePanel) {
  ExpectControls(
      designs_.Welcome,
      {{"Frame1", "frame", Any},
       {"Frame4", "frame", "Start blocking Advertisments"},
       {"optDial", "option", "For Dialup internet connection "},
       {"optMedium", "option", "For medium connection (DSL/Cable)", Any, "selected"},
       {"optFast", "option", "For fast connection (T1)"},
       {"cmdstart", "button", "Start", "Start Blocking"},
       {"cmdstop", "button", "Stop", "Stop blocking"},
       {"cmdtest", "button", "Test", "Test popup blocking"},
       {"ChkMinimize", "check box", "Next time start the program in System Tray",
        "Enable to launch program to system tray next time it is started"},
       {"Label8", "label", "Ads blocked:"},
       {"lblno", "label", "0"},
       {"Label4", "label", "Stopping around 10,00,0000 ads."},
       {"Lblhelp", "label",
        "Select your internet connection and click Start button to block popups. To customize "
        "click on the Settings. "},
       {"Label62", "link", "Visit the website"},
       {"Label6", "link", "Help"},
       {"Label9", "link", "Help"},
       {"Image1", "image"},
       {"Timer1", "timer", "", Any, "2000 ms"},
       {"txtCommand", "text box", Any, Any, "hidden"}});
  EXPECT_TRUE(designs_.Welcome.lblno.TextFont().Bold);
}

TEST_F(DesignedControls, OfTheAdBlockingPanel) {
  const Rows rows{{"Frame1", "frame", Any},
                  {"Label1", "label", Any},
                  {"chkAll", "check box", "Block All Popup Ads"},
                  {"chkBPopup", "check box", "Pop-up Ads", Any, "ticked"},
                  {"chkBDhtml", "check box", "DHTML Fly-in Ads", Any, "ticked"},
                  {"chkBDialog", "check box", "Web Page Dialogs", Any, "ticked"},
                  {"chkBBanner", "check box", "Banner Ads", Any, "ticked"},
                  {"chkBFlash", "check box", "Flash Ads", Any, "ticked"},
                  {"chkBAdv", "check box", "Block Ads from secure site (https://)"},
                  {"chkBDialogBox", "check box", "Messenger Ads", Any, "ticked"},
                  {"chkBSpyware", "check box", "Block Automatic Spyware downloads", Any, "ticked"},
                  {"chkBFull", "check box", "Full Screen", Any, "disabled"},
                  {"cmbinternet", "editable list", "Custom"},
                  {"cmdsave", "button", "&Save", Any, "hidden, disabled"}};
  ExpectControls(designs_.AdBlocking, With(rows,
                                           {"Label12", "Label17", "Label18", "Label2", "Label20",
                                            "Label21", "Label22", "Label23", "Label24", "Label7"},
                                           "link", "Help"));
}

TEST_F(DesignedControls, OfTheSettingsPanel) {
  const Rows rows{
      {"Frame1", "frame", Any},
      {"Label1", "label", Any},
      {"chkGHideSystray", "check box", "Hide to system tray when closed",
       "Enable to hide the program to system tray when program is closed"},
      {"chkGSWindows", "check box", "Start with Windows",
       "Enable to start Vantrel on Windows startup"},
      {"chkGUpdate", "check box", "Automatically check for updates",
       "Enable to automatically check for program updates when you connect to internet"},
      {"chkGLog", "check box", "Keep a log of the Ads blocked",
       "Enable to keep a log of all the ads blocked by the program"},
      {"chkGShowToolbar", "check box", "Show Browser toolbar",
       "Enable to display Vantrel toolbar in internet explorer", "ticked"},
      {"chkScript", "check box", "Disable Script Debugger (Recommended)",
       "By enabling this option, you will not receive scripting errors when pop-ups are blocked",
       "ticked"},
      {"lblviewtoolbar", "link", "View Toolbar", "What is a browser toolbar and where it is shown",
       "hidden"},
      {"cmdtoolbar", "button", "&Customize Toolbar"},
      {"Command4", "button", "Check &Update"},
      {"cmdresetSettings", "button", "&Reset"}};
  ExpectControls(designs_.Settings,
                 With(rows, {"lblHGS", "Label13", "Label14", "Label15", "Label16", "Label25"},
                      "link", "Help"));
}

TEST_F(DesignedControls, OfTheNotificationPanel) {
  const Rows rows{{"Frame1", "frame", Any},
                  {"Label1", "label", Any},
                  {"chkNAll", "check box", "Don't Notify at all"},
                  {"chkNW", "check box", "Display a notification window"},
                  {"chkNS", "check box", "Play a sound"},
                  {"cmbsound", "pick list"},
                  {"Label35", "link", "Test Sound"},
                  {"chkNPH", "check box", "Display place holders for block Image Ads"},
                  {"chkNPHF", "check box", "Display place holders for block Flash Ads"},
                  {"chkNMC", "check box", "Change Mouse Cursor", Any, "disabled"},
                  {"cmdDefaultNotify", "button", "Default"}};
  ExpectControls(
      designs_.Notification,
      With(rows, {"Label42", "Label49", "Label50", "Label51", "Label52", "Label53", "Label58"},
           "link", "Help"));
  EXPECT_EQ(designs_.Notification.cmbsound.ListIndex(), -1);
}

TEST_F(DesignedControls, OfTheCleanPanel) {
  ExpectControls(designs_.Clean,
                 {{"Label1", "label", Any},
                  {"Frame1", "frame", "Delete Cache and Windows History             "},
                  {"Frame2", "frame", "Remove unwanted cookies         "},
                  {"chkCacheHistory", "check box", "History folder", Any, "ticked"},
                  {"chkCacheInternet", "check box", "Temp. internet files", Any, "ticked"},
                  {"chkCacheRecent", "check box", "Recent files", Any, "ticked"},
                  {"chkCacheHURL", "check box", "History URLS", Any, "ticked"},
                  {"chkCachetemp", "check box", "Other temporary files", Any, "ticked"},
                  {"chkWindowsRunHistory", "check box", "Run History", Any, "ticked"},
                  {"chkWindowsFindHistory", "check box", "Find History", Any, "ticked"},
                  {"chkWindowsRecDoc", "check box", "Recent doc. history", Any, "ticked"},
                  {"chkWindowsRB", "check box", "Recycle Bin", Any, "ticked"},
                  {"lblhistory", "label", "", ""},
                  {"lbltif", "label", "", ""},
                  {"lblRecent", "label", "", ""},
                  {"lblotf", "label", "", ""},
                  {"optBit(8)", "option", "For slow connection"},
                  {"optBit(9)", "option", "For medium connection", Any, "selected"},
                  {"pbarCache", "progress bar", "", Any, "hidden"},
                  {"lblcleaningstatus", "label", "Status:"},
                  {"lblRefresh", "link", "&Refresh", "Help on History and Cache cleaning"},
                  {"CmdDeleteCache", "button", "Delete", "Click to delete Windows history"},
                  {"optIE", "option", "Internet Explorer", Any, "selected"},
                  {"optNetscape", "option", "Netscape"},
                  {"optOpera", "option", "Opera"},
                  {"txtcookies", "text box", "C:\\Documents and Settings\\Administrator\\Cookies"},
                  {"lblcookies", "label"},
                  {"urls", "list", Any},
                  {"cmddeleteCookies", "button", "Delete"},
                  {"Label19", "link", "Help"},
                  {"Label47", "link", "Help"},
                  {"Label48", "link", "Help"}});
}

TEST_F(DesignedControls, OfTheAllowedListPanel) {
  ExpectControls(designs_.AllowedList,
                 {{"Label2", "label", Any},
                  {"Label63", "label", "Allowed List", Any, "hidden"},
                  {"Frame11", "frame", "Allowed List"},
                  {"Label5", "label", "Allow list"},
                  {"Label1", "label",
                   "Add the websites to your allow list. Press 'CTRL' key to temporarily allow "
                   "the popups while clicking."},
                  {"txtName", "text box", "www.example.com"},
                  {"chkAPopups", "check box", "Allow Popup Ads", Any, "ticked"},
                  {"chkADhtml", "check box", "Allow DHTML Fly ins", Any, "ticked"},
                  {"chkADialog", "check box", "Allow Web Page Dialogs", Any, "ticked"},
                  {"chkABanner", "check box", "Allow Banner Ads", Any, "ticked"},
                  {"chkAFlash", "check box", "Allow Flash Ads", Any, "ticked"},
                  {"chkADialogBox", "check box", "Allow Dialog Boxes", Any, "hidden, ticked"},
                  {"cmdAddWebsite", "button", "Add to allow list"},
                  {"cmdEditAllowed", "button", "Edit allow list"},
                  {"cmdRemove", "button", "Delete from allow list"},
                  {"lstGroup", "list", Any},
                  {"lblstatus", "label"},
                  {"lblnumberAL", "label"},
                  {"Label39", "link", "Help", "Help on Allowed List"}});
}

TEST_F(DesignedControls, OfTheIESettingsPanel) {
  ExpectControls(designs_.IESettings,
                 {{"Frame1", "frame", "Internet Explorer Settings "},
                  {"Label1", "label", "Backup/ Restore your Internet Explorer settings "},
                  {"Label2", "label", "Backup your Internet Explorer settings "},
                  {"Label3", "label", Any},
                  {"Label4", "label", Any},
                  {"Label5", "label", "Restore your last saved IE settings "},
                  {"txtIESettings", "text box"},
                  {"cmdBrowseIESettings", "button", Any, "browse for the path of the cookie"},
                  {"cmdBackupIESettings", "button", "Backup",
                   "Backup your Internet explorer registry settings"},
                  {"cmdRestoreIESettings", "button", "Restore",
                   "Restore your Internet explorer registry settings"},
                  {"chktakebackup", "check box", "Take a backup of current settings"},
                  {"txtBackup", "text box", "", Any, "read-only, multi-line"},
                  {"Label37", "link", "Help"},
                  {"Label38", "link", "Help"},
                  {"Label55", "link", "Help"}});
}

TEST_F(DesignedControls, OfTheIEPluginsPanel) {
  ExpectControls(designs_.IEPlugins,
                 {{"Frame1", "frame", "Internet Explorer Plugins / BHO"},
                  {"Label1", "label", "IE Plugins found"},
                  {"Label2", "label", "The List of Plugins /BHO found with the internet explorer"},
                  {"lstBHO", "list", Any, Any, "check boxes"},
                  {"lblTotalBHO", "label"},
                  {"cmdRefreshBHO", "button", "Refresh", "Refresh list"},
                  {"cmddeleteBHO", "button", "Delete selected", "Remove selected plug-in/BHO"},
                  {"flbpluginsfile", "file list", "", Any, "hidden"},
                  {"Label41", "link", "Help"}});
}

TEST_F(DesignedControls, OfTheGraphPanel) {
  ExpectControls(designs_.Graph, {{"Label66", "label", "Graphs and Statistics", Any, "hidden"},
                                  {"Graphs", "frame", "Graphs and Statistics"},
                                  {"Label43", "label", "Graphs"},
                                  {"Label1(0)", "label", "Graphs for the Vantrel"},
                                  {"Label1(1)", "label", "Popups"},
                                  {"Label1(2)", "label", "DHTML"},
                                  {"Label1(3)", "label", "Dialogs"},
                                  {"Label1(4)", "label", "Banners"},
                                  {"Label1(5)", "label", "Flash"},
                                  {"MSChart1", "chart", Any},
                                  {"txtPop", "text box", "59", Any, "read-only"},
                                  {"txtDHTML", "text box", "45", Any, "read-only"},
                                  {"txtWebD", "text box", "25", Any, "read-only"},
                                  {"txtBanner", "text box", "66", Any, "read-only"},
                                  {"txtFlash", "text box", "90", Any, "read-only"},
                                  {"lbltotallog", "label", "Total:"},
                                  {"Command12", "button", "Details Logs >>", "Detail Logs"},
                                  {"Label44", "link", "Help", "Help on Graphs"}});
}

TEST_F(DesignedControls, OfTheDetailLogPanel) {
  ExpectControls(designs_.Log,
                 {{"Label67", "label", "Detail Logs", Any, "hidden"},
                  {"Frame14", "frame", "Detail Logs"},
                  {"Label45", "label", "Advertisements and Popups Blocked statistics"},
                  {"Label1", "label", "The number of Popups and Advertisements blocked"},
                  {"lstLog", "list", Any},
                  {"lblResetLog", "link", "Reset Log", "Reset all Logs"},
                  {"Label54", "link", "View Log", ""},
                  {"Command11", "button", " Graphical View >>", "Graphical view"},
                  {"Label46", "link", "Help", "Help on Detail Logs"}});
}

TEST_F(DesignedControls, OfTheToolbarDialog) {
  ExpectControls(
      designs_.Customize,
      {{"Label1", "label",
        "You may customize the Internet Explorer Vantrel toolbar  here. Simply add, move, or "
        "delete buttons to configure the toolbar as you wish it to apear. "},
       {"lstvSet", "list", Any},
       {"lstvCurrent", "list", Any},
       {"cmdAdd", "button", "Add >>"},
       {"cmdRemove", "button", "<< Remove"},
       {"cmdMUp", "button", "Move Up"},
       {"cmdMDown", "button", "Move Down"},
       {"cmdReset", "button", "Reset"},
       {"Label2", "label", "You may have to restart Internet Explorer to see the changes"},
       {"Label3", "label", Any},
       {"txttoolbarname", "text box", Any},
       {"cmdDone", "button", "Save"},
       {"Command1", "button", "Ok"}});
}

TEST_F(DesignedControls, OfTheAboutDialog) {
  ExpectControls(designs_.About, {{"Label1", "label", "Vantrel"},
                                  {"Label2", "label", "Version 2.00"},
                                  {"Label3", "label", Any},
                                  {"Label30", "link", "Qorvel Software Website"},
                                  {"Label61", "link", "Help && Support"},
                                  {"CmdOK", "button", Any},
                                  {"ImgLTop", "image"},
                                  {"Image2", "image"}});
}

TEST_F(DesignedControls, TheWindowsBearTheirCaptions) {
  EXPECT_EQ(designs_.Main.Caption(), "Qorvel Software Vantrel");
  EXPECT_EQ(designs_.Customize.Caption(), "  Customize Toolbar - Vantrel");
  EXPECT_EQ(designs_.About.Caption(), "About Qorvel Software Vantrel");
  EXPECT_EQ(designs_.AllowedList.Caption(), "Allowed List");
  EXPECT_EQ(designs_.Graph.Caption(), "Graphs and Statistics");
  EXPECT_EQ(designs_.Log.Caption(), "Detail Logs");
  EXPECT_EQ(designs_.IESettings.CommonDialog2.QualifiedName(), "FrmFrameIESettings.CommonDialog2");
}

TEST_F(DesignedControls, EachLinkOfTheLeftColumnHasItsPicture) {
  for (const char* name :
       {"ImgWelcome", "ImgAdBlocking", "ImgSettings", "ImgClean", "ImgAllowed", "IMgNotify",
        "ImgCheckRepair", "IeSettings", "ImgIEPlug", "ImgHelp", "ImgGraph", "ImgDetails"}) {
    forms::Control* const picture = designs_.Main.FindControl(name);
    ASSERT_NE(dynamic_cast<forms::Image*>(picture), nullptr) << name;
    EXPECT_EQ(picture->Container(), &designs_.Main.PicBase) << name;
    EXPECT_TRUE(picture->Visible()) << name;
  }
}

TEST_F(DesignedControls, EachIsFoundUnderItsOwnName) {
  for (forms::Form* form : designs_.All()) {
    for (forms::Control* control : form->Controls()) {
      // The constituents of a link are its own affair.
      if (dynamic_cast<forms::UserControl*>(control->Container()) != nullptr) continue;
      const std::string name = control->QualifiedName().substr(form->Name().size() + 1);
      EXPECT_EQ(form->FindControl(name), control) << control->QualifiedName();
    }
  }
}

TEST_F(DesignedControls, TheDropDownListsHoldTheirEntries) {
  const auto entries = [](const forms::ComboBox& box) {
    std::vector<std::string> texts;
    for (int index = 0; index < box.ListCount(); ++index) texts.push_back(box.List(index));
    return texts;
  };
  EXPECT_EQ(entries(designs_.AdBlocking.cmbinternet),
            (std::vector<std::string>{"Custom", "Dial Up", "DSL/Cable", "High Speed /T1 Line"}));
  EXPECT_EQ(entries(designs_.Notification.cmbsound),
            (std::vector<std::string>{"alert", "click", "crash", "double", "drop", "pop", "pop2",
                                      "slip", "vanish", "vaporize", "woosh"}));
}

std::vector<std::string> Headers(const forms::ListView& list) {
  std::vector<std::string> headers;
  for (const forms::Column& column : list.Columns()) headers.push_back(column.Header);
  return headers;
}

TEST_F(DesignedControls, TheListsHaveTheirColumns) {
  using Texts = std::vector<std::string>;
  EXPECT_EQ(Headers(designs_.Clean.urls), Texts{"Name"});
  EXPECT_EQ(Headers(designs_.AllowedList.lstGroup),
            (Texts{"Website", "Popups", "DHTML", "Dialogs", "Banner", "Flash"}));
  EXPECT_EQ(Headers(designs_.IEPlugins.lstBHO), (Texts{"Name", "Type"}));
  EXPECT_EQ(Headers(designs_.Log.lstLog), (Texts{"Type", "Count"}));
  EXPECT_EQ(Headers(designs_.Customize.lstvSet), Texts{"Buttons Not Shown"});
  EXPECT_EQ(Headers(designs_.Customize.lstvCurrent), Texts{"Current Buttons"});
}

TEST_F(DesignedControls, TheFlagsOfTheAllowedListAreNarrowAndOfOneWidth) {
  const std::vector<forms::Column>& columns = designs_.AllowedList.lstGroup.Columns();
  for (std::size_t index = 1; index < columns.size(); ++index) {
    EXPECT_EQ(columns[index].Width, columns[1].Width);
    EXPECT_LT(columns[index].Width * 2, columns[0].Width + Steps(1));
  }
}

TEST_F(DesignedControls, TheListsTakeTheirPicturesFromTheirLists) {
  EXPECT_EQ(designs_.Clean.urls.SmallIcons(), &designs_.Clean.imgcookies);
  EXPECT_EQ(designs_.AllowedList.lstGroup.SmallIcons(), &designs_.AllowedList.imglweb);
  EXPECT_EQ(designs_.IEPlugins.lstBHO.SmallIcons(), &designs_.IEPlugins.imgbho);
  EXPECT_EQ(designs_.Customize.lstvSet.SmallIcons(), &designs_.Customize.ImageList1);
  EXPECT_EQ(designs_.Customize.lstvCurrent.SmallIcons(), &designs_.Customize.ImageList1);
}

TEST_F(DesignedControls, TheChartHasOneBarACounterInTheColourOfItsBox) {
  const std::vector<forms::ChartColumn>& bars = designs_.Graph.MSChart1.Columns();
  const std::vector<const char*> labels{"System", "GDI", "User", "C4", "C5"};
  const std::vector<forms::Color> colors{forms::Rgb(0xFF, 0xC0, 0xC0), forms::Rgb(0xC0, 0xFF, 0xC0),
                                         forms::Rgb(0xC0, 0xFF, 0xFF), forms::Rgb(0xC0, 0xC0, 0x00),
                                         forms::Rgb(0xFF, 0xC0, 0xFF)};
  const std::vector<forms::TextBox*> boxes{&designs_.Graph.txtPop, &designs_.Graph.txtDHTML,
                                           &designs_.Graph.txtWebD, &designs_.Graph.txtBanner,
                                           &designs_.Graph.txtFlash};
  EXPECT_EQ(designs_.Graph.MSChart1.RowLabel(), "R1");
  ASSERT_EQ(bars.size(), 5U);
  for (std::size_t index = 0; index < bars.size(); ++index) {
    EXPECT_EQ(bars[index].Label, labels[index]);
    EXPECT_EQ(bars[index].Fill, colors[index]);
    EXPECT_EQ(boxes[index]->BackColor(), colors[index]);
  }
}

}  // namespace
}  // namespace vantrel::windows
