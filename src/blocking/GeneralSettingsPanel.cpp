#include "blocking/GeneralSettingsPanel.h"

#include "blocking/BlockingState.h"
#include "launch/OpenUrl.h"
#include "program/PanelHosting.h"
#include "settings/PanelBoxes.h"
#include "settings/StartWithWindowsRegistry.h"
#include "settings/bmdlReg.h"
#include "settings/bmdlSave.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmcustom.h"

namespace vantrel::blocking {
namespace {

using program::Program;
using Panel = windows::FrmFrameSettings;

constexpr const char* RunKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";

void AddRunEntry(Program& program, const std::string& name, const std::string& path) {
  platform::Registry& registry = program.platform.registry;
  platform::KeyHandle run = 0;
  // This handle is meant to stay open.
  registry.RegOpenKeyExA(platform::HKeyLocalMachine, RunKey, platform::KeyShortAccess, run);
  settings::CreateRunKey(registry, "", run);
  settings::SetRunValue(program, platform::HKeyLocalMachine, RunKey, name, path, platform::RegSz);
}

}  // namespace

void chkGShowToolbar_Click(Program& program) {
  program.MsgBox("The changes may require a restart of Internet Explorer",
                 platform::StyleInformation);
  settings::SaveBlockSettingsGuarded(program);
  Panel& panel = *program.windows.FrmFrameSettings;
  const bool shown = panel.chkGShowToolbar.Value() == forms::Checked;
  if (shown) {
    AddToolbarEntry(program);
  } else {
    RemoveToolbarEntry(program);
  }
  panel.lblviewtoolbar.SetVisible(shown);
}

void chkScript_Click(Program& program) {
  const bool disabled = program.windows.FrmFrameSettings->chkScript.Value() == forms::Checked;
  settings::UpdateRegistryValue(program.platform.registry, platform::HKeyCurrentUser,
                                "Software\\Microsoft\\Internet Explorer\\Main\\",
                                "Disable Script Debugger", disabled ? "yes" : "no");
}

void chkGSWindows_Click(Program& program) {
  // In ordinary use the click is meant to change nothing of the entry.
  if (!settings::SaveGeneralSettingsGuarded(program)) SetStartWithWindows(program);
}

void SetStartWithWindows(Program& program) {
  const std::string name = program.platform.system.ProgramName();
  const std::string path = program.PathOf("\\" + name + ".exe");
  if (program.windows.FrmFrameSettings->chkGSWindows.Value() == forms::Checked) {
    AddRunEntry(program, name, path);
  } else {
    settings::DeleteRunValue(program.platform.registry, platform::HKeyLocalMachine, RunKey, name);
  }
}

void cmdresetSettings_Click(Program& program) {
  settings::ResetBoxes(program, program.windows.FrmFrameSettings);
  program.windows.FrmFrameSettings->chkScript.SetValue(forms::Checked);
}

void Attach(Program& program, Panel& form) {
  form.Load = [&program, &form] { program::HostPanel(program, form); };
  form.chkGSWindows.Click = [&program] { chkGSWindows_Click(program); };
  form.chkGShowToolbar.Click = [&program] { chkGShowToolbar_Click(program); };
  form.chkScript.Click = [&program] { chkScript_Click(program); };
  settings::SaveOnClick(program, program.windows.FrmFrameSettings, form);
  form.cmdresetSettings.Click = [&program] { cmdresetSettings_Click(program); };
  form.cmdtoolbar.Click = [&program] { program.windows.frmcustom->Show(); };
  form.Command4.Click = [&program] { launch::Open(program, launch::UpdatesPage); };
}

}  // namespace vantrel::blocking
