#include "iemaintenance/SettingsBackup.h"

#include <array>
#include <string_view>

#include "fileutil/FileErrors.h"
#include "fileutil/libCreateDir.h"
#include "fileutil/modBrowsefolder.h"
#include "program/PanelHosting.h"
#include "text/ErrorTrap.h"
#include "text/Strings.h"

namespace vantrel::iemaintenance {
namespace {

using program::Program;
using windows::FrmFrameIESettings;

struct Branch {
  const char* Key;
  const char* File;
};

// In the order in which they are exported and imported.
constexpr std::array Branches{
    Branch{"HKEY_CURRENT_USER\\Software\\Microsoft\\Internet Explorer",
           "CURRENT_IE_SETTINGS_RUN.reg"},
    Branch{"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Internet Explorer",
           "LOCAL_IE_SETTINGS_RUN.reg"},
};

constexpr const char* DefaultFolder = "\\Settings\\IESettings";
constexpr const char* DateFile = "IE Backup date.txt";
constexpr const char* Editor = "\\regedit.exe";
constexpr const char* Export = "regedit /e ";
constexpr const char* Import = "regedit /is ";
constexpr const char* RestoreTitle = "Restore";
// No combination of buttons and icon; it is passed as it stands.
constexpr std::uint32_t RestoreErrorStyle = 10;

std::string BackupFolder(Program& program) {
  return program.windows.FrmFrameIESettings->txtIESettings.Text();
}

// Where the system itself looks for the editor, but for the folders that it looks into first, where
// others may have put a program of that name. What a 32-bit process of a 64-bit system sees in
// System32 is the editor of its own view of the registry; a 32-bit system has none there.
std::string EditorPath(Program& program) {
  const std::string windows = program.platform.system.WindowsFolder();
  const std::string inSystem = windows + "\\System32" + Editor;
  return program.platform.files.FileExists(inSystem) ? inSystem : windows + Editor;
}

// Starts the editor and raises the error of a start that fails. `place` is the folder with the
// joint behind it. The last quote is not closed: this is meant.
void RunEditor(Program& program, const std::string& verb, const std::string& place,
               const Branch& branch) {
  const std::string commandLine = verb + '"' + place + branch.File + "\" \"" + branch.Key;
  fileutil::RaiseFileError(program.platform.processes.CreateProcessA(
      EditorPath(program), commandLine, platform::ShowMinimized));
}

void RunEditor(Program& program, const std::string& verb, const std::string& place) {
  for (const Branch& branch : Branches) RunEditor(program, verb, place, branch);
}

std::string DateText(platform::System& system) {
  const std::string date = system.ShortDate();
  return "Last backup date was: " + date + "\r\nAt time: " + system.ShortTime() + "\r\n";
}

bool BackupStands(platform::Files& files, const std::string& folder) {
  for (const Branch& branch : Branches) {
    if (!files.FileExists(folder + '/' + branch.File)) return false;
  }
  return true;
}

void ImportBranches(Program& program, const std::string& folder) {
  const bool exportFirst =
      program.windows.FrmFrameIESettings->chktakebackup.Value() == forms::Checked;
  // Neither path ends in a backslash, so the last folder is not made; of the one with the forward
  // slash not even the one above it is. This is meant.
  const std::string safety = folder + "/CurrentBackup";
  if (!fileutil::MakeDirPath(program, exportFirst ? safety : folder)) return;
  if (exportFirst) RunEditor(program, Export, safety + '/');
  RunEditor(program, Import, folder + '/');
}

void Restore(Program& program) {
  program.MsgBox("Please close all the instances of Internet Explorer", platform::StyleInformation,
                 RestoreTitle);
  const std::string folder = BackupFolder(program);
  if (!BackupStands(program.platform.files, folder)) {
    program.MsgBox("IE settings files not found ", platform::StyleInformation, RestoreTitle);
    return;
  }
  ImportBranches(program, folder);
  program.MsgBox("Saved Backups has been restored", platform::StyleInformation, RestoreTitle);
}

// The lines of a file as a text box takes them one by one: a carriage return and a line feed go
// before a line once the box holds text, and a NUL ends what it takes of a line.
std::string LinesAsShown(std::string_view content) {
  std::string shown;
  shown.reserve(content.size());
  while (!content.empty()) {
    const std::string_view line = text::TakeLine(content);
    if (!shown.empty()) shown += "\r\n";
    shown += line.substr(0, line.find('\0'));
  }
  return shown;
}

void FrmFrameIESettings_Load(Program& program, FrmFrameIESettings& form) {
  program::HostPanel(program, form);
  const std::string folder = program.PathOf(DefaultFolder);
  // The backslash at the end makes the last folder too.
  fileutil::MakeDirPath(program, folder + "\\CurrentBackup\\");
  form.txtIESettings.SetText(folder);
  ShowBackupDate(program, folder + '\\' + DateFile);
}

}  // namespace

void cmdBackupIESettings_Click(Program& program) {
  const std::string dateText = DateText(program.platform.system);
  const std::string folder = BackupFolder(program);
  // Without a backslash at its end the folder itself is not made: this is meant.
  if (fileutil::MakeDirPath(program, folder)) {
    text::ErrorTrap trap;
    for (const Branch& branch : Branches) {
      trap([&] { RunEditor(program, Export, folder + '\\', branch); });
    }
  }
  program.fileNumbers.CloseAll();
  // A failure shows in the view alone.
  program.platform.files.WriteTextFile(folder + '/' + DateFile, dateText);
  program.MsgBox("Backup has been created Successfully", platform::StyleInformation);
  ShowBackupDate(program, BackupFolder(program) + '/' + DateFile);
}

void cmdRestoreIESettings_Click(Program& program) {
  text::ErrorTrap trap;
  if (trap([&program] { Restore(program); })) return;
  program.MsgBox("Error occured during the restore process ", RestoreErrorStyle, RestoreTitle);
}

void cmdBrowseIESettings_Click(Program& program) {
  FrmFrameIESettings& form = *program.windows.FrmFrameIESettings;
  const std::string chosen =
      fileutil::BrowseForFolder(program, form.txtIESettings.Text(), form.hWnd(),
                                "&Select a directory to Backup or Restore IE Settings:");
  if (!chosen.empty()) form.txtIESettings.SetText(chosen);
  form.txtIESettings.SetFocus();
}

void ShowBackupDate(Program& program, const std::string& path) {
  forms::TextBox& view = program.windows.FrmFrameIESettings->txtBackup;
  platform::Files& files = program.platform.files;
  std::string content;
  if (!files.FileExists(path)) {
    view.SetText("Last Backup: None");
  } else if (files.ReadTextFile(path, content) == platform::ErrorSuccess) {
    view.SetText(LinesAsShown(content));
  }
}

void Attach(Program& program, FrmFrameIESettings& form) {
  form.Load = [&program, &form] { FrmFrameIESettings_Load(program, form); };
  form.cmdBackupIESettings.Click = [&program] { cmdBackupIESettings_Click(program); };
  form.cmdRestoreIESettings.Click = [&program] { cmdRestoreIESettings_Click(program); };
  form.cmdBrowseIESettings.Click = [&program] { cmdBrowseIESettings_Click(program); };
}

}  // namespace vantrel::iemaintenance
