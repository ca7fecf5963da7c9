#include "settings/FirstRun.h"

#include "settings/Schema.h"
#include "settings/WriteValue.h"
#include "settings/bmdlReg.h"

namespace vantrel::settings {
namespace {

void FillIfMissing(program::Program& program, const Section& section) {
  if (!IsMissing(program, section.Key, section.Marker)) return;
  CreateRegistryKey(program.platform.registry, platform::HKeyCurrentUser, section.Key);
  for (const Setting& row : section.Rows) {
    WriteValue(program, section.Key, row.Name, row.FirstRun);
  }
  if (section.ResetsTotal) program.TotalBlocked = 0;
}

}  // namespace

void CheckAndCreateRegitry(program::Program& program) {
  CreateRegistryKey(program.platform.registry, platform::HKeyCurrentUser, RootKey);
  for (const Section& section : Sections) FillIfMissing(program, section);
}

}  // namespace vantrel::settings
