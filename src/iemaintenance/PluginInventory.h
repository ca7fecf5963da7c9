// What has attached itself to Internet Explorer, from five places, as rows of one list. A row
// carries all that its removal needs.
#ifndef VANTREL_IEMAINTENANCE_PLUGININVENTORY_H_
#define VANTREL_IEMAINTENANCE_PLUGININVENTORY_H_

#include <cstdint>
#include <string>

#include "program/Program.h"

namespace vantrel::iemaintenance {

// The type code in a row's second column, by which a removal is chosen.
inline constexpr const char* TypeBho = "BHO";
inline constexpr const char* TypePlugins = "Plugins";
inline constexpr const char* TypeToolbar = "Toolbar";
inline constexpr const char* TypeMenuExt = "Menu Ext";
inline constexpr const char* TypeIEButton = "IEButton";

inline constexpr const char* HelperObjectsKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\";

// Fills the list anew. Each error is ignored where it occurs; one that belongs to this routine's
// own statements, as an unreadable plug-in folder does, is shown in a box at the end. Window
// messages run meanwhile.
void LoadPluginList(program::Program& program);

// Walk the subkeys of a key, whose path ends in a backslash, and add rows for them; `count` becomes
// the number of subkeys walked, 0 for a key that cannot be opened. Errors are ignored. SubKeyCount
// alone clears the list first, and only if the key can be opened: this is meant.
void SubKeyCount(program::Program& program, platform::KeyHandle root, const std::string& key,
                 std::int32_t& count);
void SubKeyCountMenuExt(program::Program& program, platform::KeyHandle root, const std::string& key,
                        std::int32_t& count);
void SubKeyCountButton(program::Program& program, platform::KeyHandle root, const std::string& key,
                       std::int32_t& count);

// The same walk for toolbars that are subkeys: the row's second column has the text "name", a third
// one, which the list does not show, the subkey's name. Nothing calls it.
void SubKeyCounttb(program::Program& program, platform::KeyHandle root, const std::string& key,
                   std::int32_t& count);

// Adds a row for each text or binary value of a key. The key is opened with no access at all, so
// that systems of the NT family refuse the first read and no row comes of it: this is meant.
void EnumToolbarValues(program::Program& program, platform::KeyHandle root, const std::string& key);

}  // namespace vantrel::iemaintenance

#endif  // VANTREL_IEMAINTENANCE_PLUGININVENTORY_H_
