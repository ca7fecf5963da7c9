#include "platform/Registry.h"

#include <windows.h>

#include <algorithm>
#include <vector>

#include "platform/win32/Adapters.h"

namespace vantrel::platform::win32 {
namespace {

// Handles of keys have 32 significant bits and are extended by their sign.
HKEY ToKey(KeyHandle handle) {
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<std::int32_t>(handle)));
}

KeyHandle FromKey(HKEY key) {
  return static_cast<KeyHandle>(reinterpret_cast<ULONG_PTR>(key) & 0xFFFFFFFFU);
}

class RegistryAdapter : public Registry {
 public:
  std::int32_t RegOpenKeyExA(KeyHandle root, const std::string& subkey, std::uint32_t access,
                             KeyHandle& opened) override {
    HKEY key = nullptr;
    const LONG code = ::RegOpenKeyExA(ToKey(root), subkey.c_str(), 0, access, &key);
    if (code == ERROR_SUCCESS) opened = FromKey(key);
    return code;
  }

  std::int32_t RegOpenKeyA(KeyHandle root, const std::string& subkey, KeyHandle& opened) override {
    HKEY key = nullptr;
    const LONG code = ::RegOpenKeyA(ToKey(root), subkey.c_str(), &key);
    if (code == ERROR_SUCCESS) opened = FromKey(key);
    return code;
  }

  std::int32_t RegCreateKeyExA(KeyHandle root, const std::string& subkey, std::uint32_t access,
                               bool withSecurityRecord, KeyHandle& opened) override {
    // Zeroed but for its length, without which the system refuses it: the default rights.
    SECURITY_ATTRIBUTES security{};
    security.nLength = sizeof security;
    HKEY key = nullptr;
    const LONG code = ::RegCreateKeyExA(ToKey(root), subkey.c_str(), 0, nullptr, 0, access,
                                        withSecurityRecord ? &security : nullptr, &key, nullptr);
    if (code == ERROR_SUCCESS) opened = FromKey(key);
    return code;
  }

  std::int32_t RegQueryValueExA(KeyHandle key, const std::string& valueName, std::uint32_t& type,
                                std::span<char> buffer, std::uint32_t& length) override {
    DWORD found = 0;
    DWORD bytes = length;
    const LONG code = ::RegQueryValueExA(ToKey(key), valueName.c_str(), nullptr, &found,
                                         reinterpret_cast<BYTE*>(buffer.data()), &bytes);
    if (code != ERROR_SUCCESS && code != ERROR_MORE_DATA) return code;
    type = found;
    length = bytes;
    return code;
  }

  std::int32_t RegSetValueExA(KeyHandle key, const std::string& valueName, std::uint32_t type,
                              std::string_view data) override {
    // The system counts in a terminator that lies behind the data: a guard byte keeps it away.
    std::string guarded(data);
    guarded.push_back('\x01');
    return ::RegSetValueExA(ToKey(key), valueName.c_str(), 0, type,
                            reinterpret_cast<const BYTE*>(guarded.data()),
                            static_cast<DWORD>(data.size()));
  }

  std::int32_t RegDeleteKeyA(KeyHandle root, const std::string& subkey) override {
    return ::RegDeleteKeyA(ToKey(root), subkey.c_str());
  }

  std::int32_t RegDeleteValueA(KeyHandle key, const std::string& valueName) override {
    return ::RegDeleteValueA(ToKey(key), valueName.c_str());
  }

  std::int32_t RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                             std::string& name, std::uint32_t& type, std::uint32_t dataRoom,
                             std::string& data) override {
    std::string names(nameRoom, '\0');
    std::string bytes(dataRoom, '\0');
    DWORD nameLength = nameRoom;
    DWORD dataLength = dataRoom;
    DWORD found = 0;
    const LONG code = ::RegEnumValueA(ToKey(key), index, names.data(), &nameLength, nullptr, &found,
                                      reinterpret_cast<BYTE*>(bytes.data()), &dataLength);
    if (code != ERROR_SUCCESS) return code;
    name = names.substr(0, nameLength);
    data = bytes.substr(0, dataLength);
    type = found;
    return code;
  }

  std::int32_t RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                           std::string& name) override {
    std::string names(nameRoom, '\0');
    const LONG code = ::RegEnumKeyA(ToKey(key), index, names.data(), nameRoom);
    if (code == ERROR_SUCCESS) name = names.c_str();
    return code;
  }

  std::int32_t RegCloseKey(KeyHandle key) override { return ::RegCloseKey(ToKey(key)); }
};

}  // namespace

std::unique_ptr<Registry> MakeRegistry() { return std::make_unique<RegistryAdapter>(); }

}  // namespace vantrel::platform::win32
