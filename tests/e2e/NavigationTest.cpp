// Every way to a panel, by mouse and menu, into the real windows: which panels show, what the title
// says, and how the two dialogs come and go.
#include <algorithm>

#include "support/ProgramTest.h"
#include "support/RecordedBrowser.h"

namespace vantrel::e2e {
namespace {

constexpr const char* Panels[] = {"FrmFrameMain",       "FrmFrameBlockPreferences",
                                  "FrmFrameSettings",   "FrmFrameHistory",
                                  "FrmFrameAllowList",  "FrmFrameNotification",
                                  "FrmFrameIESettings", "FrmFrameIEPlugin",
                                  "FrmFrameGraph",      "FrmFrameLog"};

constexpr const char* Welcome = "FrmFrameMain";

class NavigationTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    program_.emplace();
    ASSERT_TRUE(program_->WaitUntilIdle());
  }
  void TearDown() override {
    program_.reset();
    ProgramTest::TearDown();
  }
  const Running& Program() const { return *program_; }
  RecordedBrowser& Browser() { return browser_; }

  std::vector<std::string> Shown() const {
    std::vector<std::string> shown;
    for (const char* panel : Panels) {
      if (Program().IsShown(panel)) shown.emplace_back(panel);
    }
    return shown;
  }
  // Waits until exactly these panels show, in the order of the table.
  void ExpectShown(std::vector<std::string> panels, const std::string& route) const {
    std::sort(panels.begin(), panels.end());
    auto shown = Shown();
    WaitFor([&] {
      shown = Shown();
      std::sort(shown.begin(), shown.end());
      return shown == panels;
    });
    EXPECT_EQ(shown, panels) << route;
  }
  std::string Title() const { return Program().TextOf("frmMain.lblVCP1"); }
  void ExpectTitle(const std::string& title, const std::string& route) const {
    EXPECT_TRUE(Program().WaitForText("frmMain.lblVCP1", title)) << route << ": " << Title();
  }
  bool HelpShown() const { return Program().IsShown("frmMain.frahelp"); }

 private:
  RecordedBrowser browser_;  // no page is to be opened for real
  std::optional<Running> program_;
};

TEST_F(NavigationTest, EachLinkShowsItsPanelAndTitle) {
  struct Row {
    const char* link;
    std::vector<std::string> panels;
    const char* title;
  };
  const Row rows[] = {
      {"LnkGraph", {Welcome, "FrmFrameGraph"}, "Graphs - Qorvel Software Vantrel "},
      {"LnkLog", {Welcome, "FrmFrameLog"}, "Detail Log - Qorvel Software Vantrel "},
      {"lnkClean", {Welcome, "FrmFrameHistory"}, "Clean - Qorvel Software Vantrel "},
      {"LnkAllowedList", {Welcome, "FrmFrameAllowList"}, "Allowed List - Qorvel Software Vantrel "},
      {"LnkNotification",
       {Welcome, "FrmFrameNotification"},
       "Notification - Qorvel Software Vantrel "},
      {"LnkIESettings", {Welcome, "FrmFrameIESettings"}, "IE Settings - Qorvel Software Vantrel "},
      {"LnkIePlug", {Welcome, "FrmFrameIEPlugin"}, "IE Plugins/BHO - Qorvel Software Vantrel "},
      {"LnkAdBlocking", {"FrmFrameBlockPreferences"}, "Ad Blocking - Qorvel Software Vantrel "},
      {"LnkSettings", {"FrmFrameSettings"}, "Settings - Qorvel Software Vantrel "},
      // The Welcome panel stays hidden until it is asked for.
      {"lnkClean", {"FrmFrameHistory"}, "Clean - Qorvel Software Vantrel "},
      {"LnkWelcome", {Welcome}, "Welcome - Qorvel Software Vantrel "},
  };
  for (const Row& row : rows) {
    Program().MouseClick(std::string("frmMain.") + row.link);
    ExpectTitle(row.title, row.link);
    ExpectShown(row.panels, row.link);
    EXPECT_FALSE(HelpShown()) << row.link;
  }
  EXPECT_EQ(Program().TextOf("FrmFrameHistory.lblcleaningstatus"), "Ready to clean");
  EXPECT_EQ(Program().TextOf("frmMain"), "Qorvel Software Vantrel");
}

TEST_F(NavigationTest, TheHelpLinkShowsTheFrameBelowTheWelcomePanel) {
  Program().MouseClick("frmMain.LnkHelp");
  ExpectTitle("Help - Qorvel Software Vantrel ", "LnkHelp");
  ExpectShown({Welcome}, "LnkHelp");
  EXPECT_TRUE(HelpShown());
  // The panel lies above the frame, and another panel takes the frame away.
  bool panelSeen = false;
  for (HWND window = GetWindow(Program().Find("frmMain"), GW_CHILD); window != nullptr;
       window = GetWindow(window, GW_HWNDNEXT)) {
    panelSeen = panelSeen || window == Program().Find(Welcome);
    if (window == Program().Find("frmMain.frahelp")) break;
  }
  EXPECT_TRUE(panelSeen);
  Program().MouseClick("frmMain.LnkSettings");
  ExpectShown({"FrmFrameSettings"}, "LnkSettings");
  EXPECT_FALSE(HelpShown());
}

TEST_F(NavigationTest, EachMenuEntryShowsItsPanelAndLeavesTheTitle) {
  struct Row {
    const char* entry;
    std::vector<std::string> panels;
  };
  const Row rows[] = {
      {"submnugraph", {Welcome, "FrmFrameGraph"}},
      {"submnuDetailLog", {Welcome, "FrmFrameLog"}},
      {"MnuClean", {Welcome, "FrmFrameHistory"}},
      {"MNuAllowlist", {Welcome, "FrmFrameAllowList"}},
      {"MnuNotification", {Welcome, "FrmFrameNotification"}},
      {"submnuIESettings", {Welcome, "FrmFrameIESettings"}},
      {"submnuIEPlugins", {Welcome, "FrmFrameIEPlugin"}},
      {"MnuAdBlocking", {"FrmFrameBlockPreferences"}},
      {"mnuSettings", {"FrmFrameSettings"}},
      {"MnuClean", {"FrmFrameHistory"}},
      {"mnuWelcome", {Welcome}},
  };
  const std::string title = Title();
  for (const Row& row : rows) {
    Program().ChooseMenu(row.entry);
    ExpectShown(row.panels, row.entry);
    EXPECT_EQ(Title(), title) << row.entry;
  }
}

TEST_F(NavigationTest, LinkMenuMenuKeepsTheLinksTitle) {
  Program().MouseClick("frmMain.LnkNotification");
  ExpectTitle("Notification - Qorvel Software Vantrel ", "link");
  Program().ChooseMenu("mnuSettings");
  Program().ChooseMenu("MnuClean");
  ExpectShown({"FrmFrameHistory"}, "menu");
  EXPECT_EQ(Title(), "Notification - Qorvel Software Vantrel ");
}

TEST_F(NavigationTest, EachToolButtonShowsItsPanelAndTitle) {
  struct Row {
    int index;
    const char* panel;
    const char* title;
  };
  constexpr Row rows[] = {
      {6, "FrmFrameHistory", "Clean - Qorvel Software Vantrel "},
      {7, "FrmFrameIESettings", "IE Settings - Qorvel Software Vantrel "},
      {8, "FrmFrameIEPlugin", "IE Plugins/BHO - Qorvel Software Vantrel "},
  };
  for (const Row& row : rows) {
    Program().PressTool(row.index);
    ExpectTitle(row.title, row.panel);
    ExpectShown({Welcome, row.panel}, row.panel);
  }
  Program().PressTool(1);
  ExpectTitle("Settings - Qorvel Software Vantrel ", "1");
  ExpectShown({"FrmFrameSettings"}, "1");
}

TEST_F(NavigationTest, TheHelpToolShowsTheFrameAndHidesNothing) {
  Program().PressTool(6);
  ExpectShown({Welcome, "FrmFrameHistory"}, "6");
  Program().PressTool(15);
  ExpectTitle("Help - Qorvel Software Vantrel ", "15");
  ExpectShown({Welcome, "FrmFrameHistory"}, "15");
  EXPECT_TRUE(HelpShown());
  Program().ChooseMenu("MnuNotification");
  ExpectShown({Welcome, "FrmFrameNotification"}, "menu");
  EXPECT_FALSE(HelpShown());
  Program().ChooseMenu("submnuLaunchHelp");
  // The title is the same before: the frame shows that the menu has answered.
  EXPECT_TRUE(WaitFor([this] { return HelpShown(); }));
  ExpectTitle("Help - Qorvel Software Vantrel ", "menu");
  ExpectShown({Welcome, "FrmFrameNotification"}, "menu");
}

TEST_F(NavigationTest, SeparatorsOfTheToolbarDoNothing) {
  const std::string title = Title();
  for (const int separator : {2, 5, 10, 12, 14}) Program().PressTool(separator);
  Program().PressTool(6);
  ExpectTitle("Clean - Qorvel Software Vantrel ", "6");
  ExpectShown({Welcome, "FrmFrameHistory"}, "6");
  EXPECT_NE(Title(), title);
}

TEST_F(NavigationTest, StartOfTheToolbarGoesThroughAStop) {
  Program().PressTool(3);
  EXPECT_TRUE(WaitFor([] { return Number(BlockSettings, "GDisabled") == 1; }));
  EXPECT_TRUE(WaitFor([&] { return KeyExists(HKEY_LOCAL_MACHINE, EngineKey); }));
  EXPECT_FALSE(Program().IsEnabled("FrmFrameMain.cmdstart"));
  EXPECT_TRUE(Program().IsEnabled("FrmFrameMain.cmdstop"));
  Program().PressTool(4);
  EXPECT_TRUE(WaitFor([&] { return Program().IsEnabled("FrmFrameMain.cmdstart"); }));
  EXPECT_TRUE(WaitFor([&] { return !KeyExists(HKEY_LOCAL_MACHINE, EngineKey); }));
  Program().ChooseMenu("MnuStartBlocking");
  EXPECT_TRUE(WaitFor([&] { return KeyExists(HKEY_LOCAL_MACHINE, EngineKey); }));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  Program().ChooseMenu("MnuStop");
  EXPECT_TRUE(WaitFor([&] { return !KeyExists(HKEY_LOCAL_MACHINE, EngineKey); }));
}

TEST_F(NavigationTest, TheTestEntryStartsWithTheFlagAsItStands) {
  Write(HKEY_CURRENT_USER, BlockSettings, "GDisabled", Dword(5));
  Program().ChooseMenu("mnutest");
  EXPECT_TRUE(WaitFor([] { return Number(BlockSettings, "GDisabled") == 0; }));
  EXPECT_EQ(Browser().WaitForLines().size(), 1U);
  Program().ChooseMenu("MnuStop");
  ASSERT_TRUE(WaitFor([&] { return Program().IsEnabled("FrmFrameMain.cmdstart"); }));
  ASSERT_TRUE(WaitFor([&] { return !KeyExists(HKEY_LOCAL_MACHINE, EngineKey); }));
  Program().ChooseMenu("mnutest");
  EXPECT_TRUE(WaitFor([&] { return KeyExists(HKEY_LOCAL_MACHINE, EngineKey); }));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 1U);
  // A program that is ended while it starts another leaves that one behind half made.
  EXPECT_EQ(Browser().WaitForLines().size(), 1U);
}

TEST_F(NavigationTest, HidingByMenuAndToolWritesNothing) {
  Program().ChooseMenu("MnuHide");
  EXPECT_TRUE(Program().WaitUntilVisible("frmMain", false));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
  Program().TrayCallback(WM_LBUTTONDBLCLK);
  EXPECT_TRUE(Program().WaitUntilVisible("frmMain"));
  Program().PressTool(13);
  EXPECT_TRUE(Program().WaitUntilVisible("frmMain", false));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

TEST_F(NavigationTest, PanicHidesTheUpperPanelsAndTheToolDoesNot) {
  Program().PressTool(6);
  ExpectShown({Welcome, "FrmFrameHistory"}, "6");
  Program().PressTool(11);
  // Posted behind it: when this has happened, that has.
  Program().PressTool(4);
  EXPECT_TRUE(WaitFor([&] { return Program().IsEnabled("FrmFrameMain.cmdstart"); }));
  ExpectShown({Welcome, "FrmFrameHistory"}, "11");
  Program().ChooseMenu("MnuPanic");
  ExpectShown({Welcome}, "panic");
  EXPECT_TRUE(Program().Alive());
}

TEST_F(NavigationTest, TheGraphAndTheLogLeadToEachOther) {
  Program().MouseClick("frmMain.LnkGraph");
  ExpectShown({Welcome, "FrmFrameGraph"}, "link");
  ExpectTitle("Graphs - Qorvel Software Vantrel ", "link");
  ASSERT_TRUE(Program().Click("FrmFrameGraph.Command12"));
  ExpectShown({Welcome, "FrmFrameLog"}, "Command12");
  ASSERT_TRUE(Program().Click("FrmFrameLog.Command11"));
  ExpectShown({Welcome, "FrmFrameGraph"}, "Command11");
  EXPECT_EQ(Title(), "Graphs - Qorvel Software Vantrel ");
}

TEST_F(NavigationTest, TheAboutDialogIsModalAndEndsByItsButtonEnterEscAndCloseBox) {
  const std::function<void()> ways[] = {
      [&] { Program().ClickAndLeave("FrmAbout.CmdOK"); },
      [&] { Program().PressKey("FrmAbout.CmdOK", VK_RETURN); },
      [&] { Program().PressKey("FrmAbout.CmdOK", VK_ESCAPE); },
      [&] { PostMessageA(Program().Find("FrmAbout"), WM_SYSCOMMAND, SC_CLOSE, 0); },
  };
  for (const auto& leave : ways) {
    Program().ChooseMenu("submnuAbout");
    ASSERT_TRUE(Program().WaitUntilVisible("FrmAbout"));
    EXPECT_EQ(Program().TextOf("FrmAbout"), "About Qorvel Software Vantrel");
    EXPECT_EQ(Program().TextOf("FrmAbout.Label2"), "Version 2.00");
    EXPECT_TRUE(WaitFor([&] { return !Program().IsEnabled("frmMain"); }));
    leave();
    EXPECT_TRUE(WaitFor([&] { return Program().Find("FrmAbout") == nullptr; }));
    EXPECT_TRUE(WaitFor([&] { return Program().IsEnabled("frmMain"); }));
  }
  Program().MouseClick("frmMain.LnkGraph");
  ExpectShown({Welcome, "FrmFrameGraph"}, "link");
}

TEST_F(NavigationTest, TheToolbarDialogOpensBesideTheMainWindowAndCloses) {
  const std::function<void()> ways[] = {
      [&] { Program().ChooseMenu("submnuIEToolbar"); },
      [&] { Program().PressTool(9); },
      [&] { Program().ClickAndLeave("FrmFrameSettings.cmdtoolbar"); },
  };
  for (const auto& open : ways) {
    open();
    ASSERT_TRUE(Program().WaitUntilVisible("frmcustom"));
    EXPECT_TRUE(Program().IsVisible("frmMain"));
    EXPECT_TRUE(Program().IsEnabled("frmMain"));
    PostMessageA(Program().Find("frmcustom"), WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_TRUE(WaitFor([&] { return !Program().IsVisible("frmcustom"); }));
  }
  EXPECT_TRUE(Program().Alive());
}

TEST_F(NavigationTest, TheInvisibleEntryDoesNothing) {
  const Tree before = ReadTree(HKEY_CURRENT_USER, RootKey);
  Program().ChooseMenu("mnutest12");
  Program().ChooseMenu("MnuHide");
  ASSERT_TRUE(Program().WaitUntilVisible("frmMain", false));
  ExpectShown({Welcome}, "mnutest12");
  EXPECT_EQ(Difference(before, ReadTree(HKEY_CURRENT_USER, RootKey)), "");
}

}  // namespace
}  // namespace vantrel::e2e
