#include <gmock/gmock.h>

#include "shell/LinkTargets.h"
#include "shell/launch/OpenUrl.h"
#include "unit/shell/ShellTest.h"

namespace vantrel::shell {
namespace {

using platform::HKeyClassesRoot;
using test::Copy;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Browser = "\"C:\\Program Files\\Browser\\browser.exe\" ";
constexpr const char* CommandKey = "http\\shell\\open\\command";

class Links : public test::ShellTest {
 protected:
  void SetUp() override { copy = StartCopy(); }

  // Clicks the control, or the menu entry, told as "Window.control".
  void ClickNamed(const std::string& name) {
    const auto dot = name.find('.');
    const std::string control = name.substr(dot + 1);
    for (forms::Form* form : copy->toolkit.LoadedForms()) {
      if (form->Name() != name.substr(0, dot)) continue;
      if (forms::Control* found = form->FindControl(control)) {
        copy->toolkit.AtBorder([found] { found->Click(); });
        return;
      }
      for (forms::Menu* entry : form->AllMenus()) {
        if (entry->Name() == control) copy->toolkit.AtBorder([entry] { entry->UserClick(); });
      }
    }
  }
  std::vector<std::string> Started() {
    std::vector<std::string> lines;
    for (const auto& started : world.programs.Started()) lines.push_back(started.commandLine);
    return lines;
  }
  void Open(const std::string& target) {
    copy->toolkit.AtBorder([this, target] {
      opened = target;
      launch::OpenUrl(copy->program, opened);
    });
  }
  void SetBrowser(const std::string& command) {
    world.registry.SetString(HKeyClassesRoot, CommandKey, "", command);
  }

  std::unique_ptr<Copy> copy;
  std::string opened;
};

struct Expected {
  const char* name;
  const char* commandLine;  // behind the browser
};

// Every control that opens a page, with the command line's tail that its click starts.
constexpr Expected Table[] = {
    {"frmMain.Label29", "\"www.qorvel.example/Vantrel/Help.htm\""},
    {"frmMain.Label31", "\"www.qorvel.example/Vantrel/Faqs.htm\""},
    {"frmMain.Label30", "\"www.qorvel.example/Vantrel\""},
    {"FrmAbout.Label30", "\"www.qorvel.example/Vantrel\""},
    {"FrmFrameMain.Label62", "\"www.qorvel.example/Vantrel\""},
    {"frmMain.mnusysupdates", "\"update.qorvel.example/Vantrel/Update.asp\""},
    {"frmMain.mnusystellf", "\"www.qorvel.example/Vantrel/TellaFriend.asp\""},
    {"FrmFrameSettings.Command4", "http://www.qorvel.example/vantrel/updates.html"},
    {"frmMain.mnutest", "http://www.popuptest.example/"},
    {"FrmFrameMain.cmdtest", "http://www.popuptest.example/"},
    {"frmMain.LnkHelp", "\"C:\\Program Files\\Vantrel\\help\\welcome.htm\""},
    {"frmMain.submnuLaunchHelp", "\"C:\\Program Files\\Vantrel\\help\\welcome.htm\""},
    {"frmMain.Label32", "\"C:\\Program Files\\Vantrel\\help\\welcome.htm\""},
    {"frmMain.Label57", "\"C:\\Program Files\\Vantrel\\help\\welcome.htm\""},
    {"frmMain.Label61", "\"C:\\Program Files\\Vantrel\\help\\welcome.htm\""},
    {"FrmAbout.Label61", "\"C:\\Program Files\\Vantrel\\help\\welcome.htm\""},
    {"FrmFrameMain.Label6", "\"C:\\Program Files\\Vantrel\\help\\welcome.htm\""},
    {"FrmFrameMain.Label9", "\"C:\\Program Files\\Vantrel\\help\\settings.htm#MinimizeOnStartup\""},
    {"FrmFrameBlockPreferences.Label12",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm\""},
    {"FrmFrameBlockPreferences.Label17",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#BlockAllPopupAds\""},
    {"FrmFrameBlockPreferences.Label18",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#Pop-UpAds\""},
    {"FrmFrameBlockPreferences.Label2",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#AutomaticSpywareDownloads\""},
    {"FrmFrameBlockPreferences.Label20",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#WebPageDialogs\""},
    {"FrmFrameBlockPreferences.Label21",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#BannerAds\""},
    {"FrmFrameBlockPreferences.Label22",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#DHTMLFly-inAds\""},
    {"FrmFrameBlockPreferences.Label23",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#FlashAds\""},
    {"FrmFrameBlockPreferences.Label24",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#Adssecuresites\""},
    {"FrmFrameBlockPreferences.Label7",
     "\"C:\\Program Files\\Vantrel\\help\\Block Preferences.htm#MessengerAds\""},
    {"FrmFrameSettings.lblHGS", "\"C:\\Program Files\\Vantrel\\help\\settings.htm\""},
    {"FrmFrameSettings.Label13",
     "\"C:\\Program Files\\Vantrel\\help\\settings.htm#Browsertoolbar\""},
    {"FrmFrameSettings.Label14", "\"C:\\Program Files\\Vantrel\\help\\settings.htm#Hidetotray\""},
    {"FrmFrameSettings.Label15",
     "\"C:\\Program Files\\Vantrel\\help\\settings.htm#StartwithWindows\""},
    {"FrmFrameSettings.Label16", "\"C:\\Program Files\\Vantrel\\help\\settings.htm#KeepALog\""},
    {"FrmFrameSettings.Label25",
     "\"C:\\Program Files\\Vantrel\\help\\settings.htm#Automaticupdates\""},
    {"FrmFrameSettings.lblviewtoolbar", "\"C:\\Program Files\\Vantrel\\help\\ViewToolbar.htm\""},
    {"FrmFrameHistory.Label19", "\"C:\\Program Files\\Vantrel\\help\\cleaning.htm\""},
    {"FrmFrameHistory.Label47", "\"C:\\Program Files\\Vantrel\\help\\cleaning.htm#DeleteCache\""},
    {"FrmFrameHistory.Label48", "\"C:\\Program Files\\Vantrel\\help\\cleaning.htm#Deletecookies\""},
    {"FrmFrameAllowList.Label39", "\"C:\\Program Files\\Vantrel\\help\\Allowedlist.htm\""},
    {"FrmFrameNotification.Label42",
     "\"C:\\Program Files\\Vantrel\\help\\Notificationsettings.htm\""},
    {"FrmFrameNotification.Label49",
     "\"C:\\Program Files\\Vantrel\\help\\Notificationsettings.htm#Displaynotification\""},
    {"FrmFrameNotification.Label50",
     "\"C:\\Program Files\\Vantrel\\help\\Notification.htm#cursor\""},
    {"FrmFrameNotification.Label51",
     "\"C:\\Program Files\\Vantrel\\help\\Notificationsettings.htm#Playsound\""},
    {"FrmFrameNotification.Label52",
     "\"C:\\Program Files\\Vantrel\\help\\Notificationsettings.htm#DisplayholdersImage\""},
    {"FrmFrameNotification.Label53",
     "\"C:\\Program Files\\Vantrel\\help\\Notificationsettings.htm#DisplayholdersFlash\""},
    {"FrmFrameNotification.Label58",
     "\"C:\\Program Files\\Vantrel\\help\\Notificationsettings.htm#DontNotify\""},
    {"FrmFrameIESettings.Label38", "\"C:\\Program Files\\Vantrel\\help\\IE Settings.htm\""},
    {"FrmFrameIESettings.Label37", "\"C:\\Program Files\\Vantrel\\help\\IE Settings.htm#backup\""},
    {"FrmFrameIESettings.Label55", "\"C:\\Program Files\\Vantrel\\help\\IE Settings.htm#restore\""},
    {"FrmFrameIEPlugin.Label41",
     "\"C:\\Program Files\\Vantrel\\help\\IE Settings.htm#IEPluginsandBHO\""},
    {"FrmFrameGraph.Label44", "\"C:\\Program Files\\Vantrel\\help\\Graph.htm#GraphicalDisplay\""},
    {"FrmFrameLog.Label46", "\"C:\\Program Files\\Vantrel\\help\\graph.htm#DetailedLog\""},
};

TEST_F(Links, EachControlStartsTheBrowserWithItsPage) {
  static_cast<void>(*copy->Windows().FrmAbout);
  for (const Expected& row : Table) {
    world.programs.ClearStarted();
    ClickNamed(row.name);
    EXPECT_THAT(Started(), ElementsAre(std::string(Browser) + row.commandLine)) << row.name;
    EXPECT_EQ(world.programs.Started().at(0).showCommand, 1) << row.name;
  }
}

TEST_F(Links, EveryRowOfTheTableIsTold) {
  ForEachLinkTarget([](const std::string& name, const launch::Target&) {
    const bool told = std::any_of(std::begin(Table), std::end(Table),
                                  [&name](const Expected& row) { return name == row.name; });
    EXPECT_TRUE(told) << name;
  });
}

TEST_F(Links, ATargetOfFourCharactersGetsTheMessageWhateverTheBrowser) {
  Open("http");
  Open("");
  ASSERT_EQ(copy->process.Boxes().size(), 2U);
  EXPECT_EQ(copy->process.Boxes()[0].text, "Unable to open URL. Install browser first!");
  EXPECT_EQ(copy->process.Boxes()[0].title, "Vantrel");
  EXPECT_EQ(copy->process.Boxes()[0].style, 0U);
  EXPECT_THAT(Started(), IsEmpty());
}

TEST_F(Links, ASchemeInCapitalsIsNotQuoted) {
  Open("HTTP://a.example/");
  EXPECT_THAT(Started(), ElementsAre(std::string(Browser) + "HTTP://a.example/"));
}

TEST_F(Links, QuotesArePutAtBothEndsOrNone) {
  Open("C:\\a b.htm");
  EXPECT_EQ(opened, "\"C:\\a b.htm\"");
  Open("\"C:\\a b.htm\"");
  EXPECT_EQ(opened, "\"C:\\a b.htm\"");
  Open("\"C:\\a b.htm");
  EXPECT_EQ(opened, "\"C:\\a b.htm");
  Open("C:\\a b.htm\"");
  EXPECT_EQ(opened, "C:\\a b.htm\"");
  Open("http://x");
  EXPECT_EQ(opened, "http://x");
}

TEST_F(Links, OnlyTheQuotedRouteLetsMessagesThrough) {
  bool pumped = false;
  copy->toolkit.WhenPumped([&pumped] { pumped = true; });
  Open("http://a.example/");
  EXPECT_FALSE(pumped);
  Open("C:\\page.htm");
  EXPECT_TRUE(pumped);
}

TEST_F(Links, TheBrowsersParametersAreDropped) {
  SetBrowser("\"C:\\Program Files\\Browser\\browser.exe\" -new \"%1\"");
  EXPECT_EQ(launch::GetDefaultBrowser(copy->program),
            "\"C:\\Program Files\\Browser\\browser.exe\"");
}

TEST_F(Links, TheFirstValueCountsWhateverItsName) {
  world.registry.RemoveKey(HKeyClassesRoot, CommandKey);
  world.registry.SetString(HKeyClassesRoot, CommandKey, "other", "\"C:\\other.exe\"");
  world.registry.SetString(HKeyClassesRoot, CommandKey, "", "\"C:\\default.exe\"");
  EXPECT_EQ(launch::GetDefaultBrowser(copy->program), "\"C:\\other.exe\"");
}

TEST_F(Links, AnUnquotedOrMissingBrowserGivesTheEmptyText) {
  SetBrowser("C:\\browser.exe %1");
  EXPECT_EQ(launch::GetDefaultBrowser(copy->program), "");
  SetBrowser("");
  EXPECT_EQ(launch::GetDefaultBrowser(copy->program), "");
  SetBrowser("\"unclosed");
  EXPECT_EQ(launch::GetDefaultBrowser(copy->program), "");
  world.registry.RemoveKey(HKeyClassesRoot, CommandKey);
  EXPECT_EQ(launch::GetDefaultBrowser(copy->program), "");
}

TEST_F(Links, ABrowserThatCannotBeStartedEndsInTheBoxOfItsEvent) {
  world.registry.RemoveKey(HKeyClassesRoot, CommandKey);
  ClickNamed("FrmFrameMain.Label6");
  EXPECT_THAT(BoxTexts(*copy), ElementsAre("Run-time error '53':\r\n\r\nFile not found"));
  EXPECT_EQ(copy->process.Boxes()[0].style, 16U);
  EXPECT_FALSE(copy->toolkit.Ending());
  SetBrowser(std::string(40000, 'x') + "\" overlong");
  ClickNamed("FrmFrameMain.Label6");
  EXPECT_EQ(copy->process.Boxes().size(), 2U);
}

TEST_F(Links, TheProgramFolderIsTakenAsTheSystemGivesIt) {
  Copy odd(world, "", "C:\\Vantrel.exe");
  EXPECT_EQ(launch::AddressOf(odd.program, launch::WelcomeHelp), "C:\\\\help\\welcome.htm");
  Copy umlaut(world, "", "C:\\Programme \xFC\\Vantrel.exe");
  EXPECT_EQ(launch::AddressOf(umlaut.program, launch::WelcomeHelp),
            "C:\\Programme \xFC\\help\\welcome.htm");
}

}  // namespace
}  // namespace vantrel::shell
