// The other readers of the registry: one value as text whatever its type, and all values of a key
// as a table. They serve foreign keys; the program's own settings go through bmdlReg.
#ifndef VANTREL_SETTINGS_BMDLREGAPI_H_
#define VANTREL_SETTINGS_BMDLREGAPI_H_

#include <string>
#include <vector>

#include "program/Program.h"

namespace vantrel::settings {

// The value's bytes but the last one, whatever its type; the empty text for a missing key or
// value, or data of fewer than 2 or more than 255 bytes. A refused close shows a critical box.
std::string ReadRegistryString(program::Program& program, platform::KeyHandle root,
                               const std::string& subkey, const std::string& valueName);

// One row of the table below. The data is a text without its last byte (RegSz), a signed number
// in decimal (RegDword), or the bytes as they are.
struct RegistryRow {
  std::string Name;
  std::string Data;
};

// The values of a key in the registry's order, up to the first that cannot be read; no rows for a
// missing key. With an empty subkey `root` is itself the open key to read.
std::vector<RegistryRow> EnumerateRegistryValues(platform::Registry& registry,
                                                 platform::KeyHandle root,
                                                 const std::string& subkey);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_BMDLREGAPI_H_
