#include "settings/WriteValue.h"

#include "settings/bmdlReg.h"
#include "windows/FrmFrameNotification.h"

namespace vantrel::settings {
namespace {

using platform::HKeyCurrentUser;

// Writes one value; one function a kind of origin.
struct Writer {
  program::Program& Program;
  const std::string& Key;
  const char* Name;

  void WriteNumber(std::int32_t number) const {
    WriteRegistryValue(Program.platform.registry, HKeyCurrentUser, Key, Name, number,
                       platform::RegDword);
  }
  void UpdateText(const std::string& text) const {
    UpdateRegistryValue(Program.platform.registry, HKeyCurrentUser, Key, Name, text);
  }

  void operator()(Nothing /*unused*/) const {}
  void operator()(Number number) const { WriteNumber(number.Value); }
  void operator()(TextValue text) const { UpdateText(text.Text); }
  void operator()(const BoxState& state) const {
    WriteNumber(state.Box.In(Program.windows).Value());
  }
  void operator()(const NumberThenTick& row) const {
    WriteNumber(row.Value);
    row.Box.In(Program.windows).SetValue(forms::Checked);
  }
  void operator()(SelectedSound /*unused*/) const {
    UpdateText(Program.windows.FrmFrameNotification->cmbsound.Text());
  }
  void operator()(DisabledFlag /*unused*/) const { WriteNumber(Program.BlockingActive ? 0 : 1); }
};

}  // namespace

void WriteValue(program::Program& program, const std::string& key, const char* name,
                const Origin& origin) {
  std::visit(Writer{program, key, name}, origin);
}

bool IsMissing(program::Program& program, const std::string& key, const char* name) {
  return ReadRegistryValue(program.platform.registry, HKeyCurrentUser, key, name).empty();
}

}  // namespace vantrel::settings
