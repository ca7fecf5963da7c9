#include "settings/bmdlSave.h"

#include "settings/Schema.h"
#include "settings/WriteValue.h"
#include "settings/bmdlReg.h"

namespace vantrel::settings {
namespace {

using program::Program;

void SaveSection(Program& program, const Section& section) {
  if (IsMissing(program, section.Key, FilledMarker)) {
    CreateRegistryKey(program.platform.registry, platform::HKeyCurrentUser, section.Key);
  }
  for (const Setting& row : section.Rows) WriteValue(program, section.Key, row.Name, row.Save);
}

bool Guarded(Program& program, void (*save)(Program&)) {
  if (program.LoadingSettings) return true;
  try {
    save(program);
    return true;
  } catch (const text::RuntimeError& error) {
    program.ShowError(error);
    return false;
  }
}

}  // namespace

void SaveBlockSettings(Program& program) { SaveSection(program, BlockSection); }

void SaveGeneralSettings(Program& program) { SaveSection(program, GeneralSection); }

bool SaveBlockSettingsGuarded(Program& program) { return Guarded(program, SaveBlockSettings); }

bool SaveGeneralSettingsGuarded(Program& program) { return Guarded(program, SaveGeneralSettings); }

void SaveNotificationGuarded(Program& program) { SaveBlockSettingsGuarded(program); }

void SaveDisabled(Program& program) {
  WriteRegistryValue(program.platform.registry, platform::HKeyCurrentUser, BlockSection.Key,
                     DisabledValue, 1, platform::RegDword);
}

}  // namespace vantrel::settings
