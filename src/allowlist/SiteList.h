// The readers of the allow list's file: all its records into the panel's list, and the lookup of
// one site by its name. Both stop at the first blank line and at a line of fewer than seven fields.
#ifndef VANTREL_ALLOWLIST_SITELIST_H_
#define VANTREL_ALLOWLIST_SITELIST_H_

#include <string>

#include "program/Program.h"

namespace vantrel::allowlist {

// What a row shows for a flag.
inline constexpr const char* AllowedLabel = "Allowed";
inline constexpr const char* BlockedLabel = "Blocked";

// What an error does beside ending the load: nothing after an act on the panel, a box with its
// description when the panel is opened. This difference is meant.
enum class LoadFailure { IsSilent, ShowsBox };

// Fills the panel's list with the file's records, creating the file when missing, and hides the
// Welcome panel, which an empty file and an error do not. Rows read before an error stay.
void LoadAllowList(program::Program& program, LoadFailure failure);

// Looks for the site's first record, without regard to case and to blanks around the name, and
// leaves what it finds in the program's Site... variables. Creates the file when missing. Errors
// end the search, with what was set so far.
bool FindSiteRecord(program::Program& program, const std::string& name);

}  // namespace vantrel::allowlist

#endif  // VANTREL_ALLOWLIST_SITELIST_H_
