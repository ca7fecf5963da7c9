#include "settings/bmdlRegAPI.h"

#include "settings/RegistryConversions.h"

namespace vantrel::settings {
namespace {

using platform::ErrorSuccess;
using platform::KeyHandle;
using platform::Registry;

constexpr std::uint32_t TextRoom = 255;
constexpr std::uint32_t NameRoom = 260;
constexpr std::uint32_t DataRoom = 4096;
constexpr std::uint32_t LastIndex = 1000000;

std::string WithoutLast(std::string bytes) {
  if (!bytes.empty()) bytes.pop_back();
  return bytes;
}

// The first 254 or fewer bytes of a value that fits; the rest of the buffer are blanks.
std::string QueryText(Registry& registry, KeyHandle key, const std::string& valueName) {
  std::string buffer(TextRoom, ' ');
  std::uint32_t length = TextRoom;
  std::uint32_t type = 0;
  if (registry.RegQueryValueExA(key, valueName, type, buffer, length) != ErrorSuccess) return {};
  return WithoutLast(buffer.substr(0, length));
}

std::string RowData(std::uint32_t type, const std::string& data) {
  if (type == platform::RegSz) return WithoutLast(data);
  if (type == platform::RegDword) return std::to_string(NumberFromDwordBytes(data));
  return data;
}

std::vector<RegistryRow> RowsOf(Registry& registry, KeyHandle key) {
  std::vector<RegistryRow> rows;
  for (std::uint32_t index = 0; index <= LastIndex; ++index) {
    std::string name;
    std::string data;
    std::uint32_t type = 0;
    if (registry.RegEnumValueA(key, index, NameRoom, name, type, DataRoom, data) != ErrorSuccess) {
      break;
    }
    rows.push_back({name, RowData(type, data)});
  }
  return rows;
}

}  // namespace

std::string ReadRegistryString(program::Program& program, KeyHandle root, const std::string& subkey,
                               const std::string& valueName) {
  Registry& registry = program.platform.registry;
  KeyHandle key = 0;
  if (registry.RegOpenKeyA(root, subkey, key) != ErrorSuccess) return {};
  std::string text = QueryText(registry, key, valueName);
  if (registry.RegCloseKey(key) != ErrorSuccess) {
    program.MsgBox("RegCloseKey Failed: " + subkey, platform::StyleCritical);
  }
  return text;
}

std::vector<RegistryRow> EnumerateRegistryValues(Registry& registry, KeyHandle root,
                                                 const std::string& subkey) {
  if (subkey.empty()) return RowsOf(registry, root);
  KeyHandle key = 0;
  if (registry.RegOpenKeyExA(root, subkey, platform::KeyRead, key) != ErrorSuccess) return {};
  std::vector<RegistryRow> rows = RowsOf(registry, key);
  registry.RegCloseKey(key);
  return rows;
}

}  // namespace vantrel::settings
