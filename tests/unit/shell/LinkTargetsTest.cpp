#include <gmock/gmock.h>

#include "launch/OpenUrl.h"
#include "shell/LinkTargets.h"
#include "support/LinkTable.h"
#include "unit/shell/ShellTest.h"
#include "windows/FrmAbout.h"

namespace vantrel::shell {
namespace {

using platform::HKeyClassesRoot;
using test::Copy;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Browser = "\"C:\\Program Files\\Browser\\browser.exe\" ";
constexpr const char* Folder = "C:\\Program Files\\Vantrel";
constexpr const char* CommandKey = "http\\shell\\open\\command";

class Links : public test::ShellTest {
 protected:
  void SetUp() override { copy = StartCopy(); }

  // Clicks the control, or the menu entry, named as "Window.control".
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

TEST_F(Links, EachControlStartsTheBrowserWithItsPage) {
  static_cast<void>(*copy->Windows().FrmAbout);
  for (const test::LinkRow& row : test::LinkTable) {
    world.programs.ClearStarted();
    ClickNamed(row.name);
    EXPECT_THAT(Started(), ElementsAre(Browser + ExpectedArgument(row, Folder))) << row.name;
    EXPECT_EQ(world.programs.Started().at(0).showCommand, 1) << row.name;
  }
}

TEST_F(Links, EveryLinkOnAWindowOpensAPageOrHasItsOwnAct) {
  static_cast<void>(*copy->Windows().FrmAbout);
  std::vector<std::string> expected{"FrmFrameHistory.lblRefresh", "FrmFrameNotification.Label35",
                                    "FrmFrameLog.lblResetLog", "FrmFrameLog.Label54"};
  std::vector<std::string> links;
  for (const forms::Form* form : copy->toolkit.LoadedForms()) {
    for (const forms::Control* control : form->Controls()) {
      const auto* label = dynamic_cast<const forms::Label*>(control);
      if (label != nullptr && label->IsTabStop()) links.push_back(label->QualifiedName());
    }
  }
  for (const test::LinkRow& row : test::LinkTable) {
    const std::string name = row.name;
    const std::string control = name.substr(name.find('.') + 1);
    if (control.starts_with("L") || control.starts_with("lbl")) expected.push_back(name);
  }
  std::erase(expected, "frmMain.LnkHelp");
  EXPECT_THAT(links, testing::UnorderedElementsAreArray(expected));
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

TEST_F(Links, ATargetOfFiveCharactersIsLongEnough) {
  Open("a.ht");
  EXPECT_THAT(BoxTexts(*copy), ElementsAre("Unable to open URL. Install browser first!"));
  EXPECT_THAT(Started(), IsEmpty());
  Open("a.htm");
  Open("http:");
  EXPECT_EQ(copy->process.Boxes().size(), 1U);
  EXPECT_THAT(Started(),
              ElementsAre(Browser + std::string("\"a.htm\""), Browser + std::string("http:")));
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

TEST_F(Links, TheReasonOfAFailedStartIsTheNumberOfItsError) {
  const std::pair<std::int32_t, const char*> cases[] = {
      {5, "Run-time error '70':\r\n\r\nPermission denied"},
      {3, "Run-time error '76':\r\n\r\nPath not found"},
      {2, "Run-time error '53':\r\n\r\nFile not found"},
      {193, "Run-time error '53':\r\n\r\nFile not found"},
      {1223, "Run-time error '53':\r\n\r\nFile not found"},
  };
  for (const auto& [reason, text] : cases) {
    copy->process.ClearBoxes();
    copy->process.Faults().FailEvery("CreateProcessA", reason);
    for (const char* target : {"http://a.example/", "C:\\page.htm"}) Open(target);
    EXPECT_THAT(BoxTexts(*copy), ElementsAre(text, text)) << reason;
  }
  EXPECT_THAT(Started(), IsEmpty());
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
