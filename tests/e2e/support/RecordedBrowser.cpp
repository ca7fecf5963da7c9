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

std::vector<std::string> RecordedBrowser::Lines() const {
  std::vector<std::string> lines;
  std::ifstream file(path_, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    // A line that is still being written has no end yet.
    if (!line.empty() && line.back() == '\r') lines.push_back(line.substr(0, line.size() - 1));
  }
  return lines;
}

std::vector<std::string> RecordedBrowser::WaitForLines(std::size_t count, DWORD bound) {
  std::vector<std::string> lines;
  WaitFor(
      [&] {
        lines = Lines();
        return lines.size() >= count;
      },
      bound);
  WaitFor([&] { return DeleteFileA(path_.c_str()) != FALSE || lines.empty(); });
  return lines;
}

}  // namespace vantrel::e2e
