// What adding a record finds out about the file before it: whether the name is taken, and the new
// record's number. The scan goes over the lines in pairs and looks at the first of each alone; the
// second only decides whether the first is looked at. So a name on an even line can be added again,
// and the numbers run 1, 2, 2, 3, 3: this is meant, the numbers in existing files rest on it.
//
// The scan's state is kept, so that what is appended costs no second scan of what stands before it.
#ifndef VANTREL_ALLOWLIST_SITESCAN_H_
#define VANTREL_ALLOWLIST_SITESCAN_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace vantrel::allowlist {

class SiteScan {
 public:
  // The file is empty, or goes on with these bytes.
  void Take(std::string_view bytes);

  // The number of a record of this name, were it added now; absent where it is not to be added: the
  // name stands on a line that is looked at, or such a line has no field or an impossible number.
  std::optional<std::int32_t> NumberFor(std::string_view name) const;

 private:
  void TakePair(std::string_view first, std::string_view second);

  std::int32_t next_ = 1;                  // by the whole pairs so far
  std::unordered_set<std::string> names_;  // of the whole pairs, trimmed and in lower case
  bool failed_ = false;
  std::string tail_;  // the bytes behind the last whole pair
};

}  // namespace vantrel::allowlist

#endif  // VANTREL_ALLOWLIST_SITESCAN_H_
