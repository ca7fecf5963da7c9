// The registry as one process sees it: the system's calls, over the shared tree, with this
// process's own table of open keys.
#ifndef VANTREL_PLATFORM_MEMORY_REGISTRYVIEW_H_
#define VANTREL_PLATFORM_MEMORY_REGISTRYVIEW_H_

#include <cstddef>
#include <map>
#include <memory>
#include <string>

#include "platform/Registry.h"
#include "platform/memory/RegistryTree.h"

namespace vantrel::platform::memory {

class RegistryView : public Registry {
 public:
  explicit RegistryView(RegistryTree& tree) : tree_(tree) {}

  // How many keys were opened and not closed.
  std::size_t OpenKeys() const { return open_.size(); }
  // From the root's short name on; empty for a handle that is not open.
  std::string PathOf(KeyHandle handle) const;

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

  RegistryTree& tree_;
  std::map<KeyHandle, OpenKey> open_;
  KeyHandle next_ = 0x100;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_REGISTRYVIEW_H_
