// Keys and values of the registry as the console's user writes and reads them.
#ifndef VANTREL_APP_CONSOLE_REGISTRYTEXT_H_
#define VANTREL_APP_CONSOLE_REGISTRYTEXT_H_

#include <cstdint>
#include <string>
#include <vector>

#include "platform/memory/RegistryTree.h"

namespace vantrel::console {

struct KeyPath {
  platform::KeyHandle Root = 0;
  std::string Subkey;  // empty for the root itself
};

// "HKCU\Software" or "HKEY_CURRENT_USER\Software". CommandError for an unknown root, a name longer
// than a key's may be, or more than 512 levels.
KeyPath ParseKey(const std::string& text);

// The words name a type (string, expand, dword, binary, multi) and its data: one word each, but
// for the lines of a multi. CommandError if they do not fit.
platform::memory::RegistryValue ParseValue(const std::string& name, const std::string& type,
                                           const std::vector<std::string>& data);

// "dword 1", "string "Alert"", "binary 01 02". The program stores texts without a terminator; one
// that has it shows it, as \x00.
std::string ValueText(const platform::memory::RegistryValue& value);

// The key with all that is below it, a line each; empty if there is no such key.
std::string TreeText(const platform::memory::RegistryTree& registry, const KeyPath& key);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_REGISTRYTEXT_H_
