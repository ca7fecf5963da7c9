// Reads the allow list, the text file of sites on which the user lets some kinds of advertisement
// through. Only the position of a field counts, never the word before its "=".
#ifndef VANTREL_TESTS_SUPPORT_ENGINE_ALLOWLIST_H_
#define VANTREL_TESTS_SUPPORT_ENGINE_ALLOWLIST_H_

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Contract.h"

namespace vantrel::engine {

// One flag a kind, in the order of Kinds: true where the kind is allowed.
using AllowedKinds = std::array<bool, Kinds.size()>;

struct AllowedSite {
  std::string name;  // trimmed
  AllowedKinds allowed{};
};

// The records of the file's bytes, in order, whatever the bytes are: the list may be read while it
// is written. Reading ends at a blank line and at a line of fewer than seven fields. A flag other
// than "0" and "1" allows nothing.
std::vector<AllowedSite> ParseAllowList(std::string_view bytes);

// What the first record of that name allows, without regard to case and to blanks around it;
// nothing is allowed on a site that is not in the list. A record without a name is of no site.
AllowedKinds AllowedOn(const std::vector<AllowedSite>& sites, std::string_view name);

}  // namespace vantrel::engine

#endif  // VANTREL_TESTS_SUPPORT_ENGINE_ALLOWLIST_H_
