#include "settings/bmdlReg.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "settings/OpenKey.h"
#include "settings/RegistryConversions.h"
#include "text/Numbers.h"

namespace vantrel::settings {
namespace {

using platform::ErrorFileNotFound;
using platform::ErrorSuccess;
using platform::KeyAllAccess;
using platform::KeyHandle;
using platform::RegDword;
using platform::Registry;
using platform::RegSz;

// A value as it lies in the store, read into a buffer of 1024 NUL bytes.
struct StoredValue {
  std::array<char, 1024> Buffer{};
  std::uint32_t Length = 1024;
  std::uint32_t Type = 0;
  std::int32_t Status;

  StoredValue(Registry& registry, KeyHandle key, const std::string& valueName)
      : Status(registry.RegQueryValueExA(key, valueName, Type, Buffer, Length)) {}

  std::string_view Whole() const { return {Buffer.data(), Buffer.size()}; }
  std::string_view Bytes() const { return Whole().substr(0, Length); }
};

// The bytes that an update stores under the value's type.
std::string UpdatedBytes(std::uint32_t type, const StoredValue& stored, const std::string& text) {
  if (type == RegSz) return text;
  if (type == RegDword) return DwordBytesByDivision(text::RoundToLong(text::DecimalVal(text)));
  // A value of another type is meant to get its own bytes back, at the buffer's full length.
  return std::string(stored.Whole());
}

}  // namespace

std::string ReadRegistryValue(Registry& registry, KeyHandle root, const std::string& subkey,
                              const std::string& valueName) {
  const OpenKey key(registry, root, subkey, KeyAllAccess);
  if (!key.Opened()) return {};
  const StoredValue stored(registry, key.Handle(), valueName);
  if (stored.Status != ErrorSuccess) return {};
  return TextFromStored(stored.Type, stored.Bytes());
}

void WriteRegistryValue(Registry& registry, KeyHandle root, const std::string& subkey,
                        const std::string& valueName, const RegistryData& value,
                        std::uint32_t type) {
  const OpenKey key(registry, root, subkey, KeyAllAccess);
  SetRegistryValueEx(registry, key.Handle(), valueName, type, value);
}

std::int32_t SetRegistryValueEx(Registry& registry, KeyHandle key, const std::string& valueName,
                                std::uint32_t type, const RegistryData& value) {
  if (type == RegSz) return registry.RegSetValueExA(key, valueName, type, AsText(value));
  if (type == RegDword) {
    return registry.RegSetValueExA(key, valueName, type, DwordBytes(AsNumber(value)));
  }
  return ErrorSuccess;
}

bool UpdateRegistryValue(Registry& registry, KeyHandle root, const std::string& subkey,
                         const std::string& valueName, const std::string& text) {
  const OpenKey key(registry, root, subkey, KeyAllAccess);
  if (!key.Opened()) return false;
  const StoredValue stored(registry, key.Handle(), valueName);
  const bool isNew = stored.Status == ErrorFileNotFound;
  if (!isNew && stored.Status != ErrorSuccess) return false;
  const std::uint32_t type = isNew ? RegSz : stored.Type;
  const std::string bytes = UpdatedBytes(type, stored, text);
  return registry.RegSetValueExA(key.Handle(), valueName, type, bytes) == ErrorSuccess;
}

void CreateRegistryKey(Registry& registry, KeyHandle root, const std::string& subkey) {
  KeyHandle created = 0;
  registry.RegCreateKeyExA(root, subkey, KeyAllAccess, true, created);
  registry.RegCloseKey(created);
}

void DeleteRegistryKey(Registry& registry, KeyHandle root, const std::string& subkey) {
  registry.RegDeleteKeyA(root, subkey);
}

void DeleteRegistryValue(Registry& registry, KeyHandle root, const std::string& subkey,
                         const std::string& valueName) {
  const OpenKey key(registry, root, subkey, KeyAllAccess);
  registry.RegDeleteValueA(key.Handle(), valueName);
}

}  // namespace vantrel::settings
