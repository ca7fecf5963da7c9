// The readers of the allow list's file.
#include <gmock/gmock.h>

#include "allowlist/Attach.h"
#include "allowlist/SiteList.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameAllowList.h"
#include "windows/FrmFrameMain.h"

namespace vantrel::allowlist {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Settings = "C:\\Program Files\\Vantrel\\Settings";
constexpr const char* Path = "C:\\Program Files\\Vantrel\\Settings\\AllowList.txt";

std::string Line(const std::string& name, const std::string& flags = "10101") {
  return std::string("id =1, Popup= ") + flags[0] + " ,DHTML = " + flags[1] +
         ", WebDialog =" + flags[2] + " ,Banner = " + flags[3] + ", Flash = " + flags[4] + " , " +
         name + "\r\n";
}

class SiteList : public test::ComponentFixture {
 protected:
  SiteList() {
    AttachAllowList(program);
    program.windows.FrmFrameMain->Show();
  }

  void Put(const std::string& content) { world.files.Put(Path, content); }
  // The rows after a load, e.g. "a: A B   A" of the labels' first letters.
  std::vector<std::string> Load(const std::string& content) {
    Put(content);
    LoadAllowList(program, LoadFailure::IsSilent);
    return Rows();
  }
  std::vector<std::string> Rows() {
    std::vector<std::string> rows;
    for (int row = 1; row <= List().Count(); ++row) {
      std::string shown = List().Item(row).Text() + ":";
      for (int column = 1; column <= List().Item(row).SubItemCount(); ++column) {
        const std::string& label = List().Item(row).Sub(column).Text;
        shown += label.empty() ? "-" : label.substr(0, 1);
      }
      rows.push_back(shown);
    }
    return rows;
  }
  forms::ListView& List() { return program.windows.FrmFrameAllowList->lstGroup; }
  bool WelcomeShows() { return program.windows.FrmFrameMain->Visible(); }

  // What a lookup finds, e.g. "a 10100", or "" and whether anything was found.
  std::string Find(const std::string& content, const std::string& name) {
    Put(content);
    const bool found = FindSiteRecord(program, name);
    EXPECT_EQ(found, program.SiteFound);
    return found ? program.SiteName + " " + Flags() : "none " + Flags();
  }
  std::string Flags() const {
    std::string flags;
    for (const bool flag : {program.SitePopup, program.SiteDHTML, program.SiteWebDialog,
                            program.SiteBanner, program.SiteFlash}) {
      flags += flag ? '1' : '0';
    }
    return flags;
  }
};

TEST_F(SiteList, ARowIsKeyedAndLabelled) {
  Load(Line(" mysite ") + Line("other", "01000"));
  const forms::ListItem& row = List().Item(1);
  EXPECT_EQ(row.Key(), "M0");
  EXPECT_EQ(row.Text(), "mysite");
  EXPECT_EQ(row.Icon(), "a");
  std::vector<std::string> subItems;
  for (int column = 1; column <= row.SubItemCount(); ++column) {
    subItems.push_back(row.Sub(column).Key + "=" + row.Sub(column).Text);
  }
  EXPECT_THAT(subItems,
              ElementsAre("P1=Allowed", "D1=Blocked", "W1=Allowed", "B1=Blocked", "F1=Allowed"));
  EXPECT_EQ(List().Item(2).Key(), "M1");
  EXPECT_EQ(List().SelectedIndex(), 1);
}

TEST_F(SiteList, AMissingFileIsMadeAndTheListIsEmpty) {
  List().Add("M0", "old", "a");
  LoadAllowList(program, LoadFailure::ShowsBox);
  EXPECT_EQ(world.files.Read(Path), "");
  EXPECT_THAT(Rows(), IsEmpty());
  EXPECT_THAT(world.files.List(Settings), ElementsAre("AllowList.txt"));
}

TEST_F(SiteList, OnlyAReadingThatEndsAsItShouldHidesTheWelcomePanel) {
  Load("");
  EXPECT_TRUE(WelcomeShows());
  Load("short\r\n");
  EXPECT_TRUE(WelcomeShows());
  Load("\r\n");
  EXPECT_FALSE(WelcomeShows());
  program.windows.FrmFrameMain->Show();
  Load(Line("a"));
  EXPECT_FALSE(WelcomeShows());
}

TEST_F(SiteList, ABlankLineEndsTheList) {
  EXPECT_THAT(Load(Line("a") + "\r\n" + Line("b")), ElementsAre("a:ABABA"));
  EXPECT_THAT(Load(Line("a") + "   \r\n" + Line("b")), ElementsAre("a:ABABA"));
  EXPECT_THAT(Load("\r\n" + Line("b")), IsEmpty());
  // A tab is a text.
  EXPECT_THAT(Load(Line("a") + "\t\r\n" + Line("b")), ElementsAre("a:ABABA"));
}

TEST_F(SiteList, ALineOfSixFieldsEndsTheListWithoutABoxOnThePanel) {
  EXPECT_THAT(Load(Line("a") + "id =1,0,0,0,0,0\r\n" + Line("b")), ElementsAre("a:ABABA"));
  EXPECT_THAT(BoxTexts(), IsEmpty());
  EXPECT_TRUE(WelcomeShows());
}

TEST_F(SiteList, ALineOfSixFieldsShowsItsErrorWhenThePanelIsOpened) {
  Put(Line("a") + "id =1,0,0,0,0,0\r\n");
  LoadAllowList(program, LoadFailure::ShowsBox);
  EXPECT_THAT(Rows(), ElementsAre("a:ABABA"));
  ASSERT_THAT(BoxTexts(), ElementsAre("Subscript out of range"));
  EXPECT_EQ(process.Boxes()[0].style, platform::StylePlain);
  EXPECT_EQ(process.Boxes()[0].title, "Vantrel");
}

TEST_F(SiteList, TheNameIsTheSeventhFieldOnly) {
  EXPECT_THAT(Load(Line("a,b")), ElementsAre("a:ABABA"));
  EXPECT_THAT(Load("1,1,0,0,0,1,\r\n"), ElementsAre(":ABBBA"));
}

TEST_F(SiteList, AFlagOtherThan0And1RepeatsTheRowBefore) {
  EXPECT_THAT(Load(Line("a", "2x1=0") + Line("b", "20112") + Line("c", "33333")),
              ElementsAre("a:--A-B", "b:-BAAB", "c:-BAAB"));
  // Not over the end of a load.
  EXPECT_THAT(Load(Line("d", "22222")), ElementsAre("d:-----"));
}

TEST_F(SiteList, AFlagIsWhatStandsBehindTheLastEquals) {
  EXPECT_THAT(Load("x, 1 ,x=0, =x= 1 ,0=1,a=1=, n\r\n"), ElementsAre("n:ABAA-"));
  // Whatever the keys say, the place counts.
  EXPECT_THAT(Load("id =1, Flash = 1, Popup= 0, Banner = 1, id=0, x=0, n\r\n"),
              ElementsAre("n:ABABB"));
}

TEST_F(SiteList, LineEndsMayLackTheirFirstHalfAndTheLastMayLackBoth) {
  EXPECT_THAT(Load("1,1,1,1,1,1,a\n1,0,0,0,0,0,b"), ElementsAre("a:AAAAA", "b:BBBBB"));
}

TEST_F(SiteList, BytesOfTheCodePagePassAsTheyAre) {
  EXPECT_THAT(Load(Line("\x80\xE9\xFF")), ElementsAre("\x80\xE9\xFF:ABABA"));
}

TEST_F(SiteList, ErrorsOfTheFileAreSilentOnThePanelAndShownWhenItIsOpened) {
  const std::pair<std::int32_t, const char*> cases[] = {{5, "Permission denied"},
                                                        {32, "Permission denied"},
                                                        {3, "Path not found"},
                                                        {8, "Out of memory"}};
  for (const auto& [code, text] : cases) {
    process.ClearBoxes();
    process.Faults().FailCall("ReadTextFile", 1, code);
    EXPECT_THAT(Load(Line("a")), IsEmpty());
    EXPECT_THAT(BoxTexts(), IsEmpty());
    process.Faults().FailCall("ReadTextFile", 1, code);
    LoadAllowList(program, LoadFailure::ShowsBox);
    EXPECT_THAT(BoxTexts(), ElementsAre(text));
    EXPECT_TRUE(WelcomeShows());
  }
}

TEST_F(SiteList, WithoutItsFolderTheListStaysAndTheErrorIsShown) {
  Load(Line("a"));
  world.files.Remove(Settings);
  LoadAllowList(program, LoadFailure::IsSilent);
  EXPECT_THAT(BoxTexts(), IsEmpty());
  LoadAllowList(program, LoadFailure::ShowsBox);
  EXPECT_THAT(BoxTexts(), ElementsAre("Path not found"));
  EXPECT_THAT(Rows(), ElementsAre("a:ABABA"));
  EXPECT_FALSE(world.files.IsFolder(Settings));
}

TEST_F(SiteList, AFolderOfThatNameIsAnErrorLikeAnother) {
  world.files.MakeFolder(Path);
  LoadAllowList(program, LoadFailure::ShowsBox);
  EXPECT_THAT(BoxTexts(), ElementsAre("Permission denied"));
}

TEST_F(SiteList, ALookupFindsTheFirstRecordByItsTrimmedName) {
  const std::string content = Line("a", "10000") + Line(" My Site ", "01011") + Line("my site");
  EXPECT_EQ(Find(content, "  MY SITE"), "My Site 01011");
  EXPECT_EQ(Find(content, "a"), "a 10000");
  EXPECT_EQ(Find(content, "b"), "none 00000");
  EXPECT_EQ(Find(content, ""), "none 00000");
  EXPECT_EQ(Find("", "a"), "none 00000");
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(SiteList, ALookupWithoutAFileMakesIt) {
  EXPECT_FALSE(FindSiteRecord(program, ""));
  EXPECT_FALSE(world.files.IsFile(Path));
  EXPECT_FALSE(FindSiteRecord(program, "a"));
  EXPECT_EQ(world.files.Read(Path), "");
}

TEST_F(SiteList, ALookupKeepsTheNameThatItFoundLast) {
  Find(Line("a"), "a");
  EXPECT_EQ(Find(Line("a"), "b"), "none 00000");
  EXPECT_EQ(program.SiteName, "a");
}

TEST_F(SiteList, ALookupLeavesAFlagThatIsNeither0Nor1) {
  EXPECT_EQ(Find(Line("a", "21x11"), "a"), "a 01011");
}

TEST_F(SiteList, ALookupEndsAtABlankLineAndAtAShortOne) {
  EXPECT_EQ(Find(Line("a") + "  \r\n" + Line("b"), "b"), "none 00000");
  EXPECT_EQ(Find(Line("a") + "1,1,1,1,1,b\r\n" + Line("b"), "b"), "none 00000");
  EXPECT_EQ(Find(Line("a,b"), "b"), "none 00000");
  EXPECT_EQ(Find(Line("a,b"), "a"), "a 10101");
}

TEST_F(SiteList, ALookupOfAFileThatRefusesFindsNothing) {
  Put(Line("a"));
  world.files.SetLocked(Path, true);
  EXPECT_FALSE(FindSiteRecord(program, "a"));
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

}  // namespace
}  // namespace vantrel::allowlist
