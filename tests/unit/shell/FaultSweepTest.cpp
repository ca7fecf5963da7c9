// Start-up, Start and Stop, run once for every call that they make of Windows, with that one call
// failing: nothing crashes or hangs, no key is left open, and the program has either been refused
// by the gate or goes on with a window that works. What is prescribed for a failure holds.
#include <gmock/gmock.h>

#include <optional>
#include <utility>

#include "shell/Navigation.h"
#include "unit/shell/FaultSweep.h"
#include "windows/FrmFrameAllowList.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameIESettings.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::shell {
namespace {

using test::BlockLog;
using test::Machine;
using test::Sweep;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* GateBox =
    "Vantrel does not support Internet Explorer version lesser than 6.0. Please install a higher "
    "version.";

void ExpectRefused(Machine& machine) {
  EXPECT_TRUE(machine.copy->toolkit.Ending());
  EXPECT_THAT(machine.BoxTexts(*machine.copy), ElementsAre(GateBox));
  EXPECT_THAT(machine.world.tray.Icons(), IsEmpty());
}

constexpr const char* CannotMakeFolders =
    "Sorry Could not make the directory path contact the systems administrator";

// The boxes of a start: the refresh of the counters and the list of the plug-in folder report what
// they cannot read, and the panel of the browser's settings that it cannot make its folders.
void ExpectSilence(const Machine& machine) {
  if (machine.FailedIn(BlockLog)) {
    EXPECT_THAT(machine.BoxTexts(*machine.copy), Each("Type mismatch"));
  } else if (machine.FailedIs("MakeSureDirectoryPathExists")) {
    EXPECT_THAT(machine.BoxTexts(*machine.copy), ElementsAre(CannotMakeFolders));
  } else if (machine.FailedRead("\\IE Setup\\Setup") || machine.FailedIs("FolderExists ")) {
    EXPECT_THAT(machine.BoxTexts(*machine.copy), ElementsAre("Some error occured: Path not found"));
  } else if (machine.FailedIs("ListFolder ")) {
    EXPECT_THAT(machine.BoxTexts(*machine.copy),
                ElementsAre("Some error occured: Permission denied"));
  } else {
    EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
  }
}

// What holds behind every start.
void ExpectStart(Machine& machine) {
  if (machine.FailedRead("\\Internet Explorer \"Version\"") ||
      machine.FailedRead("\\Internet Explorer 0x")) {
    ExpectRefused(machine);
    return;
  }
  ExpectSilence(machine);
  machine.ExpectStarted();
  machine.ExpectUsable();
}

void RunStart(Machine& machine) { Start(machine.copy->program); }

TEST(FaultSweep, AFirstStart) {
  Sweep(
      "Start: the first", [](Machine& machine) { machine.Make(); }, RunStart, ExpectStart);
}

TEST(FaultSweep, AStartOverStoredSettings) {
  Sweep(
      "Start: over stored settings",
      [](Machine& machine) {
        machine.StoreChoices();
        machine.Make();
      },
      RunStart, ExpectStart);
}

void PressStop(Machine& machine) {
  EXPECT_TRUE(machine.copy->user.Click(machine.copy->Windows().FrmFrameMain->cmdstop));
}
void PressStart(Machine& machine) {
  EXPECT_TRUE(machine.copy->user.Click(machine.copy->Windows().FrmFrameMain->cmdstart));
}

TEST(FaultSweep, AStartThatIsRefused) {
  Sweep(
      "Start: refused for an old browser",
      [](Machine& machine) {
        machine.world.registry.SetString(
            platform::HKeyLocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer", "Version", "5.5");
        machine.Make();
      },
      RunStart,
      [](Machine& machine) {
        EXPECT_TRUE(machine.copy->toolkit.Ending());
        EXPECT_THAT(machine.BoxTexts(*machine.copy), Each(GateBox));
        EXPECT_THAT(machine.world.tray.Icons(), IsEmpty());
      });
}

TEST(FaultSweep, Stop) {
  Sweep(
      "Blocking: Stop", [](Machine& machine) { machine.MakeStarted(); }, PressStop,
      [](Machine& machine) {
        EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
        machine.ExpectStopped();
        machine.ExpectUsable();
      });
}

TEST(FaultSweep, StartBehindAStop) {
  Sweep(
      "Blocking: Start",
      [](Machine& machine) {
        machine.MakeStarted();
        PressStop(machine);
      },
      PressStart,
      [](Machine& machine) {
        EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
        machine.ExpectStarted();
        machine.ExpectUsable();
      });
}

// A later start that finds a copy running: whatever fails of its calls, the running copy stays as
// usable as it was, and the later one ends, or is a copy of its own if it could not know.
TEST(FaultSweep, AStartThatHandsOver) {
  const auto prepared = [](Machine& machine) {
    machine.MakeStarted();
    auto running = std::move(machine.copy);
    machine.Make();
    return running;
  };
  Machine clean("/graph");
  const auto first = prepared(clean);
  const std::vector<std::string> calls = clean.CallsOf([&] { RunStart(clean); });
  std::size_t runs = 0;
  bool captionAsked = false;
  for (std::size_t n = 1; n <= calls.size(); ++n) {
    // One caption of the many that the search looks at stands for all.
    if (calls[n - 1].starts_with("GetWindowTextA") && std::exchange(captionAsked, true)) continue;
    Machine machine("/graph");
    const auto running = prepared(machine);
    ++runs;
    machine.Fail(n, platform::ErrorAccessDenied, [&] { RunStart(machine); });
    SCOPED_TRACE("call " + std::to_string(n) + ": " + machine.failed);
    machine.ExpectKeysClosed();
    EXPECT_EQ(machine.copy->toolkit.Ending(), !machine.FailedIs("PreviousInstanceRuns"));
    EXPECT_FALSE(running->toolkit.Ending());
    EXPECT_TRUE(running->user.Select(running->Windows().frmMain->MnuClean));
    EXPECT_TRUE(running->Windows().FrmFrameHistory->Shown());
    EXPECT_THAT(Machine::BoxTexts(*running), IsEmpty());
  }
  test::NoteSweep("Start: that hands its command over", calls.size(), runs);
}

constexpr const char* ToolbarSettings = "Software\\Qorvel Softwares\\Toolbar Settings";
constexpr const char* EndOfLoad = "Some error occured while processing.";

void OpenToolbarDialog(Machine& machine) {
  EXPECT_TRUE(machine.copy->user.Select(machine.copy->Windows().frmMain->submnuIEToolbar));
}
std::optional<std::string> StoredLayout(const Machine& machine) {
  return machine.world.registry.GetString(platform::HKeyCurrentUser, ToolbarSettings,
                                          "Toolbar Settings");
}

// The dialog's buttons work, and the next save stores the whole catalogue.
void ExpectToolbarDialogUsable(Machine& machine) {
  auto& dialog = *machine.copy->Windows().frmcustom;
  EXPECT_TRUE(dialog.Visible());
  EXPECT_TRUE(machine.copy->user.Click(dialog.cmdReset));
  EXPECT_TRUE(machine.copy->user.Click(dialog.Command1));
  EXPECT_EQ(StoredLayout(machine), "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19");
  machine.ExpectUsable();
}

TEST(FaultSweep, OpenOfTheToolbarDialog) {
  Sweep(
      "Toolbar: open the dialog", [](Machine& machine) { machine.MakeStarted(); },
      OpenToolbarDialog,
      [](Machine& machine) {
        // A list that cannot be read is an empty one; the name is needed by nobody.
        if (machine.FailedRead("Toolbar Settings \"Toolbar Settings\"") ||
            (machine.FailedIs("RegOpenKeyExA") && machine.copy->process.Boxes().size() > 0)) {
          EXPECT_THAT(machine.BoxTexts(*machine.copy), ElementsAre("", EndOfLoad));
        } else {
          EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
          EXPECT_EQ(machine.copy->Windows().frmcustom->lstvCurrent.Count(), 19);
        }
        ExpectToolbarDialogUsable(machine);
      });
}

TEST(FaultSweep, SaveOfTheToolbar) {
  const auto save = [](Machine& machine) {
    EXPECT_TRUE(machine.copy->user.Click(machine.copy->Windows().frmcustom->cmdDone));
  };
  Sweep(
      "Toolbar: save",
      [](Machine& machine) {
        machine.MakeStarted();
        OpenToolbarDialog(machine);
        EXPECT_TRUE(machine.copy->user.Click(machine.copy->Windows().frmcustom->cmdRemove));
      },
      save,
      [](Machine& machine) {
        // What cannot be written is lost in silence.
        EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
        EXPECT_FALSE(machine.copy->Windows().frmcustom->cmdDone.Enabled());
        ExpectToolbarDialogUsable(machine);
      });
}

void ExpectGone(Machine& machine) {
  EXPECT_TRUE(machine.copy->toolkit.Ending());
  EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
  // The main window itself goes with the process.
  EXPECT_LE(machine.copy->toolkit.LoadedForms().size(), 1U);
  if (!machine.FailedIs("Shell_NotifyIconA")) {
    EXPECT_THAT(machine.world.tray.Icons(), IsEmpty());
  }
}

TEST(FaultSweep, Exit) {
  const auto exit = [](Machine& machine) {
    machine.copy->user.Select(machine.copy->Windows().frmMain->MnuExit);
  };
  Sweep(
      "Window: Exit", [](Machine& machine) { machine.MakeStarted(); }, exit, ExpectGone);
}

TEST(FaultSweep, TheCloseBoxForGoodAndToTheTray) {
  const auto close = [](Machine& machine) {
    machine.copy->user.Close(*machine.copy->Windows().frmMain);
  };
  Sweep(
      "Window: close for good", [](Machine& machine) { machine.MakeStarted(); }, close, ExpectGone);
  Sweep(
      "Window: close to the tray",
      [](Machine& machine) {
        machine.MakeStarted();
        machine.copy->Windows().FrmFrameSettings->chkGHideSystray.SetValue(forms::Checked);
      },
      close,
      [](Machine& machine) {
        EXPECT_FALSE(machine.copy->toolkit.Ending());
        EXPECT_FALSE(machine.copy->Windows().frmMain->Visible());
        EXPECT_EQ(machine.world.tray.Icons().size(), 1U);
        EXPECT_TRUE(machine.copy->program.BlockingActive);
        machine.copy->Windows().frmMain->Show();
        machine.ExpectUsable();
      });
}

TEST(FaultSweep, TheEndOfTheSession) {
  Sweep(
      "Window: end of the session", [](Machine& machine) { machine.MakeStarted(); },
      [](Machine& machine) { machine.copy->toolkit.SystemEnds(); }, ExpectGone);
}

TEST(FaultSweep, ExitFromTheTray) {
  Sweep(
      "Tray: Exit", [](Machine& machine) { machine.MakeStarted(); },
      [](Machine& machine) {
        auto& main = *machine.copy->Windows().frmMain;
        machine.copy->toolkit.ChooseFromPopup = [&main](forms::Menu&) { return &main.mnusysexit; };
        machine.world.tray.Mouse(machine.world.desktop, machine.world.tray.Icons().at(0), 517);
      },
      ExpectGone);
}

constexpr const char* SitesFile = "C:\\Program Files\\Vantrel\\Settings\\AllowList.txt";

std::string SiteLine(int number, const std::string& name) {
  return "id =" + std::to_string(number) +
         ", Popup= 1 ,DHTML = 1, WebDialog =1 ,Banner = 1, Flash = 1 , " + name + "\r\n";
}

// The panel with three sites, the second selected and typed over; every question is answered Yes.
void OpenSites(Machine& machine) {
  machine.MakeStarted();
  machine.copy->process.AnswerBox = [](const platform::memory::Box& box) {
    return (box.style & 0xF) == 0 ? platform::AnswerOk : platform::AnswerYes;
  };
  machine.world.files.Put(SitesFile, SiteLine(1, "a") + SiteLine(2, "b") + SiteLine(2, "c"));
  CaseAllow(machine.copy->program);
  auto& panel = *machine.copy->Windows().FrmFrameAllowList;
  EXPECT_TRUE(machine.copy->user.Click(panel.lstGroup, 2));
  EXPECT_TRUE(machine.copy->user.Type(panel.txtName, "d"));
}

// After each act the panel goes on: a site that is added then stands in file and list.
void ExpectSitesUsable(Machine& machine) {
  machine.copy->process.Faults().Clear();
  auto& panel = *machine.copy->Windows().FrmFrameAllowList;
  EXPECT_TRUE(machine.copy->user.Type(panel.txtName, "new"));
  EXPECT_TRUE(machine.copy->user.Click(panel.cmdAddWebsite));
  EXPECT_EQ(panel.lblstatus.Caption(), "Added Successfully");
  EXPECT_EQ(panel.lstGroup.Item(panel.lstGroup.Count()).Text(), "new");
  EXPECT_THAT(machine.world.files.Read(SitesFile).value_or(""), testing::HasSubstr(" , new\r\n"));
}

TEST(FaultSweep, AddEditAndDeleteASite) {
  using Panel = windows::FrmFrameAllowList;
  const std::pair<const char*, forms::CommandButton Panel::*> buttons[] = {
      {"add", &Panel::cmdAddWebsite},
      {"edit", &Panel::cmdEditAllowed},
      {"delete", &Panel::cmdRemove}};
  for (const auto& [name, button] : buttons) {
    Sweep(
        std::string("Allowed List: ") + name, OpenSites,
        [button = button](Machine& machine) {
          auto& panel = *machine.copy->Windows().FrmFrameAllowList;
          EXPECT_TRUE(machine.copy->user.Click(panel.*button));
        },
        [](Machine& machine) {
          // A failure of the file shows in no box.
          EXPECT_THAT(machine.BoxTexts(*machine.copy),
                      Each("Delete the Website [b] from the allowed list"));
          EXPECT_TRUE(machine.copy->Windows().FrmFrameAllowList->Visible());
          ExpectSitesUsable(machine);
        });
  }
}

TEST(FaultSweep, OpeningTheAllowedList) {
  Sweep(
      "Allowed List: load", OpenSites, [](Machine& machine) { CaseAllow(machine.copy->program); },
      [](Machine& machine) {
        EXPECT_TRUE(machine.copy->Windows().FrmFrameAllowList->Visible());
        ExpectSitesUsable(machine);
      });
}

TEST(FaultSweep, AChosenSite) {
  Sweep(
      "Allowed List: choose", OpenSites,
      [](Machine& machine) {
        auto& panel = *machine.copy->Windows().FrmFrameAllowList;
        EXPECT_TRUE(machine.copy->user.Click(panel.lstGroup, 1));
      },
      [](Machine& machine) {
        EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
        ExpectSitesUsable(machine);
      });
}

constexpr const char* BackupFolder = "C:\\Program Files\\Vantrel\\Settings\\IESettings\\";

void PressBackup(Machine& machine) {
  EXPECT_TRUE(
      machine.copy->user.Click(machine.copy->Windows().FrmFrameIESettings->cmdBackupIESettings));
}
void PressRestore(Machine& machine) {
  EXPECT_TRUE(
      machine.copy->user.Click(machine.copy->Windows().FrmFrameIESettings->cmdRestoreIESettings));
}
std::optional<std::string> BrowserVersion(const Machine& machine) {
  return machine.world.registry.GetString(platform::HKeyLocalMachine, test::BrowserKey, "Version");
}
void OpenBackup(Machine& machine) {
  machine.MakeStarted();
  CaseIESettings(machine.copy->program);
}

// A box that cannot be shown leaves the rest as it is.
std::vector<std::string> ShownOf(const Machine& machine, std::vector<std::string> boxes) {
  if (machine.FailedIs("MessageBoxA")) {
    std::erase_if(boxes, [&](const std::string& box) { return machine.FailedIn(box); });
  }
  return boxes;
}

// Behind each failure the next backup and the next restore do the whole of their work.
void ExpectBackupUsable(Machine& machine) {
  auto& panel = *machine.copy->Windows().FrmFrameIESettings;
  EXPECT_TRUE(panel.Visible());
  machine.world.registry.SetString(platform::HKeyLocalMachine, test::BrowserKey, "Version", "7.0");
  PressBackup(machine);
  EXPECT_THAT(panel.txtBackup.Text(), testing::StartsWith("Last backup date was:"));
  machine.world.registry.SetString(platform::HKeyLocalMachine, test::BrowserKey, "Version", "8.0");
  PressRestore(machine);
  EXPECT_EQ(BrowserVersion(machine), "7.0");
  EXPECT_EQ(machine.BoxTexts(*machine.copy).back(), "Saved Backups has been restored");
  machine.copy->process.ClearBoxes();
  machine.ExpectUsable();
}

TEST(FaultSweep, BackupOfTheBrowsersSettings) {
  Sweep("IE Settings: back up", OpenBackup, PressBackup, [](Machine& machine) {
    std::vector<std::string> boxes = {"Backup has been created Successfully"};
    const bool noPath = machine.FailedIs("MakeSureDirectoryPathExists");
    if (noPath) boxes.insert(boxes.begin(), CannotMakeFolders);
    EXPECT_EQ(machine.BoxTexts(*machine.copy), ShownOf(machine, boxes));
    // One export that fails keeps the other from nothing.
    const auto started = machine.world.programs.Started().size();
    EXPECT_EQ(started, noPath ? 0U : machine.FailedIs("CreateProcessA") ? 1U : 2U);
    EXPECT_EQ(machine.world.files.IsFile(BackupFolder + std::string("IE Backup date.txt")),
              !machine.FailedIs("WriteTextFile"));
    ExpectBackupUsable(machine);
  });
}

// What the boxes of a restore end with, whichever call failed.
std::string EndOfRestore(const Machine& machine) {
  const bool looksForFiles = machine.FailedIs("FileExists") && !machine.FailedIn("regedit.exe");
  if (looksForFiles) return "IE settings files not found ";
  if (machine.FailedIs("CreateProcessA")) return "Error occured during the restore process ";
  return "Saved Backups has been restored";
}

TEST(FaultSweep, RestoreOfTheBrowsersSettings) {
  for (const int safetyExport : {forms::Unchecked, forms::Checked}) {
    Sweep(
        safetyExport == forms::Checked ? "IE Settings: restore behind a backup"
                                       : "IE Settings: restore",
        [safetyExport](Machine& machine) {
          OpenBackup(machine);
          machine.copy->Windows().FrmFrameIESettings->chktakebackup.SetValue(safetyExport);
          PressBackup(machine);
          machine.world.registry.SetString(platform::HKeyLocalMachine, test::BrowserKey, "Version",
                                           "8.0");
        },
        PressRestore,
        [](Machine& machine) {
          const bool noPath = machine.FailedIs("MakeSureDirectoryPathExists");
          const std::string end = EndOfRestore(machine);
          std::vector<std::string> boxes = {"Please close all the instances of Internet Explorer"};
          if (noPath) boxes.emplace_back(CannotMakeFolders);
          boxes.push_back(end);
          EXPECT_EQ(machine.BoxTexts(*machine.copy), ShownOf(machine, boxes));
          const bool restored = !noPath && end == "Saved Backups has been restored";
          EXPECT_EQ(BrowserVersion(machine), restored ? "6.0.2900.2180" : "8.0");
          ExpectBackupUsable(machine);
        });
  }
}

}  // namespace
}  // namespace vantrel::shell
