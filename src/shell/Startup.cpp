#include "shell/Startup.h"

#include <vector>

#include "settings/FirstRun.h"
#include "settings/Load.h"
#include "settings/bmdlReg.h"
#include "shell/CommandChannel.h"
#include "shell/Lifetime.h"
#include "shell/Navigation.h"
#include "shell/bmdlActivate.h"
#include "statistics/BlockLog.h"
#include "text/ErrorTrap.h"
#include "text/Numbers.h"
#include "text/ScopedFlag.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using program::Program;
using windows::frmMain;
namespace palette = forms::palette;

constexpr int StartWidth = 9300;
constexpr int StartHeight = 6998;
constexpr double OldestBrowser = 6;

// Only the first character counts: version 10 is refused like version 1. This is meant. A value
// that cannot be read (one of no bytes) opens no gate: it is refused like a missing one.
bool BrowserIsRecent(Program& program) {
  std::string version;
  text::ErrorTrap trap;
  trap([&] {
    version = settings::ReadRegistryValue(program.platform.registry, platform::HKeyLocalMachine,
                                          "SOFTWARE\\Microsoft\\Internet Explorer", "Version");
  });
  return text::Val(version.substr(0, 1)) >= OldestBrowser;
}

[[noreturn]] void Refuse(Program& program) {
  program.MsgBox(
      "Vantrel does not support Internet Explorer version lesser than 6.0. Please install a "
      "higher version.",
      platform::StyleCritical);
  UnloadAllForms(program);
  program.toolkit.End();
}

std::vector<controls::HyperLink*> LinksOf(const frmMain& form) {
  std::vector<controls::HyperLink*> links;
  for (forms::Control* control : form.Controls()) {
    if (auto* link = dynamic_cast<controls::HyperLink*>(control)) links.push_back(link);
  }
  return links;
}

void ColourNavigation(frmMain& form) {
  form.PicBase.SetBackColor(palette::NavigationBack);
  for (controls::HyperLink* link : LinksOf(form)) {
    link->SetBackColor(palette::NavigationBack);
    link->SetForeColor(palette::LinkText);
    link->SetHoverColor(palette::LinkHover);
  }
}

// What every copy does, also one that is going to pass its command on and exit. Touching the
// Welcome panel adds the tray icon.
std::string PrepareWindow(Program& program, frmMain& form) {
  auto& welcome = *program.windows.FrmFrameMain;
  welcome.Image1.SetPicture(welcome.ImageList2, 1);
  ColourNavigation(form);
  form.cmdDummy.SetVisible(false);
  form.Text1.SetText("");
  return program.platform.system.CommandLineTail();
}

void LoadPanels(Program& program) {
  for (program::FormSlot* panel : program.windows.UpperPanels) {
    panel->EnsureLoaded();
    program.DoEvents();
  }
}

// An engine's entry under an identifier that is not the engine's own.
void RemoveStaleEngineEntry(Program& program) {
  settings::DeleteRegistryKey(program.platform.registry, platform::HKeyLocalMachine,
                              "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser "
                              "Helper Objects\\{CD701E6C-90D2-416E-9F3B-FFE9157D28EF}");
}

void ShowLines(frmMain& form) {
  form.ImgLTop.SetPicture(form.imgline, 1);
  form.imgbottom.SetPicture(form.imgline, 1);
  form.ImghelpLine.SetPicture(form.imgline, 1);
  form.ImgHelpImage.SetPicture(form.ImgHelpLogo, 1);
}

// The box follows the browser's own value; a value other than exactly "yes" clears it, and its
// handler then writes "no".
void ReadScriptDebugger(Program& program) {
  const std::string disabled = settings::ReadRegistryValue(
      program.platform.registry, platform::HKeyCurrentUser,
      "Software\\Microsoft\\Internet Explorer\\Main\\", "Disable Script Debugger");
  program.windows.FrmFrameSettings->chkScript.SetValue(disabled == "yes" ? forms::Checked
                                                                         : forms::Unchecked);
}

struct IconRow {
  forms::Image frmMain::*image;
  int number;
};

constexpr IconRow LeftIcons[] = {
    {&frmMain::ImgWelcome, 15},     {&frmMain::ImgAdBlocking, 20}, {&frmMain::ImgSettings, 25},
    {&frmMain::ImgClean, 23},       {&frmMain::ImgAllowed, 24},    {&frmMain::IMgNotify, 12},
    {&frmMain::ImgCheckRepair, 26}, {&frmMain::IeSettings, 18},    {&frmMain::ImgIEPlug, 19},
    {&frmMain::ImgHelp, 4},         {&frmMain::ImgGraph, 16},      {&frmMain::ImgDetails, 22},
};

void ShowLeftIcons(frmMain& form) {
  for (const IconRow& row : LeftIcons) (form.*row.image).SetPicture(form.imgexplore, row.number);
}

// What the first copy does. The main window first shows with the first command's dispatch.
void RunFirstCopy(Program& program, frmMain& form, const std::string& command) {
  form.cmdDummy.SetCaption(command);
  cmdDummy_Click(program);
  settings::CheckAndCreateRegitry(program);
  LoadPanels(program);
  HideAll(program);
  LoadInitialSettings(program);
  form.SetWidth(StartWidth);
  form.SetHeight(StartHeight);
  RemoveStaleEngineEntry(program);
  program.BlockStopped = 0;
  ShowLines(form);
  ReadScriptDebugger(program);
  ShowLeftIcons(form);
  form.LnkWelcome.Click();
  program.windows.FrmFrameMain->cmdstart.SetValue(true);
}

void frmMain_Load(Program& program, frmMain& form) {
  if (!BrowserIsRecent(program)) Refuse(program);
  const std::string command = PrepareWindow(program, form);
  if (program.platform.system.PreviousInstanceRuns()) {
    SendCommand(program, command);
    form.Unload();
  } else {
    RunFirstCopy(program, form, command);
  }
}

void ApplyGeneralSettings(Program& program) {
  settings::LoadGeneralSettings(program);
  auto& panel = *program.windows.FrmFrameSettings;
  panel.lblviewtoolbar.SetVisible(panel.chkGShowToolbar.Value() == forms::Checked);
  if (program.windows.FrmFrameMain->ChkMinimize.Value() == forms::Checked) {
    program.windows.frmMain->Hide();
  }
}

void LoadStored(Program& program) {
  const text::ScopedFlag loading(program.LoadingSettings);
  program.BlockStopped = 1;
  GetOSVer(program);
  statistics::ReadBlockLogAtStart(program);
  settings::LoadBlockSettings(program);
  ApplyGeneralSettings(program);
}

}  // namespace

void Start(Program& program) {
  bool finished = false;
  program.toolkit.AtBorder([&program, &finished] {
    program.windows.frmMain.EnsureLoaded();
    finished = true;
  });
  // A main window that could not be made is not tried again: behind its box the process ends.
  if (finished || program.toolkit.Ending() || !program.windows.frmMain.Loaded()) return;
  program.toolkit.AtBorder([&program] { program.windows.frmMain->Show(); });
}

void LoadInitialSettings(Program& program) {
  text::ErrorTrap trap;
  trap([&program] {
    LoadStored(program);
    program.windows.FrmFrameSettings->chkScript.SetValue(forms::Checked);
  });
}

void GetOSVer(Program& program) {
  constexpr std::uint32_t NtPlatform = 2;
  platform::VersionRecord record;
  record.size = 156;
  if (program.platform.system.GetVersionExA(record) != 1) return;
  if (record.platformId <= NtPlatform) program.IsWindowsNT = record.platformId == NtPlatform;
}

void AttachStartup(Program& program, frmMain& form) {
  for (controls::HyperLink* link : LinksOf(form)) link->UsePlatform(program.platform);
  form.Initialize = [&program] { program.platform.desktop.InitCommonControls(); };
  form.Load = [&program, &form] { frmMain_Load(program, form); };
}

}  // namespace vantrel::shell
