#include "settings/Load.h"

#include <span>

#include "settings/Schema.h"
#include "settings/WriteValue.h"
#include "settings/bmdlReg.h"
#include "text/Numbers.h"
#include "windows/FrmFrameNotification.h"

namespace vantrel::settings {
namespace {

// Puts one stored text into its control.
struct Loader {
  program::Windows& Windows;
  const std::string& Stored;

  void operator()(BoxOf box) const {
    const std::int16_t state = text::CInt(Stored);
    box(Windows).SetValue(state);
  }

  void operator()(SoundList /*unused*/) const {
    windows::FrmFrameNotification& panel = *Windows.FrmFrameNotification;
    if (Stored.empty()) {
      panel.chkNS.SetValue(forms::Unchecked);
      return;
    }
    panel.cmbsound.SetText(Stored);
    panel.chkNS.SetValue(forms::Checked);
  }
};

void LoadKey(program::Program& program, const std::string& key, std::span<const LoadRow> rows) {
  if (IsMissing(program, key, FilledMarker)) return;
  for (const LoadRow& row : rows) {
    const std::string stored =
        ReadRegistryValue(program.platform.registry, platform::HKeyCurrentUser, key, row.Name);
    std::visit(Loader{program.windows, stored}, row.Target);
  }
}

}  // namespace

void LoadBlockSettings(program::Program& program) {
  LoadKey(program, BlockSettingsKey, BlockLoadRows);
}

void LoadGeneralSettings(program::Program& program) {
  LoadKey(program, SettingsKey, GeneralLoadRows);
}

}  // namespace vantrel::settings
