#include <gmock/gmock.h>

#include "shell/Navigation.h"
#include "unit/shell/ShellTest.h"
#include "windows/FrmAbout.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameLog.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameNotification.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::shell {
namespace {

using test::BlockSettings;
using test::Copy;
using testing::ElementsAre;

class Navigation : public test::ShellTest {
 protected:
  void SetUp() override { copy = StartCopy(); }
  windows::frmMain& Main() { return *copy->Windows().frmMain; }
  program::Windows& Windows() { return copy->Windows(); }
  std::string Title() { return Main().lblVCP1.Caption(); }
  std::vector<std::string> Started() {
    std::vector<std::string> lines;
    for (const auto& started : world.programs.Started()) lines.push_back(started.commandLine);
    return lines;
  }
  void ExpectNoBrowserBox() {
    EXPECT_THAT(BoxTexts(*copy), ElementsAre("Run-time error '53':\r\n\r\nFile not found"));
    copy->process.ClearBoxes();
  }

  std::unique_ptr<Copy> copy;
};

struct LinkCase {
  controls::HyperLink windows::frmMain::*link;
  const char* caption;
  std::vector<std::string> shown;
  const char* title;
};

TEST_F(Navigation, EachLinkShowsItsPanelAndSetsTheTitle) {
  using windows::frmMain;
  const LinkCase cases[] = {
      {&frmMain::lnkClean,
       "Clean",
       {"FrmFrameMain", "FrmFrameHistory"},
       "Clean - Qorvel Software Vantrel "},
      {&frmMain::LnkAllowedList,
       "Allowed List",
       {"FrmFrameMain", "FrmFrameAllowList"},
       "Allowed List - Qorvel Software Vantrel "},
      {&frmMain::LnkNotification,
       "Notification",
       {"FrmFrameMain", "FrmFrameNotification"},
       "Notification - Qorvel Software Vantrel "},
      {&frmMain::LnkIESettings,
       "IE Settings",
       {"FrmFrameMain", "FrmFrameIESettings"},
       "IE Settings - Qorvel Software Vantrel "},
      {&frmMain::LnkIePlug,
       "IE/ Plugins / BHO",
       {"FrmFrameMain", "FrmFrameIEPlugin"},
       "IE Plugins/BHO - Qorvel Software Vantrel "},
      {&frmMain::LnkGraph,
       "Graph",
       {"FrmFrameMain", "FrmFrameGraph"},
       "Graphs - Qorvel Software Vantrel "},
      {&frmMain::LnkLog,
       "Detail Log",
       {"FrmFrameMain", "FrmFrameLog"},
       "Detail Log - Qorvel Software Vantrel "},
      {&frmMain::LnkAdBlocking,
       "Ad Blocking",
       {"FrmFrameBlockPreferences"},
       "Ad Blocking - Qorvel Software Vantrel "},
      {&frmMain::LnkSettings,
       "Settings",
       {"FrmFrameSettings"},
       "Settings - Qorvel Software Vantrel "},
      {&frmMain::LnkWelcome, "Welcome", {"FrmFrameMain"}, "Welcome - Qorvel Software Vantrel "},
  };
  for (const LinkCase& row : cases) {
    EXPECT_EQ((Main().*row.link).Caption(), row.caption);
    (Main().*row.link).Click();
    EXPECT_THAT(ShownPanels(*copy), testing::UnorderedElementsAreArray(row.shown)) << row.caption;
    EXPECT_EQ(Title(), row.title);
  }
}

TEST_F(Navigation, TheHelpLinkFromTheWelcomePanelLeavesThatAboveTheHelpFrame) {
  Main().LnkHelp.Click();
  EXPECT_EQ(Title(), "Help - Qorvel Software Vantrel ");
  EXPECT_TRUE(Main().frahelp.Visible());
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain"));
  EXPECT_THAT(Started(), ElementsAre("\"C:\\Program Files\\Browser\\browser.exe\" \"C:\\Program "
                                     "Files\\Vantrel\\help\\welcome.htm\""));
}

TEST_F(Navigation, TheHelpLinkHidesTheUpperPanels) {
  Main().LnkGraph.Click();
  Main().LnkHelp.Click();
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain"));
}

TEST_F(Navigation, AnyPanelHidesTheHelpFrame) {
  Main().LnkHelp.Click();
  Main().LnkGraph.Click();
  EXPECT_FALSE(Main().frahelp.Visible());
}

TEST_F(Navigation, PanelsLieInTheOrderOfTheirHostingWhicheverShowsLast) {
  CaseGraph(copy->program);
  CaseIESettings(copy->program);
  CaseWelcome(copy->program);
  std::vector<std::string> shown;
  for (const auto child : world.desktop.Children(Main().hWnd())) {
    const std::string& name = world.desktop.ControlName(child);
    if (name.starts_with("FrmFrame") && world.desktop.Visible(child)) shown.push_back(name);
  }
  EXPECT_THAT(shown, ElementsAre("FrmFrameGraph", "FrmFrameIESettings", "FrmFrameMain"));
}

TEST_F(Navigation, MenusLeaveTheTitleOfThePreviousPanel) {
  Main().LnkNotification.Click();
  ASSERT_TRUE(copy->user.Select(Main().MnuClean));
  EXPECT_TRUE(Windows().FrmFrameHistory->Visible());
  EXPECT_FALSE(Windows().FrmFrameNotification->Visible());
  EXPECT_EQ(Title(), "Notification - Qorvel Software Vantrel ");
  EXPECT_EQ(Windows().FrmFrameHistory->lblcleaningstatus.Caption(), "Ready to clean");
}

TEST_F(Navigation, EveryPanelMenuShowsItsPanel) {
  using windows::frmMain;
  const std::pair<forms::Menu frmMain::*, const char*> cases[] = {
      {&frmMain::MnuAdBlocking, "FrmFrameBlockPreferences"},
      {&frmMain::mnuSettings, "FrmFrameSettings"},
      {&frmMain::MnuClean, "FrmFrameHistory"},
      {&frmMain::MNuAllowlist, "FrmFrameAllowList"},
      {&frmMain::MnuNotification, "FrmFrameNotification"},
      {&frmMain::submnuIESettings, "FrmFrameIESettings"},
      {&frmMain::submnuIEPlugins, "FrmFrameIEPlugin"},
      {&frmMain::submnugraph, "FrmFrameGraph"},
      {&frmMain::submnuDetailLog, "FrmFrameLog"},
      {&frmMain::mnuWelcome, "FrmFrameMain"},
  };
  for (const auto& [entry, panel] : cases) {
    ASSERT_TRUE(copy->user.Select(Main().*entry)) << panel;
    EXPECT_THAT(ShownPanels(*copy), testing::Contains(panel));
    EXPECT_EQ(Title(), "Welcome - Qorvel Software Vantrel ");
  }
}

TEST_F(Navigation, TheWelcomePanelStaysHiddenUntilARouteShowsIt) {
  Main().LnkSettings.Click();
  Main().lnkClean.Click();
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameHistory"));
  Main().LnkWelcome.Click();
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain"));
}

TEST_F(Navigation, TheToolButtonOfStartGoesThroughStopAndLeavesDisabledWritten) {
  ASSERT_TRUE(copy->program.BlockingActive);
  ASSERT_TRUE(copy->user.Press(Main().Toolbar1, 3));
  EXPECT_FALSE(copy->program.BlockingActive);
  EXPECT_EQ(copy->program.BlockStopped, 0);
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  EXPECT_TRUE(EngineEntryStands());
  EXPECT_FALSE(Windows().FrmFrameMain->cmdstart.Enabled());
  EXPECT_TRUE(Windows().FrmFrameMain->cmdstop.Enabled());
}

TEST_F(Navigation, TheMenuOfStartDoesTheSame) {
  ASSERT_TRUE(copy->user.Select(Main().MnuStartBlocking));
  EXPECT_FALSE(copy->program.BlockingActive);
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  EXPECT_TRUE(EngineEntryStands());
}

TEST_F(Navigation, TheTestMenuKeepsTheFlagAndOpensTheTestPage) {
  ASSERT_TRUE(copy->user.Select(Main().mnutest));
  EXPECT_TRUE(copy->program.BlockingActive);
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  ASSERT_EQ(Started().size(), 1U);
  EXPECT_EQ(Started()[0],
            "\"C:\\Program Files\\Browser\\browser.exe\" " + std::string(VANTREL_TEST_PAGE));
  copy->Windows().FrmFrameMain->cmdstop.SetValue(true);
  ASSERT_TRUE(copy->user.Select(Main().mnutest));
  EXPECT_FALSE(copy->program.BlockingActive);
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
}

TEST_F(Navigation, StopByMenuAndToolButton) {
  ASSERT_TRUE(copy->user.Select(Main().MnuStop));
  EXPECT_FALSE(EngineEntryStands());
  Windows().FrmFrameMain->cmdstart.SetValue(true);
  ASSERT_TRUE(copy->user.Press(Main().Toolbar1, 4));
  EXPECT_FALSE(EngineEntryStands());
  EXPECT_EQ(copy->program.BlockStopped, 1);
}

TEST_F(Navigation, ToolButtonsOfPanelsHideAllAndSetTheTitle) {
  const std::tuple<int, const char*, const char*> cases[] = {
      {1, "FrmFrameSettings", "Settings - Qorvel Software Vantrel "},
      {6, "FrmFrameHistory", "Clean - Qorvel Software Vantrel "},
      {7, "FrmFrameIESettings", "IE Settings - Qorvel Software Vantrel "},
      {8, "FrmFrameIEPlugin", "IE Plugins/BHO - Qorvel Software Vantrel "},
  };
  for (const auto& [button, panel, title] : cases) {
    ASSERT_TRUE(copy->user.Press(Main().Toolbar1, button));
    EXPECT_THAT(ShownPanels(*copy), ElementsAre(panel));
    EXPECT_EQ(Title(), title);
  }
}

TEST_F(Navigation, TheToolButtonOfHelpHidesNoPanel) {
  Main().LnkGraph.Click();
  ASSERT_TRUE(copy->user.Press(Main().Toolbar1, 15));
  EXPECT_TRUE(Windows().FrmFrameGraph->Visible());
  EXPECT_TRUE(Main().frahelp.Visible());
  EXPECT_EQ(Title(), "Help - Qorvel Software Vantrel ");
  EXPECT_EQ(Started().size(), 1U);
}

TEST_F(Navigation, TheMenuOfHelpDoesTheSame) {
  Main().LnkGraph.Click();
  ASSERT_TRUE(copy->user.Select(Main().submnuLaunchHelp));
  EXPECT_TRUE(Windows().FrmFrameGraph->Visible());
  EXPECT_TRUE(Main().frahelp.Visible());
  EXPECT_EQ(Title(), "Help - Qorvel Software Vantrel ");
}

TEST_F(Navigation, EntriesThatShowNoPanelHideNone) {
  using windows::frmMain;
  constexpr forms::Menu frmMain::*Entries[] = {
      &frmMain::MnuStartBlocking, &frmMain::mnutest,       &frmMain::MnuStop,
      &frmMain::submnuIEToolbar,  &frmMain::submnuLogFile, &frmMain::submnuAbout,
      &frmMain::MnuHide,
  };
  world.files.Put("C:\\Program Files\\Vantrel\\Settings\\log.txt", "x");
  copy->toolkit.WaitForEvents = [this] {
    copy->toolkit.WhenPumped([this] { Windows().FrmAbout->CmdOK.SetValue(true); });
    return true;
  };
  CaseGraph(copy->program);
  for (const auto entry : Entries) {
    const std::string name = (Main().*entry).Name();
    ASSERT_TRUE(copy->user.Select(Main().*entry)) << name;
    EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain", "FrmFrameGraph")) << name;
    EXPECT_EQ(Title(), "Welcome - Qorvel Software Vantrel ") << name;
  }
}

TEST_F(Navigation, ToolButtonsThatShowNoPanelHideNone) {
  CaseGraph(copy->program);
  for (const int button : {3, 4, 9, 13}) {
    ASSERT_TRUE(copy->user.Press(Main().Toolbar1, button)) << button;
    EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain", "FrmFrameGraph")) << button;
    EXPECT_EQ(Title(), "Welcome - Qorvel Software Vantrel ") << button;
  }
}

TEST_F(Navigation, WithoutABrowserTheHelpFrameShowsUnderItsTitleAllTheSame) {
  world.registry.RemoveKey(platform::HKeyClassesRoot, "http\\shell\\open\\command");
  const std::function<void()> ways[] = {
      [this] { copy->toolkit.AtBorder([this] { Main().LnkHelp.Click(); }); },
      [this] { EXPECT_TRUE(copy->user.Press(Main().Toolbar1, 15)); },
      [this] { EXPECT_TRUE(copy->user.Select(Main().submnuLaunchHelp)); },
  };
  for (const auto& open : ways) {
    Main().LnkWelcome.Click();
    open();
    ExpectNoBrowserBox();
    EXPECT_EQ(Title(), "Help - Qorvel Software Vantrel ");
    EXPECT_TRUE(Main().frahelp.Visible());
  }
}

TEST_F(Navigation, WithoutABrowserTheTestMenuStartsBlockingAllTheSame) {
  world.registry.RemoveKey(platform::HKeyClassesRoot, "http\\shell\\open\\command");
  ASSERT_TRUE(copy->user.Select(Main().MnuStop));
  ASSERT_FALSE(EngineEntryStands());
  ASSERT_TRUE(copy->user.Select(Main().mnutest));
  ExpectNoBrowserBox();
  EXPECT_TRUE(EngineEntryStands());
  EXPECT_TRUE(Windows().FrmFrameMain->cmdstop.Enabled());
}

TEST_F(Navigation, SeparatorsAndNumbersOutsideAreIgnored) {
  for (const int index : {0, 2, 5, 10, 12, 14, 16, -1, 32767}) {
    Main().Toolbar1.ButtonClick(index);
    EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain"));
  }
}

TEST_F(Navigation, MinimizeAllPressesWindowsAndMAndNeverLetsTheMGo) {
  Main().LnkGraph.Click();
  ASSERT_TRUE(copy->user.Press(Main().Toolbar1, 11));
  ASSERT_EQ(world.desktop.keyEvents.size(), 3U);
  const std::tuple<int, unsigned> keys[] = {{91, 0}, {77, 0}, {91, 2}};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(world.desktop.keyEvents[i].key, std::get<0>(keys[i]));
    EXPECT_EQ(world.desktop.keyEvents[i].flags, std::get<1>(keys[i]));
    EXPECT_EQ(world.desktop.keyEvents[i].scan, 0);
    EXPECT_EQ(world.desktop.keyEvents[i].extra, 0U);
  }
  EXPECT_TRUE(Windows().FrmFrameGraph->Visible());
}

TEST_F(Navigation, PanicHidesThePanelsFirst) {
  Main().LnkGraph.Click();
  ASSERT_TRUE(copy->user.Select(Main().MnuPanic));
  EXPECT_EQ(world.desktop.keyEvents.size(), 3U);
  EXPECT_FALSE(Windows().FrmFrameGraph->Visible());
}

TEST_F(Navigation, HideInTrayWritesNothing) {
  ASSERT_TRUE(copy->user.Press(Main().Toolbar1, 13));
  EXPECT_FALSE(Main().Visible());
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

TEST_F(Navigation, TheToolbarsDialogOpensBesideTheMainWindow) {
  ASSERT_TRUE(copy->user.Press(Main().Toolbar1, 9));
  EXPECT_TRUE(Windows().frmcustom->Visible());
  EXPECT_TRUE(Main().Visible());
  // It has no button for Esc.
  EXPECT_TRUE(copy->user.Escape());
  EXPECT_FALSE(Windows().frmcustom.Loaded());
  EXPECT_TRUE(Main().Visible());
  ASSERT_TRUE(copy->user.Select(Main().submnuIEToolbar));
  EXPECT_TRUE(Windows().frmcustom->Visible());
}

TEST_F(Navigation, TheLogFileOpensOnlyIfItExists) {
  ASSERT_TRUE(copy->user.Select(Main().submnuLogFile));
  EXPECT_THAT(Started(), testing::IsEmpty());
  world.files.Put("C:\\Program Files\\Vantrel\\Settings\\log.txt", "x");
  ASSERT_TRUE(copy->user.Select(Main().submnuLogFile));
  EXPECT_THAT(Started(), ElementsAre("\"C:\\Program Files\\Browser\\browser.exe\" \"C:\\Program "
                                     "Files\\Vantrel/Settings/Log.txt\""));
}

TEST_F(Navigation, TheInvisibleMenuEntryDoesNothing) {
  EXPECT_FALSE(Main().mnutest12.Visible());
  Main().mnutest12.UserClick();
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameMain"));
}

TEST_F(Navigation, AboutIsModalAndOkUnloadsIt) {
  bool pictures = false;
  copy->toolkit.WhenPumped([&] {
    auto& about = *Windows().FrmAbout;
    EXPECT_EQ(copy->toolkit.ModalForm(), &about);
    pictures = about.ImgLTop.Number() == 1 && about.Image2.Number() == 2;
    about.CmdOK.SetValue(true);
  });
  ASSERT_TRUE(copy->user.Select(Main().submnuAbout));
  EXPECT_TRUE(pictures);
  EXPECT_FALSE(Windows().FrmAbout.Loaded());
}

TEST_F(Navigation, AClickBetweenTwoPanelsIsHandled) {
  copy->toolkit.WhenPumped([&] { Main().LnkLog.Click(); });
  Main().LnkGraph.Click();
  // The title is the outer click's; both panels are where their operations left them.
  EXPECT_TRUE(Windows().FrmFrameLog->Visible());
  EXPECT_EQ(Title(), "Graphs - Qorvel Software Vantrel ");
}

TEST_F(Navigation, CleanIsTheOnePanelWithoutAYield) {
  using Operation = void (*)(program::Program&);
  for (const Operation operation :
       {CaseWelcome, CaseAdBlocking, CaseSettings, CaseAllow, CaseNotify, CaseIESettings,
        CaseIEPlugins, CaseGraph, CaseLog, CaseHelp}) {
    bool pumped = false;
    copy->toolkit.WhenPumped([&] { pumped = true; });
    operation(copy->program);
    EXPECT_TRUE(pumped);
  }
  bool pumped = false;
  copy->toolkit.WhenPumped([&] { pumped = true; });
  CaseClean(copy->program);
  EXPECT_FALSE(pumped);
}

TEST_F(Navigation, AdBlockingAndSettingsHideEachOtherAndTheWelcomePanel) {
  CaseSettings(copy->program);
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameSettings"));
  CaseAdBlocking(copy->program);
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameBlockPreferences"));
  CaseWelcome(copy->program);
  CaseSettings(copy->program);
  EXPECT_THAT(ShownPanels(*copy), ElementsAre("FrmFrameSettings"));
}

TEST_F(Navigation, TheHiddenButtonsAreNamedEntryPoints) {
  EXPECT_FALSE(Main().cmdADDBHO.Visible());
  EXPECT_FALSE(Main().cmdRemoveBHO.Visible());
  Main().cmdRemoveBHO.SetValue(true);
  EXPECT_FALSE(EngineEntryStands());
  EXPECT_TRUE(Main().cmdADDBHO.Enabled());
  EXPECT_FALSE(Main().cmdRemoveBHO.Enabled());
  Main().cmdADDBHO.SetValue(true);
  EXPECT_TRUE(EngineEntryStands());
}

}  // namespace
}  // namespace vantrel::shell
