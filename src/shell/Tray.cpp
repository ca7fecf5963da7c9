#include "shell/Tray.h"

#include <algorithm>
#include <string_view>

#include "program/PanelHosting.h"
#include "text/Numbers.h"
#include "windows/FrmFrameMain.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using program::Program;
using windows::frmMain;

constexpr std::uint32_t FirstFormSize = 88;
constexpr std::uint32_t MessageIconAndTip = 7;
constexpr std::uint32_t MouseMoveMessage = 512;
constexpr std::int32_t LeftDoubleClick = 515;
constexpr std::int32_t RightButtonUp = 517;

// The tip, a NUL, then blanks up to the field's end.
void FillTip(std::array<char, 64>& field) {
  constexpr std::string_view Tip = "Vantrel";
  field.fill(' ');
  std::copy(Tip.begin(), Tip.end(), field.begin());
  field[Tip.size()] = '\0';
}

// The tray's code comes as the x coordinate of a mouse move. A real mouse at that pixel column
// cannot be distinguished; this is meant.
std::int32_t CallbackCode(const forms::Form& form, float x) {
  const double pixels = form.ScaleMode() == forms::ScaleMode::Pixels
                            ? static_cast<double>(x)
                            : static_cast<double>(x) / form.Tools().TwipsPerPixelX();
  return text::RoundToLong(pixels);
}

void Restore(Program& program) {
  program.windows.frmMain->SetWindowState(forms::WindowState::Normal);
  program.windows.frmMain->Show();
}

void AnswerTray(Program& program, float x) {
  switch (CallbackCode(*program.windows.FrmFrameMain, x)) {
    case LeftDoubleClick:
      program.windows.FrmFrameMain->Show();
      Restore(program);
      break;
    case RightButtonUp:
      program.windows.FrmFrameMain->Show();
      program.windows.frmMain->PopupMenu(program.windows.frmMain->mnusystemone);
      break;
    default:
      break;
  }
}

void AddIcon(Program& program, platform::NotifyIconData& icon, const forms::Form& window) {
  icon.cbSize = FirstFormSize;
  icon.hWnd = window.hWnd();
  icon.uID = 1;
  icon.uFlags = MessageIconAndTip;
  icon.uCallbackMessage = MouseMoveMessage;
  icon.hIcon = program.windows.frmMain->IconHandle();
  FillTip(icon.szTip);
  program.platform.shell.Shell_NotifyIconA(platform::NimDelete, icon);
  program.platform.shell.Shell_NotifyIconA(platform::NimAdd, icon);
}

void RemoveTrayIcon(Program& program) {
  program.platform.shell.Shell_NotifyIconA(platform::NimDelete, program.TrayIcon);
}

// Each entry restores the main window and goes on as the entry of the menu bar does. "Block
// Settings" opens the general settings; this is meant.
struct TrayRow {
  forms::Menu frmMain::*entry;
  forms::Menu frmMain::*followed;
  bool restores;
};

constexpr TrayRow TrayEntries[] = {
    {&frmMain::mnusysOpen, &frmMain::mnuWelcome, true},
    {&frmMain::mnusysBlock, &frmMain::mnuSettings, true},
    {&frmMain::MNuAllow, &frmMain::MNuAllowlist, true},
    {&frmMain::mnusysCleaning, &frmMain::MnuClean, true},
    {&frmMain::mnusysexit, &frmMain::MnuExit, false},
};

}  // namespace

void AddTrayIcon(Program& program) {
  AddIcon(program, program.TrayIcon, *program.windows.FrmFrameMain);
}

void AddTrayIconOfMainWindow(Program& program) {
  AddIcon(program, program.MainTrayIcon, *program.windows.frmMain);
}

void AttachTray(Program& program, windows::FrmFrameMain& panel) {
  panel.Load = [&program, &panel] {
    program::HostPanel(program, panel);
    AddTrayIcon(program);
  };
  panel.Unloading = [&program](bool&) { RemoveTrayIcon(program); };
  panel.MouseMove = [&program](int, int, float x, float) { AnswerTray(program, x); };
  // A shell that starts again has lost all icons.
  program.toolkit.TaskbarCreated = [&program] {
    if (program.windows.FrmFrameMain.Loaded()) AddTrayIcon(program);
  };
}

void AttachTrayMenu(Program& program, frmMain& form) {
  for (const TrayRow& row : TrayEntries) {
    (form.*row.entry).Click = [&program, &row] {
      if (row.restores) Restore(program);
      ((*program.windows.frmMain).*row.followed).Click();
    };
  }
  form.MouseMove = [&program, &form](int, int, float x, float) {
    if (CallbackCode(form, x) == LeftDoubleClick) Restore(program);
  };
}

}  // namespace vantrel::shell
