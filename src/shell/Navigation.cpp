#include "shell/Navigation.h"

#include "allowlist/SiteList.h"
#include "blocking/BlockingState.h"
#include "launch/OpenUrl.h"
#include "settings/bmdlSave.h"
#include "shell/CheckAndRepair.h"
#include "shell/EachOnce.h"
#include "windows/FrmAbout.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameHistory.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::shell {
namespace {

using program::Program;
using windows::frmMain;
using Operation = void (*)(Program&);

// Makes the panel visible and lets a click through before anything else happens.
void ShowPanel(Program& program, program::FormSlot& panel) {
  HideHelpFrame(program);
  panel.Touch().Show();
  program.DoEvents();
}

struct LinkRow {
  controls::HyperLink frmMain::*link;
  Operation showPanel;
  const char* title;
};

// The blank at the end of each title is part of the text.
constexpr LinkRow Links[] = {
    {&frmMain::LnkWelcome, CaseWelcome, "Welcome - Qorvel Software Vantrel "},
    {&frmMain::LnkAdBlocking, CaseAdBlocking, "Ad Blocking - Qorvel Software Vantrel "},
    {&frmMain::LnkSettings, CaseSettings, "Settings - Qorvel Software Vantrel "},
    {&frmMain::lnkClean, CaseClean, "Clean - Qorvel Software Vantrel "},
    {&frmMain::LnkAllowedList, CaseAllow, "Allowed List - Qorvel Software Vantrel "},
    {&frmMain::LnkNotification, CaseNotify, "Notification - Qorvel Software Vantrel "},
    {&frmMain::LnkIESettings, CaseIESettings, "IE Settings - Qorvel Software Vantrel "},
    {&frmMain::LnkIePlug, CaseIEPlugins, "IE Plugins/BHO - Qorvel Software Vantrel "},
    {&frmMain::LnkGraph, CaseGraph, "Graphs - Qorvel Software Vantrel "},
    {&frmMain::LnkLog, CaseLog, "Detail Log - Qorvel Software Vantrel "},
};

constexpr const char* HelpTitle = "Help - Qorvel Software Vantrel ";

void SetTitle(Program& program, const char* title) {
  program.windows.frmMain->lblVCP1.SetCaption(title);
}

// The Help frame without hiding the panels, as the menu and the tool button show it.
void LaunchHelp(Program& program) {
  CaseHelp(program);
  SetTitle(program, HelpTitle);
  launch::Open(program, launch::WelcomeHelp);
}

void HideMainWindow(Program& program) { program.windows.frmMain->Hide(); }

// What a tool button does: an operation by itself, or a panel with its title after HideAll.
struct ToolRow {
  int index;
  Operation operation;
  const char* title;  // nullptr: no HideAll and no title
};

constexpr ToolRow Tools[] = {
    {1, CaseSettings, "Settings - Qorvel Software Vantrel "},
    {3, StartThroughStop, nullptr},
    {4, blocking::mnustop_Click, nullptr},
    {6, CaseClean, "Clean - Qorvel Software Vantrel "},
    {7, CaseIESettings, "IE Settings - Qorvel Software Vantrel "},
    {8, CaseIEPlugins, "IE Plugins/BHO - Qorvel Software Vantrel "},
    {9, ShowToolbarDialog, nullptr},
    {11, MinimizeAllApplications, nullptr},
    {13, HideMainWindow, nullptr},
    {15, LaunchHelp, nullptr},
};

static_assert(EachOnce(Links, &LinkRow::link), "a link has one row");
static_assert(EachOnce(Tools, &ToolRow::index), "a tool button has one row");
// The check refuses a table of one row that stands twice.
constexpr ToolRow OneTwice[] = {{1, nullptr, nullptr}, {1, nullptr, nullptr}};
static_assert(!EachOnce(OneTwice, &ToolRow::index));

void PressTool(Program& program, int index) {
  for (const ToolRow& row : Tools) {
    if (row.index != index) continue;
    if (row.title != nullptr) HideAll(program);
    row.operation(program);
    if (row.title != nullptr) SetTitle(program, row.title);
  }
}

void FollowLink(Program& program, const LinkRow& row) {
  HideAll(program);
  row.showPanel(program);
  SetTitle(program, row.title);
}

void FollowHelpLink(Program& program) {
  HideAll(program);
  LaunchHelp(program);
}

// What a menu entry does: an operation by itself, or behind HideAll. The title stays as it was.
struct MenuRow {
  forms::Menu frmMain::*entry;
  Operation operation;
  bool hidesPanels;
};

void TestBlocking(Program& program) {
  StartWithoutStop(program);
  launch::Open(program, launch::PopupTestPage);
}

void UnloadMainWindow(Program& program) { program.windows.frmMain->Unload(); }
void ShowAbout(Program& program) { program.windows.FrmAbout->ShowModal(); }

constexpr bool Hiding = true;
constexpr bool Plain = false;

constexpr MenuRow MenuEntries[] = {
    {&frmMain::mnuWelcome, CaseWelcome, Hiding},
    {&frmMain::MnuStartBlocking, StartThroughStop, Plain},
    {&frmMain::mnutest, TestBlocking, Plain},
    {&frmMain::MnuStop, blocking::mnustop_Click, Plain},
    {&frmMain::MnuPanic, MinimizeAllApplications, Hiding},
    {&frmMain::MnuHide, HideMainWindow, Plain},
    {&frmMain::MnuExit, UnloadMainWindow, Plain},
    {&frmMain::MnuAdBlocking, CaseAdBlocking, Hiding},
    {&frmMain::mnuSettings, CaseSettings, Hiding},
    {&frmMain::MnuClean, CaseClean, Hiding},
    {&frmMain::MNuAllowlist, CaseAllow, Hiding},
    {&frmMain::MnuNotification, CaseNotify, Hiding},
    {&frmMain::submnuIESettings, CaseIESettings, Hiding},
    {&frmMain::submnuIEPlugins, CaseIEPlugins, Hiding},
    {&frmMain::submnuIEToolbar, ShowToolbarDialog, Plain},
    {&frmMain::submnugraph, CaseGraph, Hiding},
    {&frmMain::submnuDetailLog, CaseLog, Hiding},
    {&frmMain::submnuLogFile, launch::OpenLogFile, Plain},
    {&frmMain::submnuLaunchHelp, LaunchHelp, Plain},
    {&frmMain::submnuAbout, ShowAbout, Plain},
};
static_assert(EachOnce(MenuEntries, &MenuRow::entry), "a menu entry has one row");

}  // namespace

void HideAll(Program& program) {
  for (program::FormSlot* panel : program.windows.UpperPanels) panel->Touch().Hide();
}

void HideHelpFrame(Program& program) { program.windows.frmMain->frahelp.SetVisible(false); }

void CaseWelcome(Program& program) { ShowPanel(program, program.windows.FrmFrameMain); }

void CaseAdBlocking(Program& program) {
  HideHelpFrame(program);
  program.windows.FrmFrameBlockPreferences->Show();
  program.windows.FrmFrameMain->Hide();
  program.windows.FrmFrameSettings->Hide();
  program.DoEvents();
}

void CaseSettings(Program& program) {
  HideHelpFrame(program);
  program.windows.FrmFrameBlockPreferences->Hide();
  program.windows.FrmFrameSettings->Show();
  program.windows.FrmFrameMain->Hide();
  program.DoEvents();
}

void CaseClean(Program& program) {
  HideHelpFrame(program);
  program.windows.FrmFrameHistory->Show();
  program.windows.FrmFrameHistory->lblcleaningstatus.SetCaption("Ready to clean");
}

void CaseAllow(Program& program) {
  HideHelpFrame(program);
  allowlist::LoadAllowList(program, allowlist::LoadFailure::ShowsBox);
  program.windows.FrmFrameAllowList.Touch().Show();
  program.DoEvents();
}
void CaseNotify(Program& program) { ShowPanel(program, program.windows.FrmFrameNotification); }
void CaseIESettings(Program& program) { ShowPanel(program, program.windows.FrmFrameIESettings); }
void CaseIEPlugins(Program& program) { ShowPanel(program, program.windows.FrmFrameIEPlugin); }
void CaseGraph(Program& program) { ShowPanel(program, program.windows.FrmFrameGraph); }
void CaseLog(Program& program) { ShowPanel(program, program.windows.FrmFrameLog); }

void CaseHelp(Program& program) {
  HideHelpFrame(program);
  program.windows.frmMain->frahelp.SetVisible(true);
  program.DoEvents();
}

void StartThroughStop(Program& program) {
  blocking::mnustop_Click(program);
  StartWithoutStop(program);
}

void StartWithoutStop(Program& program) {
  program.windows.FrmFrameMain->cmdstart.SetEnabled(false);
  program.windows.FrmFrameMain->cmdstop.SetEnabled(true);
  program.BlockStopped = 0;
  settings::SaveBlockSettings(program);
  blocking::cmdADDBHO_Click(program);
  program.windows.FrmFrameMain->Timer1.SetEnabled(true);
}

void MinimizeAllApplications(Program& program) {
  constexpr std::uint8_t LeftWindowsKey = 91;
  constexpr std::uint8_t KeyM = 77;
  constexpr std::uint32_t KeyUp = 2;
  program.platform.desktop.keybd_event(LeftWindowsKey, 0, 0, 0);
  program.platform.desktop.keybd_event(KeyM, 0, 0, 0);
  program.platform.desktop.keybd_event(LeftWindowsKey, 0, KeyUp, 0);
}

void ShowToolbarDialog(Program& program) { program.windows.frmcustom->Show(); }

void AttachNavigation(Program& program, frmMain& form) {
  for (const LinkRow& row : Links) {
    (form.*row.link).Click = [&program, &row] { FollowLink(program, row); };
  }
  form.LnkHelp.Click = [&program] { FollowHelpLink(program); };
  // The one link that shows no panel: whatever shows stays, under its title.
  form.lnkCheckAndRepair.Click = [&program] { CheckAndRepair(program); };
  form.Toolbar1.ButtonClick = [&program](int index) { PressTool(program, index); };
  form.cmdADDBHO.Click = [&program] { blocking::cmdADDBHO_Click(program); };
  form.cmdRemoveBHO.Click = [&program] { blocking::RemoveEngineEntry(program); };
}

void AttachMenus(Program& program, frmMain& form) {
  for (const MenuRow& row : MenuEntries) {
    (form.*row.entry).Click = [&program, &row] {
      if (row.hidesPanels) HideAll(program);
      row.operation(program);
    };
  }
}

void AttachAbout(windows::FrmAbout& form) {
  form.Load = [&form] {
    form.ImgLTop.SetPicture(form.ImgHelpLogo, 1);
    form.Image2.SetPicture(form.ImgHelpLogo, 2);
  };
  form.CmdOK.Click = [&form] { form.Unload(); };
}

}  // namespace vantrel::shell
