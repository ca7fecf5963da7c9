// The one writer of a value of the settings tree, for a first run as for a save.
#ifndef VANTREL_SETTINGS_WRITEVALUE_H_
#define VANTREL_SETTINGS_WRITEVALUE_H_

#include <string>

#include "settings/Schema.h"

namespace vantrel::settings {

// Writes the value from where it comes from: a number as REG_DWORD, a text under the type that the
// value has.
void WriteValue(program::Program& program, const std::string& key, const char* name,
                const Origin& origin);

// Whether the value reads as the empty text.
bool IsMissing(program::Program& program, const std::string& key, const char* name);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_WRITEVALUE_H_
