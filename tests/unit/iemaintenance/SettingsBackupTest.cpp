// Backup and restore of the browser's settings: command lines, files, boxes and their orders, and
// the whole round through the registry editor.
#include <gmock/gmock.h>

#include <functional>
#include <tuple>

#include "iemaintenance/Attach.h"
#include "iemaintenance/SettingsBackup.h"
#include "platform/memory/RegFile.h"
#include "support/BackupTexts.h"
#include "support/ComponentFixture.h"
#include "windows/frmMain.h"

namespace vantrel::iemaintenance {
namespace {

using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;
using test::CannotMake;
using test::Created;
using test::None;
using test::NotFound;
using test::PleaseClose;
using test::Restored;
using test::RestoreError;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

const std::string Default = "C:\\Program Files\\Vantrel\\Settings\\IESettings";
const std::string DateFile = Default + "\\IE Backup date.txt";
const std::string UserFile = "CURRENT_IE_SETTINGS_RUN.reg";
const std::string MachineFile = "LOCAL_IE_SETTINGS_RUN.reg";
const std::string UserTail =
    UserFile + "\" \"HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer";
const std::string MachineTail =
    MachineFile + "\" \"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Internet Explorer";
const std::string UserKey = "Software\\Microsoft\\Internet Explorer";
const std::string MachineKey = "SOFTWARE\\Microsoft\\Internet Explorer";

using Box = std::tuple<std::string, std::string, std::uint32_t>;

class Backup : public test::ComponentFixture {
 protected:
  Backup() {
    AttachIEMaintenance(program);
    process.AnswerBox = [](const auto&) { return platform::AnswerOk; };
    world.clock.SetLocalTime({2004, 3, 15, 9, 5, 0});
  }

  windows::FrmFrameIESettings& Panel() { return *program.windows.FrmFrameIESettings; }
  // The panel with another folder.
  windows::FrmFrameIESettings& PanelAt(const std::string& folder) {
    Panel().txtIESettings.SetText(folder);
    return Panel();
  }
  // Files that the editor reads and that change nothing.
  void PutBackup(const std::string& folder) {
    world.files.Put(folder + '\\' + UserFile, "REGEDIT4\r\n");
    world.files.Put(folder + '\\' + MachineFile, "REGEDIT4\r\n");
  }
  // The panel as the user has it before him.
  windows::FrmFrameIESettings& ShownPanel() {
    program.windows.frmMain->Show();
    Panel().Show();
    return Panel();
  }
  void PressBackup() { EXPECT_TRUE(user.Click(ShownPanel().cmdBackupIESettings)); }
  void PressRestore() { EXPECT_TRUE(user.Click(ShownPanel().cmdRestoreIESettings)); }

  // The command lines of the started editors, which are all Windows' own and minimised.
  std::vector<std::string> Commands() const {
    std::vector<std::string> lines;
    for (const auto& started : world.programs.Started()) {
      EXPECT_EQ(started.application, "C:\\WINDOWS\\regedit.exe");
      EXPECT_EQ(started.showCommand, 2);
      lines.push_back(started.commandLine);
    }
    return lines;
  }
  std::vector<Box> Boxes() const {
    std::vector<Box> boxes;
    for (const auto& box : process.Boxes()) boxes.emplace_back(box.text, box.title, box.style);
    return boxes;
  }
  // The calls that the act makes, without their arguments.
  template <class Act>
  std::vector<std::string> CallsOf(Act act) {
    ShownPanel();
    process.Trace().Clear();
    act();
    return process.Trace().Names();
  }

  std::optional<std::string> UserValue() {
    return world.registry.GetString(HKeyCurrentUser, UserKey + "\\Main", "Start Page");
  }
  std::optional<std::string> MachineValue() {
    return world.registry.GetString(HKeyLocalMachine, MachineKey, "Version");
  }
  // What both branches hold, as text.
  std::string Branches() {
    return ExportReg(world.registry, HKeyCurrentUser, UserKey) +
           ExportReg(world.registry, HKeyLocalMachine, MachineKey);
  }
  void FillBranches() {
    world.registry.SetString(HKeyCurrentUser, UserKey + "\\Main", "Start Page", "about:\"\\\xE4");
    world.registry.Set(HKeyCurrentUser, UserKey + "\\Main", "Bytes", platform::RegBinary,
                       std::string("\0\xFF\x80", 3));
    world.registry.SetDword(HKeyLocalMachine, MachineKey + "\\Toolbar", "", 7);
  }
  void ChangeBranches() {
    world.registry.SetString(HKeyCurrentUser, UserKey + "\\Main", "Start Page", "http://bad");
    world.registry.RemoveKey(HKeyLocalMachine, MachineKey + "\\Toolbar");
    world.registry.SetString(HKeyLocalMachine, MachineKey, "Version", "9");
  }
};

TEST_F(Backup, ThePanelMakesTheDefaultTreeAndShowsThatThereIsNoBackup) {
  EXPECT_EQ(Panel().txtIESettings.Text(), Default);
  EXPECT_TRUE(world.files.IsFolder(Default + "\\CurrentBackup"));
  EXPECT_EQ(Panel().txtBackup.Text(), None);
  EXPECT_EQ(Panel().chktakebackup.Value(), forms::Unchecked);
  EXPECT_EQ(Panel().Host(), &*program.windows.frmMain);
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Backup, TheLoadAsksForTheFoldersThenForTheDateFile) {
  world.files.Put(DateFile, "x");
  program.windows.frmMain->Show();
  process.Trace().Clear();
  Panel();
  const auto& lines = process.Trace().Lines();
  EXPECT_THAT(
      lines, ElementsAre(StartsWith("SetParent "), StartsWith("ProgramFolder "),
                         "MakeSureDirectoryPathExists \"" + Default + "\\CurrentBackup\\\" -> true",
                         "FileExists \"" + DateFile + "\" -> true",
                         StartsWith("ReadTextFile \"" + DateFile + '"')));
}

TEST_F(Backup, ALoadThatCannotMakeTheFoldersSaysSoAndGoesOn) {
  process.Faults().FailEvery("MakeSureDirectoryPathExists", 1);
  EXPECT_EQ(Panel().txtIESettings.Text(), Default);
  EXPECT_EQ(Panel().txtBackup.Text(), None);
  EXPECT_THAT(Boxes(), ElementsAre(Box(CannotMake, "Vantrel", 0)));
}

TEST_F(Backup, TheDateFileIsShownLineByLine) {
  world.files.Put(DateFile, "Last backup date was:1/2/2004\r\nAt time: 3\n");
  EXPECT_EQ(Panel().txtBackup.Text(), "Last backup date was:1/2/2004\r\nAt time: 3");
}

TEST_F(Backup, LinesAreJoinedOnceTheViewHoldsText) {
  const std::pair<std::string, std::string> rows[] = {
      {"", ""},
      {"\r\n\n\r\n", ""},
      {"\n\na\n\nb", "a\r\n\r\nb"},
      {"a\r", "a\r"},
      {"a\rb\n\rc\n", "a\rb\r\n\rc"},
      {"a\r\r\nb", "a\r\r\nb"},
      {" \n", " "},
  };
  for (const auto& [content, shown] : rows) {
    world.files.Put(DateFile, content);
    ShowBackupDate(program, DateFile);
    EXPECT_EQ(Panel().txtBackup.Text(), shown);
  }
}

TEST_F(Backup, ANulEndsWhatIsShownOfALine) {
  using namespace std::string_literals;
  world.files.Put(DateFile, "a\0b\r\n\0c\nd"s);
  EXPECT_EQ(Panel().txtBackup.Text(), "a\r\n\r\nd");
  world.files.Put(DateFile, "\0a\nb"s);
  ShowBackupDate(program, DateFile);
  EXPECT_EQ(Panel().txtBackup.Text(), "b");
}

TEST_F(Backup, ADateFileOfTenMegabytesIsShownWhole) {
  std::string content;
  std::string shown;
  while (content.size() < 10'000'000) {
    content += "a line of its own\n";
    shown += "a line of its own\r\n";
  }
  world.files.Put(DateFile, content);
  EXPECT_EQ(Panel().txtBackup.Text(), shown.substr(0, shown.size() - 2));
}

TEST_F(Backup, ADateFileThatCannotBeReadLeavesTheViewAsItIs) {
  world.files.Put(DateFile, "first");
  EXPECT_EQ(Panel().txtBackup.Text(), "first");
  process.Faults().FailEvery("ReadTextFile", platform::ErrorSharingViolation);
  AsEvent([&] { ShowBackupDate(program, DateFile); });
  EXPECT_EQ(Panel().txtBackup.Text(), "first");
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(Backup, ABackupExportsBothBranchesAndWritesTheDate) {
  PressBackup();
  EXPECT_THAT(Commands(), ElementsAre("regedit /e \"" + Default + '\\' + UserTail,
                                      "regedit /e \"" + Default + '\\' + MachineTail));
  EXPECT_EQ(world.files.Read(DateFile).value_or(""),
            "Last backup date was: 3/15/2004\r\nAt time: 9:05 AM\r\n");
  EXPECT_EQ(Panel().txtBackup.Text(), "Last backup date was: 3/15/2004\r\nAt time: 9:05 AM");
  EXPECT_THAT(Boxes(), ElementsAre(Box(Created, "Vantrel", 64)));
}

TEST_F(Backup, ABackupKeepsItsOrder) {
  world.files.Put("C:\\f", "x");
  ASSERT_EQ(program.fileNumbers.Open(1, "C:\\f", platform::FileAccess::Read), 0);
  EXPECT_THAT(
      CallsOf([&] { PressBackup(); }),
      ElementsAre("ShortDate", "ShortTime", "MakeSureDirectoryPathExists",  //
                  "WindowsFolder", "FileExists", "CreateProcessA",          //
                  "WindowsFolder", "FileExists", "CreateProcessA",          //
                  "CloseFile", "WriteTextFile", "MessageBoxA", "FileExists", "ReadTextFile"));
  EXPECT_EQ(process.OpenFiles(), 0U);
  EXPECT_EQ(program.fileNumbers.FreeFile(), 1);
}

TEST_F(Backup, TheDateIsThatOfTheClickHoweverLongTheExportsTake) {
  Panel();
  world.programs.Register("C:\\WINDOWS\\regedit.exe", [this](const auto&) {
    world.clock.SetLocalTime({2005, 12, 31, 23, 59, 0});
  });
  PressBackup();
  EXPECT_EQ(Panel().txtBackup.Text(), "Last backup date was: 3/15/2004\r\nAt time: 9:05 AM");
}

TEST_F(Backup, ABackupJoinsTheDateFileWithAForwardSlash) {
  const std::string path = '"' + Default + "/IE Backup date.txt\"";
  CallsOf([&] { PressBackup(); });
  EXPECT_THAT(process.Trace().LinesOf("WriteTextFile"),
              ElementsAre(StartsWith("WriteTextFile " + path)));
  EXPECT_THAT(process.Trace().LinesOf("ReadTextFile"),
              ElementsAre(StartsWith("ReadTextFile " + path)));
}

TEST_F(Backup, TheDateFileIsMadeAnew) {
  world.files.Put(DateFile, std::string(1000, 'x'));
  PressBackup();
  EXPECT_EQ(world.files.Read(DateFile).value_or(""),
            "Last backup date was: 3/15/2004\r\nAt time: 9:05 AM\r\n");
}

TEST_F(Backup, APathWithBlanksIsQuotedAndTheFilesLieThere) {
  world.files.MakeFolder("D:\\my own backup");
  PanelAt("D:\\my own backup");
  PressBackup();
  EXPECT_TRUE(world.files.IsFile("D:\\my own backup\\" + UserFile));
  EXPECT_TRUE(world.files.IsFile("D:\\my own backup\\" + MachineFile));
  EXPECT_TRUE(world.files.IsFile("D:\\my own backup\\IE Backup date.txt"));
}

TEST_F(Backup, OfAFolderThatIsNotThereOnlyTheParentsAreMade) {
  world.files.MakeFolder("D:\\");
  PanelAt("D:\\a\\b");
  PressBackup();
  EXPECT_TRUE(world.files.IsFolder("D:\\a"));
  EXPECT_FALSE(world.files.Exists("D:\\a\\b"));
  EXPECT_EQ(Commands().size(), 2U);
  EXPECT_THAT(BoxTexts(), ElementsAre(Created));
  EXPECT_EQ(Panel().txtBackup.Text(), None);
}

TEST_F(Backup, WhereNoFolderCanBeMadeNothingIsExportedAndTheSuccessIsShown) {
  PanelAt("Q:\\a\\b");
  PressBackup();
  EXPECT_THAT(Commands(), IsEmpty());
  EXPECT_THAT(Boxes(), ElementsAre(Box(CannotMake, "Vantrel", 0), Box(Created, "Vantrel", 64)));
  EXPECT_EQ(Panel().txtBackup.Text(), None);
}

TEST_F(Backup, WhereThePathCannotBeMadeTheDateIsWrittenAllTheSame) {
  Panel();
  process.Faults().FailEvery("MakeSureDirectoryPathExists", 1);
  PressBackup();
  EXPECT_THAT(Commands(), IsEmpty());
  EXPECT_THAT(Panel().txtBackup.Text(), StartsWith("Last backup date was:"));
}

TEST_F(Backup, ADateFileThatCannotBeWrittenLeavesTheDateThatItHad) {
  world.files.Put(DateFile, "the day before\r\n");
  world.files.SetReadOnly(DateFile, true);
  PressBackup();
  EXPECT_EQ(Panel().txtBackup.Text(), "the day before");
  EXPECT_THAT(BoxTexts(), ElementsAre(Created));
}

TEST_F(Backup, ThePathIsReadAnewBehindTheBox) {
  world.files.Put("D:\\other\\IE Backup date.txt", "other");
  process.WhileBoxIsUp = [this](const auto&) { PanelAt("D:\\other"); };
  PressBackup();
  EXPECT_EQ(Panel().txtBackup.Text(), "other");
}

TEST_F(Backup, AnEditorThatCannotBeStartedIsNoErrorOfABackup) {
  process.Faults().FailEvery("CreateProcessA", platform::ErrorFileNotFound);
  EXPECT_THAT(CallsOf([&] { PressBackup(); }), testing::Contains("CreateProcessA").Times(2));
  EXPECT_THAT(BoxTexts(), ElementsAre(Created));
  EXPECT_THAT(Panel().txtBackup.Text(), StartsWith("Last backup date was:"));
}

TEST_F(Backup, AnEditorThatAsksForMoreRightsIsStartedWithThem) {
  world.programs.RequireElevation("C:\\WINDOWS\\regedit.exe");
  PressBackup();
  ASSERT_EQ(world.programs.Started().size(), 2U);
  EXPECT_TRUE(world.programs.Started()[0].elevated && world.programs.Started()[1].elevated);
  EXPECT_THAT(BoxTexts(), ElementsAre(Created));
}

TEST_F(Backup, RefusedRightsAreNoErrorOfABackupButOneOfARestore) {
  PutBackup(Default);
  Panel();
  world.programs.RequireElevation("C:\\WINDOWS\\regedit.exe");
  world.programs.RefuseElevation(1223);
  PressBackup();
  EXPECT_THAT(Commands(), IsEmpty());
  EXPECT_THAT(BoxTexts(), ElementsAre(Created));
  process.ClearBoxes();
  PressRestore();
  EXPECT_THAT(BoxTexts(), ElementsAre(PleaseClose, RestoreError));
}

// The attribute of a folder keeps nobody from writing into it.
TEST_F(Backup, AFolderMarkedReadOnlyIsBackedUpInto) {
  world.files.MakeFolder("D:\\mine");
  world.files.SetReadOnly("D:\\mine", true);
  PanelAt("D:\\mine");
  PressBackup();
  EXPECT_TRUE(world.files.IsFile("D:\\mine\\" + UserFile));
  EXPECT_THAT(Panel().txtBackup.Text(), StartsWith("Last backup date was:"));
}

TEST_F(Backup, NoForeignEditorIsStarted) {
  for (const char* folder : {"C:\\Program Files\\Vantrel", "C:", "C:\\WINDOWS\\System"}) {
    world.files.Put(std::string(folder) + "\\regedit.exe", "MZ");
  }
  PressBackup();
  for (const auto& started : world.programs.Started()) {
    EXPECT_EQ(started.program, "C:\\WINDOWS\\regedit.exe");
  }
  EXPECT_EQ(Commands().size(), 2U);
}

TEST_F(Backup, TheEditorOfTheSystemFolderComesFirst) {
  world.files.Put("C:\\WINDOWS\\System32\\regedit.exe", "MZ");
  PressBackup();
  ASSERT_EQ(world.programs.Started().size(), 2U);
  EXPECT_EQ(world.programs.Started()[0].application, "C:\\WINDOWS\\System32\\regedit.exe");
  EXPECT_EQ(world.programs.Started()[0].commandLine, "regedit /e \"" + Default + '\\' + UserTail);
}

TEST_F(Backup, ARestoreImportsBothBranches) {
  PutBackup(Default);
  PressRestore();
  EXPECT_THAT(Commands(), ElementsAre("regedit /is \"" + Default + '/' + UserTail,
                                      "regedit /is \"" + Default + '/' + MachineTail));
  EXPECT_THAT(Boxes(), ElementsAre(Box(PleaseClose, "Restore", 64), Box(Restored, "Restore", 64)));
}

TEST_F(Backup, ARestoreWithABackupExportsFirst) {
  PutBackup(Default);
  Panel().chktakebackup.SetValue(forms::Checked);
  PressRestore();
  EXPECT_THAT(Commands(), ElementsAre("regedit /e \"" + Default + "/CurrentBackup/" + UserTail,
                                      "regedit /e \"" + Default + "/CurrentBackup/" + MachineTail,
                                      "regedit /is \"" + Default + '/' + UserTail,
                                      "regedit /is \"" + Default + '/' + MachineTail));
  EXPECT_THAT(Boxes(), ElementsAre(Box(PleaseClose, "Restore", 64), Box(Restored, "Restore", 64)));
}

TEST_F(Backup, ARestoreKeepsItsOrder) {
  const std::vector<std::string> run = {"WindowsFolder", "FileExists", "CreateProcessA"};
  for (const int box : {forms::Unchecked, forms::Checked}) {
    PutBackup(Default);
    Panel().chktakebackup.SetValue(box);
    std::vector<std::string> expected = {"MessageBoxA", "FileExists", "FileExists",
                                         "MakeSureDirectoryPathExists"};
    for (int i = 0; i < (box == forms::Checked ? 4 : 2); ++i) {
      expected.insert(expected.end(), run.begin(), run.end());
    }
    expected.emplace_back("MessageBoxA");
    EXPECT_EQ(CallsOf([&] { PressRestore(); }), expected);
  }
}

TEST_F(Backup, ARestoreMakesThePathOfTheFolderOrOfTheSafetyExport) {
  PutBackup(Default);
  Panel();
  process.Trace().Clear();
  PressRestore();
  Panel().chktakebackup.SetValue(forms::Checked);
  PressRestore();
  EXPECT_THAT(process.Trace().LinesOf("MakeSureDirectoryPathExists"),
              ElementsAre("MakeSureDirectoryPathExists \"" + Default + "\" -> true",
                          "MakeSureDirectoryPathExists \"" + Default + "/CurrentBackup\" -> true"));
}

TEST_F(Backup, ElsewhereCurrentBackupIsNotMadeAndTheRestoreGoesOn) {
  world.files.MakeFolder("D:\\mine");
  PanelAt("D:\\mine");
  PressBackup();
  FillBranches();
  Panel().chktakebackup.SetValue(forms::Checked);
  PressRestore();
  EXPECT_FALSE(world.files.Exists("D:\\mine\\CurrentBackup"));
  EXPECT_EQ(Commands().size(), 6U);
  EXPECT_EQ(BoxTexts().back(), Restored);
}

TEST_F(Backup, WithOneFileMissingNothingIsImported) {
  for (const std::string& missing : {UserFile, MachineFile}) {
    PutBackup(Default);
    world.files.Remove(Default + '\\' + missing);
    process.ClearBoxes();
    PressRestore();
    EXPECT_THAT(Commands(), IsEmpty());
    EXPECT_THAT(Boxes(),
                ElementsAre(Box(PleaseClose, "Restore", 64), Box(NotFound, "Restore", 64)));
  }
}

TEST_F(Backup, WhereThePathCannotBeMadeTheLastMessageStandsAllTheSame) {
  for (const int box : {forms::Unchecked, forms::Checked}) {
    PutBackup(Default);
    Panel().chktakebackup.SetValue(box);
    process.Faults().FailEvery("MakeSureDirectoryPathExists", 1);
    process.ClearBoxes();
    PressRestore();
    EXPECT_THAT(Commands(), IsEmpty());
    EXPECT_THAT(Boxes(), ElementsAre(Box(PleaseClose, "Restore", 64), Box(CannotMake, "Vantrel", 0),
                                     Box(Restored, "Restore", 64)));
  }
}

TEST_F(Backup, AnErrorOfARestoreEndsItInABox) {
  PutBackup(Default);
  Panel();
  process.Faults().FailEvery("CreateProcessA", platform::ErrorFileNotFound);
  EXPECT_THAT(CallsOf([&] { PressRestore(); }), testing::Contains("CreateProcessA").Times(1));
  EXPECT_THAT(Boxes(),
              ElementsAre(Box(PleaseClose, "Restore", 64), Box(RestoreError, "Restore", 10)));
}

TEST_F(Backup, AnErrorBehindTheFirstImportLeavesWhatItDid) {
  PutBackup(Default);
  Panel();
  process.Faults().FailCall("CreateProcessA", 2, platform::ErrorAccessDenied);
  PressRestore();
  EXPECT_THAT(Commands(), ElementsAre("regedit /is \"" + Default + '/' + UserTail));
  EXPECT_EQ(BoxTexts().back(), RestoreError);
}

TEST_F(Backup, TheFolderOfARestoreIsReadBehindTheFirstBox) {
  PutBackup("D:\\other");
  process.WhileBoxIsUp = [this](const auto&) { PanelAt("D:\\other"); };
  PressRestore();
  EXPECT_THAT(Commands(), ElementsAre(HasSubstr("D:\\other/"), HasSubstr("D:\\other/")));
}

TEST_F(Backup, WhatABackupKeptARestoreBringsBack) {
  FillBranches();
  const std::string before = Branches();
  PressBackup();
  ChangeBranches();
  ASSERT_NE(Branches(), before);
  PressRestore();
  EXPECT_EQ(Branches(), before);
  EXPECT_EQ(UserValue(), "about:\"\\\xE4");
}

TEST_F(Backup, ARestoreAddsAndDeletesNothing) {
  PressBackup();
  FillBranches();
  PressRestore();
  EXPECT_EQ(UserValue(), "about:\"\\\xE4");
}

TEST_F(Backup, TheSafetyExportHasWhatTheRestoreReplaced) {
  FillBranches();
  PressBackup();
  ChangeBranches();
  Panel().chktakebackup.SetValue(forms::Checked);
  PressRestore();
  EXPECT_EQ(MachineValue(), "6.0.2900.2180");
  for (const std::string& file : {UserFile, MachineFile}) {
    const std::string kept = world.files.Read(Default + "\\CurrentBackup\\" + file).value_or("");
    EXPECT_TRUE(ImportReg(world.registry, kept));
  }
  EXPECT_EQ(UserValue(), "http://bad");
  EXPECT_EQ(MachineValue(), "9");
}

TEST_F(Backup, AChosenFolderReplacesTheTextAndACancelKeepsIt) {
  std::string start;
  ShownPanel();
  world.pickFolder = [this, &start](const auto& picker) {
    start = picker.Selected;
    EXPECT_EQ(picker.Info.Owner, Panel().hWnd());
    EXPECT_EQ(picker.Info.Prompt, "&Select a directory to Backup or Restore IE Settings:");
    return std::string("D:\\chosen");
  };
  EXPECT_TRUE(user.Click(Panel().cmdBrowseIESettings));
  EXPECT_EQ(start, Default);
  EXPECT_EQ(Panel().txtIESettings.Text(), "D:\\chosen");
  EXPECT_EQ(toolkit.Focus(), &Panel().txtIESettings);
  world.pickFolder = [](const auto&) { return std::string(); };
  Panel().cmdBrowseIESettings.SetFocus();
  EXPECT_TRUE(user.Click(Panel().cmdBrowseIESettings));
  EXPECT_EQ(Panel().txtIESettings.Text(), "D:\\chosen");
  EXPECT_EQ(toolkit.Focus(), &Panel().txtIESettings);
}

TEST_F(Backup, AFileInTheFoldersPlaceGetsNothing) {
  world.files.Put("D:\\file", "mine");
  PanelAt("D:\\file");
  PressBackup();
  EXPECT_EQ(world.files.Read("D:\\file").value_or(""), "mine");
  EXPECT_EQ(world.files.List("D:"), std::vector<std::string>{"file"});
  EXPECT_EQ(Panel().txtBackup.Text(), None);
  PressRestore();
  EXPECT_THAT(BoxTexts(), ElementsAre(Created, PleaseClose, NotFound));
}

TEST_F(Backup, AFolderWithReadOnlyFilesKeepsThem) {
  PutBackup(Default);
  world.files.Put(DateFile, "old");
  for (const std::string& name : world.files.List(Default)) {
    if (!world.files.IsFolder(Default + '\\' + name)) {
      world.files.SetReadOnly(Default + '\\' + name, true);
    }
  }
  PressBackup();
  EXPECT_EQ(world.files.Read(Default + '\\' + UserFile).value_or(""), "REGEDIT4\r\n");
  EXPECT_EQ(Panel().txtBackup.Text(), "old");
  EXPECT_THAT(BoxTexts(), ElementsAre(Created));
}

// Names that no folder has: each operation gives its prescribed answer.
TEST_F(Backup, FoldersThatCannotBe) {
  const std::string long300(300, 'x');
  for (const std::string& folder :
       {std::string(), std::string("Q:\\a"), std::string("Q:"), std::string("no drive"), long300,
        "C:\\" + long300, std::string("C:\\a\"b"), std::string("C:\\a|b\\c"), std::string("\\"),
        std::string("\\\\server\\share\\x"), std::string(1000, '\\')}) {
    SCOPED_TRACE(folder.substr(0, 50));
    PanelAt(folder);
    process.ClearBoxes();
    PressBackup();
    EXPECT_EQ(BoxTexts().back(), Created);
    EXPECT_EQ(Panel().txtBackup.Text(), None);
    process.ClearBoxes();
    PressRestore();
    EXPECT_THAT(BoxTexts(), ElementsAre(PleaseClose, NotFound));
  }
}

// What the editor makes of its files is never looked at.
TEST_F(Backup, FilesThatAreNoRegistrationFilesAreImportedAllTheSame) {
  FillBranches();
  const std::string before = Branches();
  for (const std::string& content :
       {std::string(), std::string("garbage"), std::string(1000, '\0'), std::string("\xFF\xFE"),
        std::string("\xFF\xFEW\0i\0", 6), std::string("REGEDIT4\r\n[HKEY_CURRENT_USER"),
        std::string(1'000'000, '[')}) {
    world.files.Put(Default + '\\' + UserFile, content);
    world.files.Put(Default + '\\' + MachineFile, content);
    process.ClearBoxes();
    PressRestore();
    EXPECT_THAT(BoxTexts(), ElementsAre(PleaseClose, Restored));
    EXPECT_EQ(Branches(), before);
  }
}

TEST_F(Backup, FilesInBothFormsAreImported) {
  world.files.Put(Default + '\\' + UserFile, "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\" + UserKey +
                                                 "\\Main]\r\n\"Start Page\"=\"old form\"\r\n");
  world.files.Put(
      Default + '\\' + MachineFile,
      "\xFF\xFE" + platform::memory::ToUtf16("Windows Registry Editor Version 5.00\r\n\r\n"
                                             "[HKEY_LOCAL_MACHINE\\" +
                                             MachineKey + "]\r\n\"Version\"=\"new form\"\r\n"));
  PressRestore();
  EXPECT_EQ(UserValue(), "old form");
  EXPECT_EQ(MachineValue(), "new form");
}

}  // namespace
}  // namespace vantrel::iemaintenance
