// The lower frame of the Clean panel of the shipped program: the cookies of three browsers, as the
// browsers and other clients leave them.
#include <gmock/gmock.h>
#include <windows.h>

#include "support/CleanPanelTest.h"
#include "support/Folders.h"
#include "support/KeptValue.h"

namespace vantrel::e2e {
namespace {

using Rows = std::vector<std::string>;

constexpr const char* NetscapeKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Netscp.exe";
constexpr const char* OperaKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Opera.exe";

class CookiesTest : public CleanPanelTest {
 protected:
  void SetUp() override {
    CleanPanelTest::SetUp();
    for (const char* key : {NetscapeKey, OperaKey}) DeleteTree(HKEY_LOCAL_MACHINE, key);
    PutFile(folders_.Cookies + "\\user@one[1].txt", std::string(300, 'c'));
    PutFile(folders_.Cookies + "\\user@two[1].txt", std::string(900, '2'));
  }
  void TearDown() override {
    CleanPanelTest::TearDown();
    for (const char* key : {NetscapeKey, OperaKey}) DeleteTree(HKEY_LOCAL_MACHINE, key);
  }

  void InstallNetscape() const {
    Write(HKEY_LOCAL_MACHINE, NetscapeKey, "Path", Text(folders_.Outside + '\0'));
  }
  void InstallOpera() const {
    Write(HKEY_LOCAL_MACHINE, OperaKey, "Path", Text(folders_.Data + "\\Opera" + '\0'));
  }
  std::string Jar() const {
    return folders_.Data + "\\Mozilla\\Profiles\\default\\k3x1.slt\\cookies.txt";
  }
  // What the cookie jar of Python's http.cookiejar saved.
  static std::string SavedJar() {
    const std::string jar = ReadFileBytes(VANTREL_E2E_DATA "\\cookies.txt");
    EXPECT_NE(jar, "");
    return jar;
  }
  static Rows Urls(const Running& program) { return program.RowsOf(Control("urls"), 1); }
  static std::string Target(const Running& program) { return Shown(program, "txtcookies"); }
  static void ExpectNote(const Running& program, const std::string& note) {
    EXPECT_TRUE(program.WaitForText(Control("lblcookies"), note)) << Shown(program, "lblcookies");
  }
  static bool IsChosen(const Running& program, const char* option) {
    return program.CheckOf(Control(option)) == BST_CHECKED;
  }
  static void Choose(const Running& program, const char* option) {
    ASSERT_TRUE(program.Click(Control(option)));
    EXPECT_EQ(program.BoxCount(), 0U);
  }
  static void Delete(const Running& program) {
    ASSERT_TRUE(program.Click(Control("cmddeleteCookies")));
    EXPECT_EQ(program.BoxCount(), 0U);
    EXPECT_FALSE(program.IsShown(Control("pbarCache")));
  }
  void ExpectInternetExplorersView(const Running& program) const {
    EXPECT_EQ(Target(program), folders_.Cookies);
    ExpectNote(program,
               std::to_string((BytesBelow(folders_.Cookies) + 512) / 1024) + " Kbs of files");
    Rows rows = Urls(program);
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(rows.front(), "..");
    rows.erase(rows.begin());
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(rows, NamesIn(folders_.Cookies));
  }
};

TEST_F(CookiesTest, InternetExplorersFolderIsListedAndEmptied) {
  const std::string watched = folders_.Watch(folders_.Cookies + "\\user@one[1].txt");
  PutFile(folders_.Cookies + "\\Low\\user@low[1].txt", std::string(2000, 'l'));
  const Running program;
  Open(program);
  EXPECT_EQ(Target(program), "C:\\Documents and Settings\\Administrator\\Cookies");
  EXPECT_TRUE(IsChosen(program, "optIE"));
  Refresh(program);
  ExpectInternetExplorersView(program);
  ExpectNote(program, "3 Kbs of files");
  Delete(program);
  ExpectInternetExplorersView(program);
  EXPECT_EQ(Urls(program), Rows{".."});
  ExpectNote(program, "0 Kbs of files");
  EXPECT_EQ(ReadFileBytes(watched).size(), 301U);
  EXPECT_EQ(ReadFileBytes(watched).find('c', 1), std::string::npos);
}

TEST_F(CookiesTest, BeforeTheFirstScanNothingIsDeletedButTheFolderShows) {
  const Running program;
  Open(program);
  Delete(program);
  ExpectInternetExplorersView(program);
  EXPECT_EQ(NamesIn(folders_.Cookies).size(), 2U);
}

TEST_F(CookiesTest, ARealJarSeveralFoldersDeepIsListedAndDeleted) {
  InstallNetscape();
  PutFile(Jar(), SavedJar());
  PutFile(folders_.Data + "\\Mozilla\\cookies.txt", "not searched");
  const std::string watched = folders_.Watch(Jar());
  const Running program;
  Open(program);
  Choose(program, "optNetscape");
  EXPECT_EQ(Urls(program),
            (Rows{".dailynews.example", ".shop.example", ".ads.example", ".ads.example"}));
  EXPECT_EQ(Target(program), Jar());
  ExpectNote(program, "0 Kbs");
  Delete(program);
  EXPECT_FALSE(Exists(Jar()));
  EXPECT_EQ(ReadFileBytes(watched).size(), SavedJar().size() + 1);
  EXPECT_EQ(ReadFileBytes(watched).find("example"), std::string::npos);
  EXPECT_TRUE(IsChosen(program, "optNetscape"));
  ExpectInternetExplorersView(program);
  // The folder that now stands in the box is no file.
  Delete(program);
  EXPECT_EQ(NamesIn(folders_.Cookies).size(), 2U);
  EXPECT_EQ(ReadFileBytes(folders_.Data + "\\Mozilla\\cookies.txt"), "not searched");
}

TEST_F(CookiesTest, OfSeveralProfilesTheFirstCounts) {
  InstallNetscape();
  const std::string other = folders_.Data + "\\Mozilla\\Profiles\\zz\\cookies.txt";
  PutFile(Jar(), SavedJar());
  PutFile(other, ".second.example\tTRUE\t/\tFALSE\t0\ta\tb\n");
  const Running program;
  Open(program);
  Choose(program, "optNetscape");
  // The order is that of the system's listing.
  EXPECT_THAT((Rows{Jar(), other}), testing::Contains(Target(program)));
  const std::string target = Target(program);
  Delete(program);
  EXPECT_FALSE(Exists(target));
  EXPECT_TRUE(Exists(target == other ? Jar() : other));
}

TEST_F(CookiesTest, WithoutNetscapeThePanelFallsBackToInternetExplorer) {
  const Running program;
  Open(program);
  Choose(program, "optNetscape");
  EXPECT_TRUE(IsChosen(program, "optIE"));
  ExpectInternetExplorersView(program);
  Choose(program, "optOpera");
  EXPECT_TRUE(IsChosen(program, "optIE"));
  ExpectInternetExplorersView(program);
}

TEST_F(CookiesTest, WithoutACookiesFolderTheTextThatTheBrowserIsMissingStays) {
  RemoveFolder(folders_.Cookies);
  const Running program;
  Open(program);
  Choose(program, "optNetscape");
  ExpectNote(program, "Netscape Browser not found ");
  EXPECT_EQ(Target(program), "");
  Choose(program, "optOpera");
  ExpectNote(program, "Opera Browser not found ");
  EXPECT_TRUE(IsChosen(program, "optIE"));
}

TEST_F(CookiesTest, NetscapeWithoutAJarKeepsWhatShowed) {
  InstallNetscape();
  const Running program;
  Open(program);
  Refresh(program);
  const Rows before = Urls(program);
  Choose(program, "optNetscape");
  EXPECT_EQ(Urls(program), before);
  EXPECT_EQ(Target(program), "");
  ExpectNote(program, "1 Kbs of files");
  EXPECT_TRUE(IsChosen(program, "optNetscape"));
}

TEST_F(CookiesTest, OperasDeepestFileIsListedAndDeleted) {
  InstallOpera();
  const std::string deep = folders_.Data + "\\Opera\\profile\\sub\\cookies4.dat";
  PutFile(folders_.Data + "\\Opera\\cookies.old", "old");
  PutFile(deep, std::string(3000, 'o'));
  const Running program;
  Open(program);
  Choose(program, "optOpera");
  EXPECT_EQ(Urls(program), Rows{deep});
  EXPECT_EQ(Target(program), deep);
  ExpectNote(program, "3 Kbs");
  Delete(program);
  EXPECT_FALSE(Exists(deep));
  EXPECT_EQ(ReadFileBytes(folders_.Data + "\\Opera\\cookies.old"), "old");
  EXPECT_TRUE(IsChosen(program, "optOpera"));
  ExpectInternetExplorersView(program);
}

TEST_F(CookiesTest, OperaWithoutAFileSaysSo) {
  InstallOpera();
  PutFile(folders_.Data + "\\Opera\\profile\\history");
  const Running program;
  Open(program);
  Choose(program, "optOpera");
  ExpectNote(program, "No cookies file found");
  EXPECT_EQ(Urls(program), Rows{});
  EXPECT_EQ(Target(program), "");
}

TEST_F(CookiesTest, WhatStandsInTheBoxIsWhatIsDeleted) {
  PutFile(folders_.Outside + "\\typed\\a");
  PutFile(folders_.Outside + "\\beside");
  const Running program;
  Open(program);
  Refresh(program);
  program.SetText(Control("txtcookies"), folders_.Outside + "\\typed");
  Delete(program);
  EXPECT_EQ(NamesIn(folders_.Outside + "\\typed"), Rows{});
  EXPECT_TRUE(Exists(folders_.Outside + "\\beside"));
  EXPECT_EQ(NamesIn(folders_.Cookies).size(), 2U);
  ExpectInternetExplorersView(program);
}

TEST_F(CookiesTest, HostileTextsInTheBoxDeleteNothing) {
  const std::string& top = folders_.Outside;
  const std::string typed = top + "\\typed";
  PutFile(typed + "\\a");
  PutFile(top + "\\file");
  const Running program;
  Open(program);
  // The roots of drives, and texts that lead there, are tried in memory alone: what a mistake would
  // delete is the machine's.
  for (const std::string& text :
       {std::string("NUL"), std::string("\\\\server\\share"), top + "\\*", typed + ".", typed + " ",
        typed + "\\..", typed + "\\NUL", top + "\\file", top + "\\none", typed.substr(3),
        "\\\\.\\" + typed, "\\\\?\\" + typed, typed + "\\" + std::string(300, 'x')}) {
    program.SetText(Control("txtcookies"), text);
    Delete(program);
    EXPECT_EQ(NamesIn(top), (Rows{"file", "typed"})) << text;
    EXPECT_EQ(NamesIn(typed), Rows{"a"}) << text;
    EXPECT_EQ(ReadFileBytes(typed + "\\a"), "x") << text;
  }
  EXPECT_EQ(NamesIn(folders_.Cookies).size(), 2U);
  EXPECT_TRUE(program.Answers());
}

}  // namespace
}  // namespace vantrel::e2e
