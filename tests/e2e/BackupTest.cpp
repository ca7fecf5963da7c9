// Backup and restore of the browser's settings with the shipped program: on the real registry, with
// the system's registry editor and with a program in its place that records how it was started.
#include <windows.h>

#include <algorithm>

#include "support/BackupTexts.h"
#include "support/Folders.h"
#include "support/ProgramTest.h"
#include "support/RecordedBrowser.h"
#include "support/UserFolders.h"

namespace vantrel::e2e {
namespace {

using test::CannotMake;
using test::Created;
using test::None;
using test::NotFound;
using test::PleaseClose;
using test::Restored;
using test::RestoreError;

constexpr const char* UserKey = "\"HKCU\\Software\\Microsoft\\Internet Explorer\"";
constexpr const char* MachineKey = "\"HKLM\\SOFTWARE\\Microsoft\\Internet Explorer\"";
constexpr const char* ProbeKey = "\"HKCU\\Software\\Microsoft\\Internet Explorer\\VantrelProbe\"";

std::string WindowsFolder() {
  char folder[MAX_PATH]{};
  GetWindowsDirectoryA(folder, sizeof(folder));
  return folder;
}
std::string Editor() { return WindowsFolder() + "\\regedit.exe"; }

// Takes the system's registry editor away for the time of a test, or puts another program there.
class OtherEditor {
 public:
  explicit OtherEditor(const std::string& program = "") {
    EXPECT_TRUE(MoveFileA(Editor().c_str(), Kept().c_str()));
    const bool put = program.empty() || CopyFileA(program.c_str(), Editor().c_str(), TRUE) != FALSE;
    EXPECT_TRUE(put);
  }
  ~OtherEditor() {
    // A program that has only just ended may still hold its file.
    WaitFor([] { return !Exists(Editor()) || DeleteFileA(Editor().c_str()) != FALSE; });
    EXPECT_TRUE(MoveFileA(Kept().c_str(), Editor().c_str()));
  }
  OtherEditor(const OtherEditor&) = delete;
  OtherEditor& operator=(const OtherEditor&) = delete;

 private:
  static std::string Kept() { return WindowsFolder() + "\\regedit.kept"; }
};

bool EditorRuns() { return !ProcessesOf("regedit.exe").empty(); }

// What reg.exe prints; its end is waited for.
std::string Reg(const std::string& arguments) {
  // The console host inherits the file and may outlive the tool: each call has a file of its own.
  static int calls = 0;
  const std::string output = TemporaryFolder() + "VantrelReg" + std::to_string(++calls) + ".txt";
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  HANDLE file = CreateFileA(output.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE,
                            &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = file;
  startup.hStdError = file;
  std::string commandLine = "reg.exe " + arguments;
  PROCESS_INFORMATION started{};
  EXPECT_TRUE(CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
                             nullptr, nullptr, &startup, &started))
      << commandLine;
  EXPECT_EQ(WaitForSingleObject(started.hProcess, 30000), WAIT_OBJECT_0) << commandLine;
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  CloseHandle(file);
  const std::string printed = ReadFileBytes(output);
  DeleteFileA(output.c_str());
  return printed;
}

// Both branches as reg.exe prints them.
std::string Branches() {
  return Reg(std::string("query ") + UserKey + " /s") +
         Reg(std::string("query ") + MachineKey + " /s");
}

std::string Control(const std::string& name) { return "FrmFrameIESettings." + name; }

class BackupTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    Reg(std::string("delete ") + ProbeKey + " /f");
    RemoveFolder(Default());
  }
  void TearDown() override {
    EXPECT_TRUE(WaitFor([] { return !EditorRuns(); }, 60000));
    ProgramTest::TearDown();
    Reg(std::string("delete ") + ProbeKey + " /f");
    RemoveFolder(Other());
  }

  std::string Default() const { return copy_.Folder() + "\\Settings\\IESettings"; }
  // A folder of the user's choice.
  static std::string Other() { return TemporaryFolder() + "Vantrel other backup"; }
  static std::string DateFile(const std::string& folder) { return folder + "\\IE Backup date.txt"; }
  // Both files, made by the editor.
  static bool IsKept(const std::string& folder) {
    return Exists(folder + "\\CURRENT_IE_SETTINGS_RUN.reg") &&
           Exists(folder + "\\LOCAL_IE_SETTINGS_RUN.reg");
  }

  static void Open(const Running& program) {
    ASSERT_TRUE(program.WaitUntilIdle());
    program.MouseClick("frmMain.LnkIESettings");
    ASSERT_TRUE(program.WaitUntilVisible("FrmFrameIESettings"));
  }
  static void UseFolder(const Running& program, const std::string& folder) {
    program.SetText(Control("txtIESettings"), folder);
  }
  static void Confirm(const Running& program, const std::string& text, const std::string& title) {
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box) << text;
    EXPECT_EQ(box->text, text);
    EXPECT_EQ(box->title, title);
    EXPECT_EQ(HasIcon(*box), text != CannotMake && text != RestoreError) << text;
    ASSERT_TRUE(program.Answer(*box));
  }
  // Presses Backup and closes the boxes that come, the last of which tells of success.
  static void Backup(const Running& program, const std::vector<std::string>& before = {}) {
    program.ClickAndLeave(Control("cmdBackupIESettings"));
    for (const std::string& text : before) Confirm(program, text, "Vantrel");
    Confirm(program, Created, "Vantrel");
    EXPECT_TRUE(WaitFor([] { return !EditorRuns(); }, 60000));
    EXPECT_TRUE(program.Answers());
  }
  static void Restore(const Running& program, const std::string& end) {
    program.ClickAndLeave(Control("cmdRestoreIESettings"));
    Confirm(program, PleaseClose, "Restore");
    Confirm(program, end, "Restore");
    EXPECT_TRUE(WaitFor([] { return !EditorRuns(); }, 60000));
    EXPECT_TRUE(program.Answers());
  }
  static std::string Shown(const Running& program) { return program.TextOf(Control("txtBackup")); }

  ProgramCopy copy_{"VantrelBackup"};
};

TEST_F(BackupTest, AStartMakesTheFoldersAndTellsThatThereIsNoBackup) {
  Running program("", copy_.Executable());
  Open(program);
  EXPECT_TRUE(Exists(Default() + "\\CurrentBackup"));
  EXPECT_EQ(program.TextOf(Control("txtIESettings")), Default());
  EXPECT_EQ(Shown(program), None);
  EXPECT_EQ(program.CheckOf(Control("chktakebackup")), 0);
}

TEST_F(BackupTest, TheEditorIsStartedMinimisedWithTheseCommandLines) {
  const OtherEditor editor(HelperPath("recording-browser.exe"));
  RecordedBrowser record;
  Running program("", copy_.Executable());
  Open(program);
  Backup(program);
  WriteFileBytes(Default() + "\\CURRENT_IE_SETTINGS_RUN.reg", "");
  WriteFileBytes(Default() + "\\LOCAL_IE_SETTINGS_RUN.reg", "");
  ASSERT_TRUE(program.Click(Control("chktakebackup")));
  Restore(program, Restored);
  const std::string user = "\" \"HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer";
  const std::string machine = "\" \"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Internet Explorer";
  std::vector<std::string> expected = {
      "2 regedit /e \"" + Default() + "\\CURRENT_IE_SETTINGS_RUN.reg" + user,
      "2 regedit /e \"" + Default() + "\\LOCAL_IE_SETTINGS_RUN.reg" + machine,
      "2 regedit /e \"" + Default() + "/CurrentBackup/CURRENT_IE_SETTINGS_RUN.reg" + user,
      "2 regedit /e \"" + Default() + "/CurrentBackup/LOCAL_IE_SETTINGS_RUN.reg" + machine,
      "2 regedit /is \"" + Default() + "/CURRENT_IE_SETTINGS_RUN.reg" + user,
      "2 regedit /is \"" + Default() + "/LOCAL_IE_SETTINGS_RUN.reg" + machine,
  };
  std::vector<std::string> lines;
  for (const BrowserStart& start : record.WaitForStarts(expected.size(), 30000)) {
    lines.push_back(start.windowState + ' ' + start.commandLine);
  }
  // They run side by side.
  std::sort(lines.begin(), lines.end());
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(lines, expected);
}

// Programs of the editor's name lie in the program's folder and in the current one.
TEST_F(BackupTest, WhatWasBackedUpComesBackAndNoForeignEditorRuns) {
  RecordedBrowser record;
  CreateDirectoryA(Other().c_str(), nullptr);
  for (const std::string& folder : {copy_.Folder(), Other()}) {
    ASSERT_TRUE(CopyFileA(HelperPath("recording-browser.exe").c_str(),
                          (folder + "\\regedit.exe").c_str(), FALSE));
  }
  char current[MAX_PATH]{};
  GetCurrentDirectoryA(sizeof(current), current);
  SetCurrentDirectoryA(Other().c_str());
  Running program("", copy_.Executable());
  SetCurrentDirectoryA(current);
  Open(program);
  Reg(std::string("add ") + ProbeKey + " /ve /d \"a \\\"text\\\" with 100 %\" /f");
  Reg(std::string("add ") + ProbeKey + " /v bytes /t REG_BINARY /d 00FF80 /f");
  Reg(std::string("add ") + MachineKey + " /v VantrelProbe /t REG_DWORD /d 7 /f");
  // Texts that were stored without a terminator come back with one.
  Backup(program);
  EXPECT_TRUE(IsKept(Default()));
  Restore(program, Restored);
  const std::string before = Branches();
  Reg(std::string("delete ") + ProbeKey + " /f");
  Reg(std::string("add ") + MachineKey + " /v VantrelProbe /t REG_SZ /d changed /f");
  const std::string changed = Branches();
  ASSERT_NE(changed, before);
  Restore(program, Restored);
  EXPECT_EQ(Branches(), before);
  EXPECT_FALSE(IsKept(Default() + "\\CurrentBackup"));
  EXPECT_TRUE(record.WaitForStarts(1, 0).empty());
  Reg(std::string("delete ") + MachineKey + " /v VantrelProbe /f");
  DeleteFileA((copy_.Folder() + "\\regedit.exe").c_str());
}

TEST_F(BackupTest, TheDateOfABackupIsShownAtOnceAndAtTheNextStart) {
  std::string date(64, '\0');
  date.resize(GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date.data(),
                             static_cast<int>(date.size())) -
              1);
  std::string shown;
  {
    Running program("", copy_.Executable());
    Open(program);
    Backup(program);
    shown = Shown(program);
    EXPECT_EQ(shown.find("Last backup date was: " + date + "\r\nAt time: "), 0U) << shown;
    EXPECT_EQ(ReadFileBytes(DateFile(Default())), shown + "\r\n");
    program.ChooseMenu("MnuExit");
    ASSERT_TRUE(program.WaitForExit());
  }
  Running program("", copy_.Executable());
  Open(program);
  EXPECT_EQ(Shown(program), shown);
}

TEST_F(BackupTest, TheSafetyExportGoesToTheFolderWithinTheDefaultOne) {
  Running program("", copy_.Executable());
  Open(program);
  Backup(program);
  ASSERT_TRUE(program.Click(Control("chktakebackup")));
  Restore(program, Restored);
  EXPECT_TRUE(IsKept(Default() + "\\CurrentBackup"));
}

TEST_F(BackupTest, AFolderOfTheUsersOwnIsNotMadeAndKeepsABackupOnceItIsThere) {
  Running program("", copy_.Executable());
  Open(program);
  UseFolder(program, Other() + "\\in it");
  Backup(program);
  EXPECT_TRUE(Exists(Other()));
  EXPECT_FALSE(Exists(Other() + "\\in it"));
  EXPECT_EQ(Shown(program), None);
  UseFolder(program, Other());
  Backup(program);
  EXPECT_TRUE(IsKept(Other()));
  ASSERT_TRUE(program.Click(Control("chktakebackup")));
  Restore(program, Restored);
  EXPECT_FALSE(Exists(Other() + "\\CurrentBackup"));
}

TEST_F(BackupTest, ARestoreWithoutOneOfTheFilesIsRefused) {
  Running program("", copy_.Executable());
  Open(program);
  Restore(program, NotFound);
  WriteFileBytes(Default() + "\\CURRENT_IE_SETTINGS_RUN.reg",
                 "REGEDIT4\r\n\r\n[HKEY_CURRENT_USER\\Software\\Microsoft\\Internet "
                 "Explorer\\VantrelProbe]\r\n");
  const std::string before = Branches();
  Restore(program, NotFound);
  EXPECT_EQ(Branches(), before);
}

TEST_F(BackupTest, WithoutAnEditorABackupIsSilentAndARestoreTellsOfIt) {
  const OtherEditor noEditor;
  Running program("", copy_.Executable());
  Open(program);
  Backup(program);
  EXPECT_FALSE(IsKept(Default()));
  EXPECT_TRUE(Exists(DateFile(Default())));
  WriteFileBytes(Default() + "\\CURRENT_IE_SETTINGS_RUN.reg", "");
  WriteFileBytes(Default() + "\\LOCAL_IE_SETTINGS_RUN.reg", "");
  Restore(program, RestoreError);
}

TEST_F(BackupTest, FoldersThatCannotBeAreAnsweredAsPrescribed) {
  Running program("", copy_.Executable());
  Open(program);
  WriteFileBytes(copy_.Folder() + "\\Settings\\file", "mine");
  const std::string name300(300, 'x');
  const std::pair<std::string, std::vector<std::string>> rows[] = {
      {copy_.Folder() + "\\Settings\\file", {}},
      {copy_.Folder() + "\\Settings\\file\\a\\b", {CannotMake}},
      {"Q:\\a\\b", {CannotMake}},
      {"C:\\" + name300, {}},
      {"C:\\" + name300 + "\\b", {CannotMake}},
  };
  for (const auto& [folder, boxes] : rows) {
    SCOPED_TRACE(folder);
    UseFolder(program, folder);
    Backup(program, boxes);
    EXPECT_EQ(Shown(program), None);
    Restore(program, NotFound);
  }
  EXPECT_EQ(ReadFileBytes(copy_.Folder() + "\\Settings\\file"), "mine");
}

TEST_F(BackupTest, FilesThatAreNoRegistrationFilesChangeNothing) {
  Running program("", copy_.Executable());
  Open(program);
  const std::string before = Branches();
  for (const std::string& content :
       {std::string(), std::string("garbage\r\n"), std::string("\xFF\xFE"),
        std::string("REGEDIT4\r\n[HKEY_CURRENT_USER")}) {
    WriteFileBytes(Default() + "\\CURRENT_IE_SETTINGS_RUN.reg", content);
    WriteFileBytes(Default() + "\\LOCAL_IE_SETTINGS_RUN.reg", content);
    Restore(program, Restored);
    EXPECT_EQ(Branches(), before);
  }
}

TEST_F(BackupTest, FilesInTheOldFormAreImported) {
  Running program("", copy_.Executable());
  Open(program);
  const std::string key = "[HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer\\";
  WriteFileBytes(Default() + "\\CURRENT_IE_SETTINGS_RUN.reg",
                 "REGEDIT4\r\n\r\n" + key + "VantrelProbe]\r\n\"old\"=\"form\"\r\n");
  WriteFileBytes(Default() + "\\LOCAL_IE_SETTINGS_RUN.reg", "REGEDIT4\r\n");
  Restore(program, Restored);
  // What the editor puts behind the text's end is its own affair.
  const std::string printed = Reg(std::string("query ") + ProbeKey + " /v old");
  EXPECT_NE(printed.find("REG_SZ    form"), std::string::npos) << printed;
}

TEST_F(BackupTest, DateFilesOfOtherContentAreShownAsFarAsTextGoes) {
  using namespace std::string_literals;
  CreateDirectoryA(Default().c_str(), nullptr);
  const std::pair<std::string, std::string> rows[] = {
      {"a\0b\nc"s, "a\r\nc"}, {"", ""}, {"\n\n one\n\ntwo", " one\r\n\r\ntwo"}};
  for (const auto& [content, shown] : rows) {
    WriteFileBytes(DateFile(Default()), content);
    Running program("", copy_.Executable());
    Open(program);
    EXPECT_EQ(Shown(program), shown);
  }
}

TEST_F(BackupTest, OfADateFileOfTenMegabytesTheBeginningIsShown) {
  CreateDirectoryA(Default().c_str(), nullptr);
  std::string content;
  while (content.size() < 10'000'000) content += std::string(998, 'x') + "\r\n";
  WriteFileBytes(DateFile(Default()), content);
  Running program("", copy_.Executable());
  Open(program);
  EXPECT_EQ(Shown(program), content.substr(0, 30000));
  // Behind a backup that cannot write its date it is read again.
  const HANDLE held = CreateFileA(DateFile(Default()).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                  nullptr, OPEN_EXISTING, 0, nullptr);
  program.SetText(Control("txtBackup"), "");
  Backup(program);
  EXPECT_EQ(Shown(program).size(), 30000U);
  CloseHandle(held);
}

}  // namespace
}  // namespace vantrel::e2e
