#include "blocking/NotificationPanel.h"

#include "blocking/bmdlsound.h"
#include "program/PanelHosting.h"
#include "settings/PanelBoxes.h"
#include "settings/bmdlSave.h"
#include "text/ScopedFlag.h"
#include "windows/FrmFrameNotification.h"

namespace vantrel::blocking {
namespace {

using program::Program;
using settings::SaveNotificationGuarded;
using Panel = windows::FrmFrameNotification;
using BoxMember = forms::CheckBox Panel::*;

// The boxes that "Don't Notify at all" clears, in its order.
constexpr BoxMember Notifications[] = {&Panel::chkNMC, &Panel::chkNPH, &Panel::chkNPHF,
                                       &Panel::chkNS, &Panel::chkNW};

// Any notification ends "Don't Notify at all".
void EndSilence(Panel& panel, const forms::CheckBox& box) {
  if (box.Value() != forms::Unchecked) panel.chkNAll.SetValue(forms::Unchecked);
}

// One past the last entry reads as the empty text, so that no selection passes.
bool IsListed(const forms::ComboBox& list) {
  for (int index = 0; index <= list.ListCount(); ++index) {
    if (list.Text() == list.List(index)) return true;
  }
  return false;
}

// Picks a sound in the user's place; nothing is saved.
void CorrectSound(Panel& panel) {
  const text::ScopedFlag correcting(panel.CorrectingSound);
  panel.cmbsound.SetText("click");
}

void SelectSomeSound(Panel& panel) {
  if (panel.chkNS.Value() == forms::Checked && panel.cmbsound.ListIndex() == -1) {
    panel.cmbsound.SetListIndex(0);
  }
}

void SilenceEndingBox_Click(Program& program, Panel& panel, const forms::CheckBox& box) {
  EndSilence(panel, box);
  SaveNotificationGuarded(program);
}

}  // namespace

void chkNAll_Click(Program& program) {
  Panel& panel = *program.windows.FrmFrameNotification;
  if (panel.chkNAll.Value() != forms::Checked) return;
  for (const BoxMember box : Notifications) (panel.*box).SetValue(forms::Unchecked);
}

void chkNS_Click(Program& program) {
  Panel& panel = *program.windows.FrmFrameNotification;
  EndSilence(panel, panel.chkNS);
  // A load with a stored sound ticks the box by the sound's name and clears it by the switch, and
  // each raises this event. The list is meant to stay visible through a load all the same.
  if (!program.LoadingSettings) {
    panel.cmbsound.SetVisible(panel.chkNS.Value() != forms::Unchecked);
  }
  SaveNotificationGuarded(program);
}

void cmbsound_Click(Program& program) {
  if (program.windows.FrmFrameNotification->CorrectingSound) return;
  SaveNotificationGuarded(program);
}

void cmdDefaultNotify_Click(Program& program) {
  settings::ResetBoxes(program, program.windows.FrmFrameNotification);
}

void cmbsound_Validate(Program& program, bool& keepFocus) {
  Panel& panel = *program.windows.FrmFrameNotification;
  if (IsListed(panel.cmbsound)) {
    SaveNotificationGuarded(program);
    return;
  }
  program.MsgBox("Please select a sound from the list", platform::StyleInformation);
  CorrectSound(panel);
  keepFocus = true;
  panel.cmbsound.SetFocus();
}

void Label35_Click(Program& program) {
  const std::string sound = program.windows.FrmFrameNotification->cmbsound.Text();
  PlaySoundFile(program.platform.sound, program.PathOf("\\Sound\\" + sound + ".wav"));
}

void Attach(Program& program, Panel& form) {
  form.Load = [&program, &form] {
    program::HostPanel(program, form);
    SelectSomeSound(form);
  };
  for (const BoxMember box : {&Panel::chkNW, &Panel::chkNPH, &Panel::chkNPHF}) {
    (form.*box).Click = [&program, &form, box] {
      SilenceEndingBox_Click(program, form, form.*box);
    };
  }
  form.chkNS.Click = [&program] { chkNS_Click(program); };
  form.chkNMC.Click = [&form] { EndSilence(form, form.chkNMC); };
  form.chkNAll.Click = [&program] { chkNAll_Click(program); };
  form.cmdDefaultNotify.Click = [&program] { cmdDefaultNotify_Click(program); };
  form.cmbsound.Click = [&program] { cmbsound_Click(program); };
  form.cmbsound.Validate = [&program](bool& keepFocus) { cmbsound_Validate(program, keepFocus); };
  form.Label35.Click = [&program] { Label35_Click(program); };
}

}  // namespace vantrel::blocking
