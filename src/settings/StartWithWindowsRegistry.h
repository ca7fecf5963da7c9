// The registry calls of the start-with-Windows entry alone: they open with the short access mask,
// store a text with its terminator, and report failures in boxes.
#ifndef VANTREL_SETTINGS_STARTWITHWINDOWSREGISTRY_H_
#define VANTREL_SETTINGS_STARTWITHWINDOWSREGISTRY_H_

#include <string>

#include "program/Program.h"
#include "settings/bmdlReg.h"

namespace vantrel::settings {

// Creates the key below a root or an open key; an empty subkey is that key itself.
void CreateRunKey(platform::Registry& registry, const std::string& subkey,
                  platform::KeyHandle rootOrKey);

// Stores the value as RegSz with a terminator or as RegDword. A failed open and a failed write
// each show a plain box with the system's code; the write is tried all the same.
void SetRunValue(program::Program& program, platform::KeyHandle root, const std::string& subkey,
                 const std::string& valueName, const RegistryData& value, std::uint32_t type);

// The write of the operation above on an open key: its status, 0 for any other type.
std::int32_t SetRunValueEx(platform::Registry& registry, platform::KeyHandle key,
                           const std::string& valueName, std::uint32_t type,
                           const RegistryData& value);

void DeleteRunValue(platform::Registry& registry, platform::KeyHandle root,
                    const std::string& subkey, const std::string& valueName);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_STARTWITHWINDOWSREGISTRY_H_
