#include "blocking/BlockingState.h"

#include "settings/bmdlReg.h"
#include "settings/bmdlSave.h"
#include "windows/FrmFrameMain.h"
#include "windows/FrmFrameSettings.h"
#include "windows/frmMain.h"

namespace vantrel::blocking {
namespace {

using platform::HKeyClassesRoot;
using platform::HKeyLocalMachine;
using program::Program;
using settings::UpdateRegistryValue;

constexpr const char* EngineKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\"
    "{911C4A8E-0F75-4B83-BEB9-02BDDF29D11E}";
constexpr const char* ToolbarKey = "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar";
constexpr const char* ToolbarClassKey = "CLSID\\{28BC2EC4-5EAD-45E1-9F9F-82CD5E293601}";
constexpr const char* ToolbarIdentifier = "{28BC2EC4-5EAD-45E1-9F9F-82CD5E293601}";
constexpr const char* ToolbarName = "Vantrel Toolbar";
constexpr const char* DefaultValue = "";

void ApplyToolbarRule(Program& program) {
  if (program.windows.FrmFrameSettings->chkGShowToolbar.Value() != forms::Unchecked) {
    AddToolbarEntry(program);
  } else {
    RemoveToolbarEntry(program);
  }
}

}  // namespace

void mnustart_Click(Program& program) {
  windows::FrmFrameMain& panel = *program.windows.FrmFrameMain;
  panel.cmdstart.SetEnabled(false);
  panel.cmdstop.SetEnabled(true);
  program.BlockStopped = 0;
  program.BlockingActive = true;
  // Start saves before it writes the entry, Stop deletes the entry before it saves: both meant.
  settings::SaveBlockSettings(program);
  cmdADDBHO_Click(program);
  panel.Timer1.SetEnabled(true);
}

void mnustop_Click(Program& program) {
  windows::FrmFrameMain& panel = *program.windows.FrmFrameMain;
  panel.cmdstop.SetEnabled(false);
  panel.cmdstart.SetEnabled(true);
  program.BlockStopped = 1;
  program.BlockingActive = false;
  RemoveEngineEntry(program);
  settings::SaveBlockSettings(program);
}

void cmdADDBHO_Click(Program& program) {
  platform::Registry& registry = program.platform.registry;
  settings::CreateRegistryKey(registry, HKeyLocalMachine, EngineKey);
  UpdateRegistryValue(registry, HKeyLocalMachine, EngineKey, "Subkey", "Grimbolt Helper");
  UpdateRegistryValue(registry, HKeyLocalMachine, EngineKey, "Path", program.PathOf("\\Settings"));
  ApplyToolbarRule(program);
}

void RemoveEngineEntry(Program& program) {
  platform::Registry& registry = program.platform.registry;
  settings::DeleteRegistryValue(registry, HKeyLocalMachine, EngineKey, "Subkey");
  settings::DeleteRegistryValue(registry, HKeyLocalMachine, EngineKey, "Path");
  settings::DeleteRegistryKey(registry, HKeyLocalMachine, EngineKey);
  windows::frmMain& main = *program.windows.frmMain;
  main.cmdADDBHO.SetEnabled(true);
  main.cmdRemoveBHO.SetEnabled(false);
}

void AddToolbarEntry(Program& program) {
  platform::Registry& registry = program.platform.registry;
  UpdateRegistryValue(registry, HKeyLocalMachine, ToolbarKey, ToolbarIdentifier, ToolbarName);
  UpdateRegistryValue(registry, HKeyClassesRoot, ToolbarClassKey, DefaultValue, ToolbarName);
}

void RemoveToolbarEntry(Program& program) {
  settings::DeleteRegistryValue(program.platform.registry, HKeyLocalMachine, ToolbarKey,
                                ToolbarIdentifier);
}

}  // namespace vantrel::blocking
