// The registry as one process sees it: the system's calls, over the shared tree, with this
// process's own table of open keys.
#ifndef VANTREL_PLATFORM_MEMORY_REGISTRYVIEW_H_
#define VANTREL_PLATFORM_MEMORY_REGISTRYVIEW_H_

#include <cstddef>
#include <map>
#include <memory>
#include <string>

#include "platform/Registry.h"
#include "platform/memory/CallGate.h"
#include "platform/memory/RegistryTree.h"

namespace vantrel::platform::memory {

class RegistryView : public Registry {
 public:
  RegistryView(RegistryTree& tree, CallGate& gate) : tree_(tree), gate_(gate) {}

  // How many keys were opened and not closed.
  std::size_t OpenKeys() const { return open_.size(); }

  std::int32_t RegOpenKeyExA(KeyHandle root, const std::string& subkey, std::uint32_t access,
                             KeyHandle& opened) override;
  std::int32_t RegOpenKeyA(KeyHandle root, const std::string& subkey, KeyHandle& opened) override;
  std::int32_t RegCreateKeyExA(KeyHandle root, const std::string& subkey, std::uint32_t access,
                               bool withSecurityRecord, KeyHandle& opened) override;
  std::int32_t RegQueryValueExA(KeyHandle key, const std::string& valueName, std::uint32_t& type,
                                std::span<char> buffer, std::uint32_t& length) override;
  std::int32_t RegSetValueExA(KeyHandle key, const std::string& valueName, std::uint32_t type,
                              std::string_view data) override;
  std::int32_t RegDeleteKeyA(KeyHandle root, const std::string& subkey) override;
  std::int32_t RegDeleteValueA(KeyHandle key, const std::string& valueName) override;
  std::int32_t RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                             std::string& name, std::uint32_t& type, std::uint32_t dataRoom,
                             std::string& data) override;
  std::int32_t RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                           std::string& name) override;
  std::int32_t RegCloseKey(KeyHandle key) override;

 private:
  struct OpenKey {
    std::shared_ptr<RegistryKey> key;
    std::uint32_t granted = 0;
  };

  // The open key of a handle, a predefined root's among them; no key for anything else.
  OpenKey Lookup(KeyHandle handle) const;
  // 0, or the code for a handle that is not open, whose key is gone or lacks the rights.
  std::int32_t Check(const OpenKey& open, std::uint32_t rights) const;
  // 0 and the key, or the code for a path that leads nowhere.
  std::int32_t Walk(KeyHandle root, const std::string& subkey,
                    std::shared_ptr<RegistryKey>& found) const;
  std::int32_t Grant(const std::shared_ptr<RegistryKey>& key, std::uint32_t access,
                     KeyHandle& opened);

  std::int32_t Open(KeyHandle root, const std::string& subkey, std::uint32_t access,
                    KeyHandle& opened);
  std::int32_t Create(KeyHandle root, const std::string& subkey, std::uint32_t access,
                      KeyHandle& opened);
  std::int32_t Query(KeyHandle key, const std::string& valueName, std::uint32_t& type,
                     std::span<char> buffer, std::uint32_t& length) const;
  std::int32_t Set(KeyHandle key, const std::string& valueName, std::uint32_t type,
                   std::string_view data) const;
  std::int32_t DeleteKey(KeyHandle root, const std::string& subkey) const;
  std::int32_t DeleteValue(KeyHandle key, const std::string& valueName) const;
  std::int32_t EnumValue(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                         std::string& name, std::uint32_t& type, std::uint32_t dataRoom,
                         std::string& data) const;
  std::int32_t EnumKey(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                       std::string& name) const;
  std::int32_t Close(KeyHandle key);

  // For the trace: the key's path, with the subkey if there is one.
  std::string Describe(KeyHandle handle, const std::string& subkey = {}) const;
  std::string DescribeValue(KeyHandle handle, const std::string& valueName) const;

  RegistryTree& tree_;
  CallGate& gate_;
  std::map<KeyHandle, OpenKey> open_;
  KeyHandle next_ = 0x100;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_REGISTRYVIEW_H_
