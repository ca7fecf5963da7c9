#include "blocking/WelcomePanel.h"

#include "blocking/BlockingState.h"
#include "launch/OpenUrl.h"
#include "settings/PanelBoxes.h"
#include "statistics/RefreshCounters.h"
#include "windows/FrmFrameBlockPreferences.h"
#include "windows/FrmFrameMain.h"

namespace vantrel::blocking {
namespace {

using program::Program;
using Panel = windows::FrmFrameMain;

// The preset of the Ad Blocking panel that an option chooses.
struct OptionRow {
  forms::OptionButton Panel::*Option;
  const char* Preset;
};

constexpr OptionRow OptionRows[] = {
    {&Panel::optDial, "Dial Up"},
    {&Panel::optMedium, "DSL/Cable"},
    {&Panel::optFast, "High Speed /T1 Line"},
};

void ChoosePreset(Program& program, const OptionRow& row) {
  program.windows.FrmFrameBlockPreferences->cmbinternet.SetText(row.Preset);
}

}  // namespace

void cmdtest_Click(Program& program) {
  program.windows.FrmFrameMain->cmdstart.Click();
  launch::Open(program, launch::PopupTestPage);
}

void Attach(Program& program, Panel& form) {
  form.cmdstart.Click = [&program] { mnustart_Click(program); };
  form.cmdstop.Click = [&program] { mnustop_Click(program); };
  form.cmdtest.Click = [&program] { cmdtest_Click(program); };
  for (const OptionRow& row : OptionRows) {
    (form.*row.Option).Click = [&program, &row] { ChoosePreset(program, row); };
  }
  settings::SaveOnClick(program, program.windows.FrmFrameMain, form);
  form.Timer1.Tick = [&program] { statistics::RefreshCounters(program); };
  form.Activate = [&program] { statistics::RefreshCounters(program); };
}

}  // namespace vantrel::blocking
