#include "support/RecordedBrowser.h"

#include <fstream>

#include "support/Folders.h"
#include "support/Running.h"

namespace vantrel::e2e {
namespace {

constexpr const char* CommandKey = "http\\shell\\open\\command";
constexpr const char* RecordVariable = "VANTREL_RECORD";

}  // namespace

RecordedBrowser::RecordedBrowser(const std::string& command)
    : command_(HKEY_CLASSES_ROOT, CommandKey, ""), path_(TemporaryFolder() + "browser.txt") {
  // The program and what it starts inherit the variable.
  SetEnvironmentVariableA(RecordVariable, path_.c_str());
  DeleteFileA(path_.c_str());
  const std::string text = command.empty() ? Program() + " -new \"%1\"" : command;
  // With its terminator, as everybody else stores it.
  Write(HKEY_CLASSES_ROOT, CommandKey, "", Text(text + '\0'));
}

RecordedBrowser::~RecordedBrowser() {
  SetEnvironmentVariableA(RecordVariable, nullptr);
  DeleteFileA(path_.c_str());
}

std::string RecordedBrowser::Program() { return '"' + HelperPath("recording-browser.exe") + '"'; }

std::vector<BrowserStart> RecordedBrowser::Starts() const {
  std::vector<BrowserStart> starts;
  std::ifstream file(path_, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    // A line that is still being written has no end yet.
    if (line.empty() || line.back() != '\r') continue;
    const std::size_t blank = line.find(' ');
    starts.push_back({line.substr(0, blank), line.substr(blank + 1, line.size() - blank - 2)});
  }
  return starts;
}

std::vector<BrowserStart> RecordedBrowser::WaitForStarts(std::size_t count, DWORD bound) {
  std::vector<BrowserStart> starts;
  WaitFor(
      [&] {
        starts = Starts();
        return starts.size() >= count;
      },
      bound);
  WaitFor([&] { return DeleteFileA(path_.c_str()) != FALSE || starts.empty(); });
  return starts;
}

std::vector<std::string> RecordedBrowser::WaitForLines(std::size_t count, DWORD bound) {
  std::vector<std::string> lines;
  for (const BrowserStart& start : WaitForStarts(count, bound)) lines.push_back(start.commandLine);
  return lines;
}

}  // namespace vantrel::e2e
