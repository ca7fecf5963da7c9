#include "settings/Load.h"

#include "settings/Schema.h"
#include "settings/WriteValue.h"
#include "settings/bmdlReg.h"
#include "text/Numbers.h"
#include "windows/FrmFrameNotification.h"

namespace vantrel::settings {
namespace {

using program::Program;

// Fills one control from the store; one function a kind of origin. What a save takes from no
// control is not even read.
struct Loader {
  Program& Copy;
  const Section& From;
  const Setting& Row;

  std::string Stored() const {
    return ReadRegistryValue(Copy.platform.registry, platform::HKeyCurrentUser, From.Key,
                             std::string(Row.ReadAs.empty() ? Row.Name : Row.ReadAs));
  }

  void operator()(const BoxState& state) const {
    const std::int16_t value = text::CInt(Stored());
    state.Box.In(Copy.windows).SetValue(value);
  }

  void operator()(SelectedSound /*unused*/) const {
    const std::string name = Stored();
    windows::FrmFrameNotification& panel = *Copy.windows.FrmFrameNotification;
    if (name.empty()) {
      panel.chkNS.SetValue(forms::Unchecked);
      return;
    }
    panel.cmbsound.SetText(name);
    panel.chkNS.SetValue(forms::Checked);
  }

  template <class Other>
  void operator()(const Other& /*unused*/) const {}
};

void LoadRow(Program& program, const Section& section, const Setting& row) {
  std::visit(Loader{program, section, row}, row.Save);
}

void LoadSection(Program& program, const Section& section) {
  if (IsMissing(program, section.Key, FilledMarker)) return;
  for (const Setting& row : section.Rows) {
    for (const Setting& earlier : section.Rows) {
      if (earlier.ReadBefore == row.Name) LoadRow(program, section, earlier);
    }
    if (row.ReadBefore.empty()) LoadRow(program, section, row);
  }
}

}  // namespace

void LoadBlockSettings(Program& program) { LoadSection(program, BlockSection); }

void LoadGeneralSettings(Program& program) { LoadSection(program, GeneralSection); }

}  // namespace vantrel::settings
