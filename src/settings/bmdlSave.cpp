#include "settings/bmdlSave.h"

#include <span>

#include "settings/Schema.h"
#include "settings/WriteValue.h"
#include "settings/bmdlReg.h"

namespace vantrel::settings {
namespace {

using program::Program;

void SaveKey(Program& program, const std::string& key, std::span<const ValueRow> rows) {
  if (IsMissing(program, key, FilledMarker)) {
    CreateRegistryKey(program.platform.registry, platform::HKeyCurrentUser, key);
  }
  for (const ValueRow& row : rows) WriteValue(program, key, row.Name, row.Save);
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

void SaveBlockSettings(Program& program) { SaveKey(program, BlockSettingsKey, BlockSettingsRows); }

void SaveGeneralSettings(Program& program) { SaveKey(program, SettingsKey, SettingsRows); }

bool SaveBlockSettingsGuarded(Program& program) { return Guarded(program, SaveBlockSettings); }

bool SaveGeneralSettingsGuarded(Program& program) { return Guarded(program, SaveGeneralSettings); }

void SaveNotificationGuarded(Program& program) { SaveBlockSettingsGuarded(program); }

}  // namespace vantrel::settings
