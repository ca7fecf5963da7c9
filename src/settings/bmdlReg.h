// The program's own thin layer over the registry: callers talk in text, the empty text is the only
// sign of a missing value, and failures are silent. Each operation opens the key, does its work
// and closes it again, on every path; nothing is kept between two calls.
#ifndef VANTREL_SETTINGS_BMDLREG_H_
#define VANTREL_SETTINGS_BMDLREG_H_

#include <cstdint>
#include <string>

#include "platform/Registry.h"
#include "settings/RegistryData.h"

namespace vantrel::settings {

// The value as text: a REG_SZ without one trailing NUL, a REG_DWORD in decimal; the empty text for
// a missing key or value, data over 1024 bytes, or any other type. Error 5 for a value of zero
// bytes; errors 6 and 13 for a REG_DWORD whose bytes make no 32-bit number.
std::string ReadRegistryValue(platform::Registry& registry, platform::KeyHandle root,
                              const std::string& subkey, const std::string& valueName);

// Stores the value in an existing key under the type, RegSz without a terminator or RegDword; any
// other type writes nothing. Creates no key and reports no failure. Errors 6 and 13 for a text
// that is no 32-bit number under RegDword.
void WriteRegistryValue(platform::Registry& registry, platform::KeyHandle root,
                        const std::string& subkey, const std::string& valueName,
                        const RegistryData& value, std::uint32_t type);

// The write of the operation above on a key that is open; the status of the write, 0 if the type
// was neither RegSz nor RegDword.
std::int32_t SetRegistryValueEx(platform::Registry& registry, platform::KeyHandle key,
                                const std::string& valueName, std::uint32_t type,
                                const RegistryData& value);

// Writes a text into a value of an existing key, keeping the type that the value has: RegSz
// (without a terminator) for a new one, the text's numeric reading for RegDword (error 6 beyond 32
// bits); a value of any other type gets back what it held, filled up to 1024 bytes. False if the
// key is missing, the value is longer than 1024 bytes or the write was refused.
bool UpdateRegistryValue(platform::Registry& registry, platform::KeyHandle root,
                         const std::string& subkey, const std::string& valueName,
                         const std::string& text);

// Creates the key and its missing parents.
void CreateRegistryKey(platform::Registry& registry, platform::KeyHandle root,
                       const std::string& subkey);

// Deletes a key that has no subkeys.
void DeleteRegistryKey(platform::Registry& registry, platform::KeyHandle root,
                       const std::string& subkey);

void DeleteRegistryValue(platform::Registry& registry, platform::KeyHandle root,
                         const std::string& subkey, const std::string& valueName);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_BMDLREG_H_
