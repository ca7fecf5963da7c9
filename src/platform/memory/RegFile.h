// Registration files, as the registry editor writes and reads them: "REGEDIT4" in 8-bit text and
// "Windows Registry Editor Version 5.00" in UTF-16. Any bytes may be imported.
#ifndef VANTREL_PLATFORM_MEMORY_REGFILE_H_
#define VANTREL_PLATFORM_MEMORY_REGFILE_H_

#include <string>
#include <string_view>

#include "platform/memory/RegistryTree.h"

namespace vantrel::platform::memory {

enum class RegFormat { Regedit4, Version5 };

// Merges the file into the registry. Lines that cannot be read are skipped. False, and nothing is
// changed, if the bytes do not begin as a registration file does.
bool ImportReg(RegistryTree& registry, std::string_view bytes);

// The key with all that is below; empty if it does not exist. As in the system, a text without a
// terminator comes back from an import with one.
std::string ExportReg(const RegistryTree& registry, KeyHandle root, const std::string& subkey,
                      RegFormat format = RegFormat::Version5);

// The system code page (1252) and UTF-16, low byte first. What has no byte becomes '?'.
std::string ToUtf16(std::string_view text);
std::string FromUtf16(std::string_view bytes);

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_REGFILE_H_
