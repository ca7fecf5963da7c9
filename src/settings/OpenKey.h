// A key that is closed at the end of its operation, whichever way that ends.
#ifndef VANTREL_SETTINGS_OPENKEY_H_
#define VANTREL_SETTINGS_OPENKEY_H_

#include <string>

#include "platform/Registry.h"

namespace vantrel::settings {

// Opens the key at once. A failed open leaves the handle 0, which is closed all the same: the
// close is a part of each operation's sequence of calls.
class OpenKey {
 public:
  OpenKey(platform::Registry& registry, platform::KeyHandle root, const std::string& subkey,
          std::uint32_t access)
      : registry_(registry), status_(registry.RegOpenKeyExA(root, subkey, access, handle_)) {}
  ~OpenKey() { registry_.RegCloseKey(handle_); }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;

  // 0 or the system error code of the open.
  std::int32_t Status() const { return status_; }
  bool Opened() const { return status_ == platform::ErrorSuccess; }
  platform::KeyHandle Handle() const { return handle_; }

 private:
  platform::Registry& registry_;
  platform::KeyHandle handle_ = 0;
  std::int32_t status_;
};

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_OPENKEY_H_
