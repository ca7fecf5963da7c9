// The product name of a library, found by its bytes in the layout of a version resource, without
// any version service of the system. Positions are bytes; no character set is involved.
#ifndef VANTREL_FILEUTIL_MODFILEINFO_H_
#define VANTREL_FILEUTIL_MODFILEINFO_H_

#include <string>
#include <string_view>

#include "program/Program.h"

namespace vantrel::fileutil {

// The key as it stands behind a type word of 1 in 16-bit text: the bytes 1 and 0, then each
// character's low and high byte without the last high byte. Empty for an empty key.
std::string WidenKey(std::string_view key);

// Replaces the first occurrence as long as there is one; the replacement must not contain what is
// looked for.
std::string ReplaceAll(std::string text, std::string_view find, std::string_view replacement);

// The value of the first "ProductName" behind the first "StringFileInfo" of the file, 16-bit text
// before 8-bit text, up to three zero bytes and without its zeros; empty if there is none or the
// file cannot be read. A value that runs on into "ProductVersion" ends one character before the
// first control character, which raises Program::ProductNameFallbacks; that the character in front
// of it is lost too is meant.
std::string GetProductName(program::Program& program, const std::string& path);

}  // namespace vantrel::fileutil

#endif  // VANTREL_FILEUTIL_MODFILEINFO_H_
