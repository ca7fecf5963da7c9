#include <cstddef>

#include "platform/win32/Adapters.h"

namespace vantrel::platform::win32 {

CommandLineParts SplitCommandLine(const std::string& commandLine) {
  CommandLineParts parts;
  bool quoted = false;
  std::size_t at = 0;
  for (; at < commandLine.size(); ++at) {
    const char c = commandLine[at];
    if (!quoted && (c == ' ' || c == '\t')) break;
    if (c == '"') {
      quoted = !quoted;
    } else {
      parts.program.push_back(c);
    }
  }
  const std::size_t tail = commandLine.find_first_not_of(" \t", at);
  if (tail != std::string::npos) parts.tail = commandLine.substr(tail);
  return parts;
}

}  // namespace vantrel::platform::win32
