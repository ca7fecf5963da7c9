// Command lines of any bytes: the program's name and the rest are what a plain cut gives.
#include <algorithm>

#include "fuzz/Fuzz.h"
#include "platform/win32/Adapters.h"

namespace {

using vantrel::fuzz::Check;
using vantrel::platform::win32::CommandLineParts;

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// The plain way: the first blank that an even number of quotes stands before ends the name.
std::size_t EndOfName(const std::string& line) {
  for (std::size_t end = 0; end < line.size(); ++end) {
    const auto quotes = std::count(line.begin(), line.begin() + static_cast<long>(end), '"');
    if (IsBlank(line[end]) && quotes % 2 == 0) return end;
  }
  return line.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string line(data, data + size);
  const CommandLineParts parts = vantrel::platform::win32::SplitCommandLine(line);
  const std::size_t end = EndOfName(line);
  std::string name = line.substr(0, end);
  std::erase(name, '"');
  std::string tail = line.substr(end);
  while (!tail.empty() && IsBlank(tail.front())) tail.erase(0, 1);
  Check(parts.program == name, "the name is the plain one's");
  Check(parts.tail == tail, "the rest is the plain one's");
  return 0;
}
