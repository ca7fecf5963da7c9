// The menus, tool buttons, status panels, links and pictures of the windows.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Designs.h"
#include "resources/ImageStrips.h"

namespace vantrel::windows {
namespace {

class Bars : public testing::Test {
 protected:
  Designs designs_;
};

struct Entry {
  std::string Name;
  std::string Caption;
  bool Visible = true;

  bool operator==(const Entry&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Entry& entry) {
  return out << entry.Name << " \"" << entry.Caption << '"' << (entry.Visible ? "" : " hidden");
}

std::vector<Entry> Told(const std::vector<forms::Menu*>& menus) {
  std::vector<Entry> told;
  for (const forms::Menu* menu : menus) {
    told.push_back({menu->Name(), menu->Caption(), menu->Visible()});
  }
  return told;
}

TEST_F(Bars, TheMenuBarHasFourMenusAndTheHiddenOneOfTheTray) {
  EXPECT_EQ(Told(designs_.Main.Menus()), (std::vector<Entry>{{"mnufile", "&File"},
                                                             {"MNuOptions", "O&ptions"},
                                                             {"mnuView", "&View"},
                                                             {"mnuHelp", "&Help"},
                                                             {"mnusystemone", "System", false}}));
}

TEST_F(Bars, TheFileMenu) {
  EXPECT_EQ(Told(designs_.Main.mnufile.Entries()),
            (std::vector<Entry>{{"mnuWelcome", "&Welcome"},
                                {"MnuStartBlocking", "&Start Blocking"},
                                {"mnutest", "&Test"},
                                {"MnuStop", "St&op"},
                                {"mnutest12", "testq", false},
                                {"mnusap1", "-"},
                                {"MnuPanic", "&Panic"},
                                {"MnuHide", "&Hide"},
                                {"MnuExit", "E&xit"}}));
}

TEST_F(Bars, TheOptionsMenu) {
  EXPECT_EQ(Told(designs_.Main.MNuOptions.Entries()),
            (std::vector<Entry>{{"MnuAdBlocking", "&Ad Blocking"},
                                {"mnusep2", "-"},
                                {"mnuSettings", "S&ettings"},
                                {"MnuClean", "&Clean"},
                                {"MNuAllowlist", "Allow &List"},
                                {"MnuNotification", "&Notification"},
                                {"mnusep3", "-"},
                                {"submnuIESettings", "&IE Settings"},
                                {"submnuIEPlugins", "IE &Plugins"},
                                {"mnusep4", "-"},
                                {"submnuIEToolbar", "IE &Toolbar"}}));
}

TEST_F(Bars, TheViewAndHelpMenus) {
  EXPECT_EQ(Told(designs_.Main.mnuView.Entries()),
            (std::vector<Entry>{{"submnugraph", "&Graph"},
                                {"submnuDetailLog", "&Detail Log"},
                                {"submnuLogFile", "&Log file"}}));
  EXPECT_EQ(Told(designs_.Main.mnuHelp.Entries()),
            (std::vector<Entry>{{"submnuLaunchHelp", "&Launch Help"},
                                {"mnusep6", "-"},
                                {"submnuAbout", "&About Vantrel"}}));
}

TEST_F(Bars, TheTrayMenuHidesTheUpdatesAndTheFriend) {
  EXPECT_EQ(Told(designs_.Main.mnusystemone.Entries()),
            (std::vector<Entry>{{"mnusysOpen", "Open Vantrel"},
                                {"mnu1", "-"},
                                {"mnusysBlock", "Block Settings"},
                                {"mnu2", "-"},
                                {"MNuAllow", "Allow List"},
                                {"mnusysCleaning", "History cleaning"},
                                {"mnu3", "-"},
                                {"mnusysupdates", "Check for Updates", false},
                                {"mnusystellf", "Tell a Friend", false},
                                {"mnu4", "-"},
                                {"mnusysexit", "Exit"}}));
}

TEST_F(Bars, TheInertMenusOfTheToolbarDialogDoNotShow) {
  EXPECT_EQ(Told(designs_.Customize.Menus()), (std::vector<Entry>{{"mnufile", "File", false},
                                                                  {"mnuabout", "About", false},
                                                                  {"mnusearch", "Search", false},
                                                                  {"mnusite", "Site", false}}));
}

TEST_F(Bars, TheToolbarHasFifteenPositionsFiveOfThemSeparators) {
  const std::vector<std::string> tips{"General Settings",
                                      "",
                                      "Start Blocking Ads",
                                      "Stop Blocking Ads",
                                      "",
                                      "Clean History",
                                      "Internet Explorer Settings",
                                      "Internet Explorer Plugins",
                                      "Customize Internet Explorer Toolbar",
                                      "",
                                      "Minimize all the Applications",
                                      "",
                                      "Hide in System Tray",
                                      "",
                                      "Help "};
  const std::vector<forms::ToolButton>& buttons = designs_.Main.Toolbar1.Buttons();
  ASSERT_EQ(buttons.size(), tips.size());
  int picture = 0;
  for (std::size_t index = 0; index < tips.size(); ++index) {
    EXPECT_EQ(buttons[index].ToolTipText, tips[index]);
    EXPECT_EQ(buttons[index].Picture, tips[index].empty() ? 0 : ++picture);
  }
  EXPECT_EQ(&designs_.Main.Toolbar1.Pictures(), &designs_.Main.IMgListTool);
}

TEST_F(Bars, TheStatusBarShowsStatusDateAndTime) {
  const std::vector<forms::StatusPanel>& panels = designs_.Main.sbStatusBar.Panels();
  ASSERT_EQ(panels.size(), 3U);
  EXPECT_EQ(panels[0].Kind, forms::StatusPanelKind::Text);
  EXPECT_EQ(panels[0].Text, "Status");
  EXPECT_EQ(panels[1].Kind, forms::StatusPanelKind::Date);
  EXPECT_EQ(panels[2].Kind, forms::StatusPanelKind::Time);
}

TEST_F(Bars, TheLinksOfTheColumnOpenNothingByThemselves) {
  const frmMain& main = designs_.Main;
  struct Told {
    const controls::HyperLink& Link;
    const char* Caption;
  };
  for (const auto& [link, caption] : {Told{main.LnkWelcome, "Welcome"},
                                      {main.LnkAdBlocking, "Ad Blocking"},
                                      {main.LnkSettings, "Settings"},
                                      {main.lnkClean, "Clean"},
                                      {main.LnkAllowedList, "Allowed List"},
                                      {main.LnkNotification, "Notification"},
                                      {main.LnkIESettings, "IE Settings"},
                                      {main.LnkIePlug, "IE/ Plugins / BHO"},
                                      {main.LnkGraph, "Graph"},
                                      {main.LnkLog, "Detail Log"},
                                      {main.LnkHelp, "Help"},
                                      {main.lnkCheckAndRepair, "Check and Repair"}}) {
    EXPECT_EQ(link.Caption(), caption);
    EXPECT_EQ(link.WindowText(), caption);
    EXPECT_EQ(link.GetHyperLink(), "");
    EXPECT_EQ(link.HoverColor(), forms::SystemColor(2)) << caption;
    EXPECT_EQ(link.ForeColor(),
              &link == &main.LnkWelcome ? forms::Rgb(0, 0, 255) : forms::SystemColor(13))
        << caption;
  }
}

TEST_F(Bars, EachImageListIsDrawnWithItsImagesAndKeys) {
  const std::vector<const forms::ImageList*> lists{
      &designs_.Main.imgexplore,     &designs_.Main.IMgListTool,  &designs_.Main.imgline,
      &designs_.Main.ImgHelpLogo,    &designs_.About.ImgHelpLogo, &designs_.Welcome.ImageList2,
      &designs_.AllowedList.imglweb, &designs_.Clean.imgcookies,  &designs_.IEPlugins.imgbho,
      &designs_.Customize.ImageList1};
  EXPECT_EQ(lists.size(), std::size(resources::ImageStrips));
  for (const forms::ImageList* list : lists) {
    const resources::ImageStrip* drawn = nullptr;
    for (const resources::ImageStrip& strip : resources::ImageStrips) {
      if (strip.Name == list->QualifiedName()) drawn = &strip;
    }
    ASSERT_NE(drawn, nullptr) << list->QualifiedName();
    EXPECT_EQ(drawn->ImageCount, list->Count()) << list->QualifiedName();
    // An image without a key is drawn under the empty one.
    std::vector<std::string> keys = list->Keys();
    keys.resize(static_cast<std::size_t>(list->Count()));
    EXPECT_EQ(std::vector<std::string>(drawn->Keys.begin(), drawn->Keys.end()), keys)
        << list->QualifiedName();
  }
}

TEST_F(Bars, TheImageListsHoldTheKeysThatRowsAskFor) {
  using Keys = std::vector<std::string>;
  EXPECT_EQ(designs_.Main.imgexplore.Count(), 26);
  EXPECT_EQ(designs_.Main.IMgListTool.Count(), 10);
  EXPECT_EQ(designs_.About.ImgHelpLogo.Count(), 2);
  EXPECT_EQ(designs_.AllowedList.imglweb.Keys(), Keys{"a"});
  EXPECT_EQ(designs_.Clean.imgcookies.Keys(), (Keys{"ie", "ns", "op"}));
  EXPECT_EQ(designs_.IEPlugins.imgbho.Keys(), (Keys{"bho", "pgn", "tb", "mnu"}));
  EXPECT_EQ(designs_.Customize.ImageList1.Keys(),
            (Keys{"Home", "Seperator2", "Seperator", "Clean", "Refresh", "Add Links", "On/Off",
                  "Toolbar Settings", "Notification", "Graph", "IE Plugins", "IE Settings",
                  "Options", "Help Vantrel"}));
}

}  // namespace
}  // namespace vantrel::windows
