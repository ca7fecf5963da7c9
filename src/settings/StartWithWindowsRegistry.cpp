#include "settings/StartWithWindowsRegistry.h"

#include "settings/OpenKey.h"
#include "settings/RegistryConversions.h"

namespace vantrel::settings {

using platform::ErrorSuccess;
using platform::KeyHandle;
using platform::KeyShortAccess;
using platform::Registry;

void CreateRunKey(Registry& registry, const std::string& subkey, KeyHandle rootOrKey) {
  KeyHandle created = 0;
  registry.RegCreateKeyExA(rootOrKey, subkey, KeyShortAccess, false, created);
  registry.RegCloseKey(created);
}

void SetRunValue(program::Program& program, KeyHandle root, const std::string& subkey,
                 const std::string& valueName, const RegistryData& value, std::uint32_t type) {
  Registry& registry = program.platform.registry;
  const OpenKey key(registry, root, subkey, KeyShortAccess);
  if (!key.Opened()) program.MsgBox("RegOpenKey error - " + std::to_string(key.Status()));
  const std::int32_t status = SetRunValueEx(registry, key.Handle(), valueName, type, value);
  if (status != ErrorSuccess) program.MsgBox("SetValue error - " + std::to_string(status));
}

std::int32_t SetRunValueEx(Registry& registry, KeyHandle key, const std::string& valueName,
                           std::uint32_t type, const RegistryData& value) {
  if (type == platform::RegSz) {
    return registry.RegSetValueExA(key, valueName, type, AsText(value) + '\0');
  }
  if (type == platform::RegDword) {
    return registry.RegSetValueExA(key, valueName, type, DwordBytes(AsNumber(value)));
  }
  return ErrorSuccess;
}

void DeleteRunValue(Registry& registry, KeyHandle root, const std::string& subkey,
                    const std::string& valueName) {
  const OpenKey key(registry, root, subkey, KeyShortAccess);
  registry.RegDeleteValueA(key.Handle(), valueName);
}

}  // namespace vantrel::settings
