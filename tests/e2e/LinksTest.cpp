// Every link clicked for real, with a browser that records how it was started; and what happens
// where there is no browser.
#include "support/Folders.h"
#include "support/LinkTable.h"
#include "support/ProgramTest.h"
#include "support/RecordedBrowser.h"

namespace vantrel::e2e {
namespace {

class LinksTest : public ProgramTest {
 protected:
  static void ClickControl(const Running& program, const std::string& name) {
    HWND control = program.Find(name);
    if (control == nullptr) {
      program.ChooseMenu(name.substr(name.find('.') + 1));
    } else if (ClassOf(control) == "Button") {
      program.ClickAndLeave(name);
    } else {
      program.MouseClick(name);
    }
  }
  // Brings the window with the link to where a user would click.
  static void ShowWindowOf(const Running& program, const std::string& name) {
    struct Row {
      const char* window;
      const char* entry;
    };
    constexpr Row rows[] = {
        {"FrmFrameMain", "mnuWelcome"},
        {"FrmFrameBlockPreferences", "MnuAdBlocking"},
        {"FrmFrameSettings", "mnuSettings"},
        {"FrmFrameHistory", "MnuClean"},
        {"FrmFrameAllowList", "MNuAllowlist"},
        {"FrmFrameNotification", "MnuNotification"},
        {"FrmFrameIESettings", "submnuIESettings"},
        {"FrmFrameIEPlugin", "submnuIEPlugins"},
        {"FrmFrameGraph", "submnugraph"},
        {"FrmFrameLog", "submnuDetailLog"},
        {"FrmAbout", "submnuAbout"},
    };
    const std::string window = name.substr(0, name.find('.'));
    for (const Row& row : rows) {
      if (window != row.window || program.IsVisible(window)) continue;
      program.ChooseMenu(row.entry);
      ASSERT_TRUE(program.WaitUntilVisible(window)) << window;
    }
  }
  static void LeaveAbout(const Running& program) {
    if (program.Find("FrmAbout") == nullptr) return;
    program.ClickAndLeave("FrmAbout.CmdOK");
    ASSERT_TRUE(WaitFor([&] { return program.IsEnabled("frmMain"); }));
  }
  static void ExpectNoBrowserBox(const Running& program, const std::string& click) {
    ClickControl(program, click);
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box) << click;
    EXPECT_EQ(box->title, "Vantrel");
    EXPECT_EQ(box->text, "Run-time error '53':\r\n\r\nFile not found");
    ASSERT_TRUE(program.Answer(*box));
  }
};

TEST_F(LinksTest, EachLinkStartsTheBrowserWithItsPage) {
  RecordedBrowser browser;
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  for (const test::LinkRow& row : test::LinkTable) {
    const std::string name = row.name;
    if (name.rfind("FrmAbout.", 0) != 0) LeaveAbout(program);
    ShowWindowOf(program, name);
    ClickControl(program, name);
    EXPECT_EQ(browser.WaitForLines(), std::vector{RecordedBrowser::Program() + " " +
                                                  test::ExpectedArgument(row, ProgramFolder())})
        << name;
  }
  EXPECT_EQ(program.BoxCount(), 0U);
}

// A page with a scheme, and one without.
TEST_F(LinksTest, TheBrowserIsToldToShowANormalWindow) {
  RecordedBrowser browser;
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  for (const char* link : {"FrmFrameMain.cmdtest", "FrmFrameMain.Label6"}) {
    ClickControl(program, link);
    const auto starts = browser.WaitForStarts();
    ASSERT_EQ(starts.size(), 1U) << link;
    EXPECT_EQ(starts[0].windowState, std::to_string(SW_SHOWNORMAL)) << link;
  }
}

TEST_F(LinksTest, TheHelpToolOpensThePageAfterItsNavigation) {
  RecordedBrowser browser;
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  program.PressTool(15);
  EXPECT_EQ(browser.WaitForLines(), std::vector{RecordedBrowser::Program() + " \"" +
                                                ProgramFolder() + "\\help\\welcome.htm\""});
  EXPECT_EQ(program.TextOf("frmMain.lblVCP1"), "Help - Qorvel Software Vantrel ");
}

TEST_F(LinksTest, LinksOfTheHelpFrameWorkWhereItShows) {
  RecordedBrowser browser;
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  program.ChooseMenu("mnuSettings");
  ASSERT_TRUE(program.WaitUntilVisible("FrmFrameSettings"));
  program.MouseClick("frmMain.LnkHelp");
  EXPECT_EQ(browser.WaitForLines().size(), 1U);
  ASSERT_TRUE(program.IsVisible("frmMain.Label31"));
  program.MouseClick("frmMain.Label31");
  EXPECT_EQ(browser.WaitForLines(),
            std::vector{RecordedBrowser::Program() + " \"www.qorvel.example/Vantrel/Faqs.htm\""});
}

TEST_F(LinksTest, TheTestButtonStartsBlockingBeforeItOpensThePage) {
  RecordedBrowser browser;
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  ASSERT_TRUE(program.Click("FrmFrameMain.cmdstop"));
  ASSERT_TRUE(program.Click("FrmFrameMain.cmdtest"));
  EXPECT_EQ(browser.WaitForLines().size(), 1U);
  EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
  EXPECT_EQ(Number(BlockSettings, "GDisabled"), 0U);
}

TEST_F(LinksTest, WithoutABrowserTheClickEndsInABoxAndTheProgramGoesOn) {
  const std::string missing = TemporaryFolder() + "no browser.exe";
  Running program;
  ASSERT_TRUE(program.WaitUntilIdle());
  for (const std::string& command :
       {std::string("no quotes.exe %1"), std::string(), std::string("\"unclosed"),
        '"' + missing + "\" %1", '"' + std::string(2000, 'x') + "\" %1"}) {
    const RecordedBrowser browser(command.empty() ? std::string(1, '\0') : command);
    ExpectNoBrowserBox(program, "FrmFrameMain.Label6");
    // A Start that the click began is done; only the page is missing.
    ASSERT_TRUE(program.Click("FrmFrameMain.cmdstop"));
    ExpectNoBrowserBox(program, "FrmFrameMain.cmdtest");
    EXPECT_TRUE(KeyExists(HKEY_LOCAL_MACHINE, EngineKey));
    ExpectNoBrowserBox(program, "frmMain.LnkHelp");
    EXPECT_TRUE(program.IsShown("frmMain.frahelp"));
    program.MouseClick("frmMain.LnkGraph");
    EXPECT_TRUE(program.WaitUntilVisible("FrmFrameGraph"));
    EXPECT_FALSE(program.IsShown("frmMain.frahelp"));
  }
}

TEST_F(LinksTest, AFolderWithBlanksAndLettersOfAllKindsReachesTheBrowserAsOneArgument) {
  for (const char* name :
       {"Vantrel of the test", "Vantrel \xE4\xF6\xDF \xE9", "a'b & c (d), 100%"}) {
    const ProgramCopy copy(name);
    RecordedBrowser browser;
    Running program("", copy.Executable());
    ASSERT_TRUE(program.WaitUntilIdle()) << name;
    program.MouseClick("FrmFrameMain.Label6");
    EXPECT_EQ(browser.WaitForLines(), std::vector{RecordedBrowser::Program() + " \"" +
                                                  copy.Folder() + "\\help\\welcome.htm\""});
    EXPECT_EQ(Read(HKEY_LOCAL_MACHINE, EngineKey, "Path"), Text(copy.Folder() + "\\Settings"));
  }
}

// The root's folder ends in a backslash, which stands beside the literal's own.
TEST_F(LinksTest, AProgramInADrivesRootOpensWhatLiesBesideIt) {
  const ProgramCopy copy(ProgramCopy::InRoot);
  const std::string root = copy.Folder() + "\\";
  RecordedBrowser browser;
  Running program("", copy.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  EXPECT_EQ(Read(HKEY_LOCAL_MACHINE, EngineKey, "Path"), Text(root + "\\Settings"));
  program.MouseClick("FrmFrameMain.Label6");
  EXPECT_EQ(browser.WaitForLines(),
            std::vector{RecordedBrowser::Program() + " \"" + root + "\\help\\welcome.htm\""});
  WriteFileBytes(copy.LogFile(), "a line\r\n");
  program.ChooseMenu("submnuLogFile");
  EXPECT_EQ(browser.WaitForLines(),
            std::vector{RecordedBrowser::Program() + " \"" + root + "/Settings/Log.txt\""});
}

TEST_F(LinksTest, TheLogFileOpensUnderItsOtherSpellingIfItIsThere) {
  const ProgramCopy copy("Vantrel log");
  RecordedBrowser browser;
  Running program("", copy.Executable());
  ASSERT_TRUE(program.WaitUntilIdle());
  // Without a log nothing happens; the page behind it is the first that is opened.
  program.ChooseMenu("submnuLogFile");
  program.MouseClick("FrmFrameLog.Label54");
  program.MouseClick("FrmFrameMain.Label6");
  EXPECT_EQ(browser.WaitForLines().size(), 1U);
  EXPECT_EQ(program.BoxCount(), 0U);
  WriteFileBytes(copy.LogFile(), "a line\r\n");
  const std::vector expected{RecordedBrowser::Program() + " \"" + copy.Folder() +
                             "/Settings/Log.txt\""};
  program.ChooseMenu("submnuLogFile");
  EXPECT_EQ(browser.WaitForLines(), expected);
  program.MouseClick("FrmFrameLog.Label54");
  EXPECT_EQ(browser.WaitForLines(), expected);
}

}  // namespace
}  // namespace vantrel::e2e
