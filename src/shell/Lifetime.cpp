#include "shell/Lifetime.h"

#include <algorithm>
#include <vector>

#include "settings/bmdlSave.h"
#include "shell/Navigation.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using program::Program;

constexpr int GwlWndProc = -4;

void frmMain_Resize(windows::frmMain& form) {
  if (form.WindowState() != forms::WindowState::Normal) return;
  const forms::Size& smallest = form.Designed().Smallest;
  if (form.Width() < smallest.Width) form.SetWidth(smallest.Width);
  if (form.Height() < smallest.Height) form.SetHeight(smallest.Height);
}

void HideToTray(Program& program, bool& cancel) {
  HideAll(program);
  program.windows.frmMain->Hide();
  cancel = true;
  settings::SaveDisabled(program);
  RestoreWindowProc(program, *program.windows.frmMain);
}

void CloseForGood(Program& program) {
  RestoreWindowProc(program, *program.windows.frmMain);
  program.windows.frmMain->Unload();
  // Once more, for the case that the unload returned.
  settings::SaveDisabled(program);
  UnloadAllForms(program);
  program.toolkit.End();
}

void frmMain_QueryUnload(Program& program, bool& cancel, int mode) {
  if (mode != forms::UnloadByCloseBox) return;
  if (program.windows.FrmFrameSettings->chkGHideSystray.Value() == forms::Checked) {
    HideToTray(program, cancel);
  } else {
    CloseForGood(program);
  }
}

void frmMain_Unload(Program& program, windows::frmMain& form) {
  settings::SaveDisabled(program);
  UnloadAllForms(program);
  form.Unload();
  program.toolkit.End();
}

}  // namespace

void UnloadAllForms(Program& program) {
  // The list shrinks on the way, and an unload may unload others.
  const std::vector<forms::Form*> loaded = program.toolkit.LoadedForms();
  for (forms::Form* form : loaded) {
    const auto& still = program.toolkit.LoadedForms();
    if (std::find(still.begin(), still.end(), form) != still.end()) form->Unload();
  }
}

void RestoreWindowProc(Program& program, forms::Form& form) {
  program.platform.desktop.SetWindowLongA(form.hWnd(), GwlWndProc, program.OldWindowProc);
}

void Finish(Program& program) {
  if (program.toolkit.Ending() || !program.windows.frmMain.Loaded()) return;
  program.toolkit.AtBorder([&program] { program.windows.frmMain->Unload(forms::UnloadBySystem); });
}

void AttachLifetime(Program& program, windows::frmMain& form) {
  form.Resize = [&form] { frmMain_Resize(form); };
  form.QueryUnload = [&program](bool& cancel, int mode) {
    frmMain_QueryUnload(program, cancel, mode);
  };
  form.Unloading = [&program, &form](bool&) { frmMain_Unload(program, form); };
}

}  // namespace vantrel::shell
