#include "blocking/BlockPreferencesPanel.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "program/PanelHosting.h"
#include "settings/bmdlReg.h"
#include "settings/bmdlSave.h"
#include "text/ScopedFlag.h"
#include "windows/FrmFrameBlockPreferences.h"

namespace vantrel::blocking {
namespace {

using forms::CheckBox;
using program::Program;
using Panel = windows::FrmFrameBlockPreferences;
using BoxMember = CheckBox Panel::*;

// The boxes that the master box stands for.
constexpr BoxMember AllRule[] = {&Panel::chkBAdv,    &Panel::chkBBanner, &Panel::chkBDhtml,
                                 &Panel::chkBDialog, &Panel::chkBFlash,  &Panel::chkBPopup};

// What else a box does after its save, given its state.
using SideEffect = void (*)(Program&, int state);

void FollowMessengerAds(Program& program, int state) {
  if (state == forms::Checked) SetMessengerService(program, false);
  if (state == forms::Unchecked) SetMessengerService(program, true);
}

// One way: ticking the box again is meant to leave the zone as clearing it has made it.
void FollowSpyware(Program& program, int state) {
  if (state == forms::Unchecked) SetSpywareZone(program, false);
}

struct BoxRow {
  BoxMember Box;
  SideEffect Then = nullptr;
};

// In the order in which the master box sets them: two more than it stands for.
constexpr BoxRow BoxRows[] = {
    {&Panel::chkBDhtml},
    {&Panel::chkBDialog},
    {&Panel::chkBFlash},
    {&Panel::chkBBanner},
    {&Panel::chkBPopup},
    {&Panel::chkBAdv},
    {&Panel::chkBDialogBox, FollowMessengerAds},
    {&Panel::chkBSpyware, FollowSpyware},
};

struct Assignment {
  BoxMember Box;
  int State;
};

struct Preset {
  std::string_view Name;
  std::array<Assignment, 6> Assignments;
};

constexpr Preset Presets[] = {
    {"Dial Up",
     {{{&Panel::chkAll, 0},
       {&Panel::chkBPopup, 1},
       {&Panel::chkBDialog, 1},
       {&Panel::chkBFlash, 1},
       {&Panel::chkBBanner, 0},
       {&Panel::chkBDhtml, 0}}}},
    {"DSL/Cable",
     {{{&Panel::chkAll, 0},
       {&Panel::chkBPopup, 1},
       {&Panel::chkBDialog, 1},
       {&Panel::chkBBanner, 1},
       {&Panel::chkBFlash, 1},
       {&Panel::chkBDhtml, 0}}}},
    {"High Speed /T1 Line",
     {{{&Panel::chkAll, 0},
       {&Panel::chkBPopup, 1},
       {&Panel::chkBDialog, 1},
       {&Panel::chkBBanner, 1},
       {&Panel::chkBFlash, 1},
       {&Panel::chkBDhtml, 1}}}},
};

void Box_Click(Program& program, Panel& panel, const BoxRow& row) {
  const text::ScopedFlag busy(panel.PanelBusy);
  UpdateAllCheck(program);
  SaveBlock(program);
  if (row.Then != nullptr) row.Then(program, (panel.*row.Box).Value());
}

void WriteZone(Program& program, const char* policy, std::int32_t value) {
  settings::WriteRegistryValue(
      program.platform.registry, platform::HKeyCurrentUser,
      "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\0", policy, value,
      platform::RegDword);
}

}  // namespace

void SaveBlock(Program& program) { settings::SaveBlockSettingsGuarded(program); }

void UpdateAllCheck(Program& program) {
  Panel& panel = *program.windows.FrmFrameBlockPreferences;
  const bool all = std::all_of(std::begin(AllRule), std::end(AllRule), [&panel](BoxMember box) {
    return (panel.*box).Value() == forms::Checked;
  });
  panel.chkAll.SetValue(all ? forms::Checked : forms::Unchecked);
}

void SetMessengerService(Program& program, bool on) {
  constexpr std::int32_t Automatic = 2;
  constexpr std::int32_t Disabled = 4;
  settings::WriteRegistryValue(program.platform.registry, platform::HKeyLocalMachine,
                               "SYSTEM\\CurrentControlSet\\Services\\Messenger", "Start",
                               on ? Automatic : Disabled, platform::RegDword);
}

void SetSpywareZone(Program& program, bool on) {
  WriteZone(program, "1200", on ? 3 : 0);
  WriteZone(program, "1201", on ? 3 : 1);
}

void chkAll_Click(Program& program) {
  Panel& panel = *program.windows.FrmFrameBlockPreferences;
  if (panel.PanelBusy) return;
  const int state = panel.chkAll.Value();
  if (state == forms::Checked || state == forms::Unchecked) {
    for (const BoxRow& row : BoxRows) (panel.*row.Box).SetValue(state);
  }
  panel.cmdsave.SetEnabled(true);
}

void cmbinternet_Change(Program& program) {
  Panel& panel = *program.windows.FrmFrameBlockPreferences;
  const std::string name = panel.cmbinternet.Text();
  for (const Preset& preset : Presets) {
    if (preset.Name != name) continue;
    for (const Assignment& row : preset.Assignments) (panel.*row.Box).SetValue(row.State);
  }
}

void Attach(Program& program, Panel& form) {
  form.Load = [&program, &form] { program::HostPanel(program, form); };
  for (const BoxRow& row : BoxRows) {
    (form.*row.Box).Click = [&program, &form, &row] { Box_Click(program, form, row); };
  }
  form.chkAll.Click = [&program] { chkAll_Click(program); };
  form.cmbinternet.Change = [&program] { cmbinternet_Change(program); };
}

}  // namespace vantrel::blocking
