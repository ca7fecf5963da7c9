// A value of somebody else's that a test changes: it is put back at the end, or removed if it was
// not there.
#ifndef VANTREL_TESTS_E2E_SUPPORT_KEPTVALUE_H_
#define VANTREL_TESTS_E2E_SUPPORT_KEPTVALUE_H_

#include <string>
#include <utility>

#include "support/RegistryView.h"

namespace vantrel::e2e {

class KeptValue {
 public:
  KeptValue(HKEY root, std::string key, std::string name)
      : root_(root),
        key_(std::move(key)),
        name_(std::move(name)),
        before_(Read(root, key_, name_)) {}
  KeptValue(const KeptValue&) = delete;
  KeptValue& operator=(const KeptValue&) = delete;
  ~KeptValue() {
    if (before_) {
      Write(root_, key_, name_, *before_);
    } else {
      DeleteValue(root_, key_, name_);
    }
  }

 private:
  HKEY root_;
  std::string key_;
  std::string name_;
  std::optional<StoredValue> before_;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_KEPTVALUE_H_
