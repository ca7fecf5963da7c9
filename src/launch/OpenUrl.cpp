#include "launch/OpenUrl.h"

#include "settings/bmdlRegAPI.h"
#include "text/RuntimeError.h"
#include "text/Strings.h"

namespace vantrel::launch {
namespace {

constexpr const char* InvalidBrowser = "Invalid";
constexpr std::size_t ShortestTarget = 5;

// The error of the program's language for a process that did not start.
text::ErrorNumber StartError(std::int32_t systemError) {
  switch (systemError) {
    case platform::ErrorAccessDenied:
      return text::ErrorNumber::PermissionDenied;
    case platform::ErrorPathNotFound:
      return text::ErrorNumber::PathNotFound;
    default:
      return text::ErrorNumber::FileNotFound;
  }
}

void Run(program::Program& program, const std::string& commandLine) {
  const std::int32_t result =
      program.platform.processes.CreateProcessA("", commandLine, platform::ShowNormal);
  if (result != platform::ErrorSuccess) throw text::RuntimeError(StartError(result));
}

bool HasScheme(const std::string& target) { return text::LowerCase(target.substr(0, 4)) == "http"; }

// A text with just one quote, at either end, stays as it is.
void QuoteUnlessQuoted(std::string& target) {
  if (target.front() != '"' && target.back() != '"') target = '"' + target + '"';
}

}  // namespace

std::string GetDefaultBrowser(program::Program& program) {
  const auto rows = settings::EnumerateRegistryValues(
      program.platform.registry, platform::HKeyClassesRoot, "http\\shell\\open\\command");
  // The first value counts, whatever its name.
  const std::string command = rows.empty() ? std::string() : rows.front().Data;
  const auto closingQuote = command.find('"', 1);
  return closingQuote == std::string::npos ? std::string() : command.substr(0, closingQuote + 1);
}

void OpenUrl(program::Program& program, std::string& target) {
  const std::string browser = GetDefaultBrowser(program);
  if (browser == InvalidBrowser || target.size() < ShortestTarget) {
    program.MsgBox("Unable to open URL. Install browser first!");
    return;
  }
  if (HasScheme(target)) {
    Run(program, browser + ' ' + target);
    return;
  }
  QuoteUnlessQuoted(target);
  Run(program, browser + ' ' + target);
  program.DoEvents();  // on the quoted route only; this is meant
}

void Open(program::Program& program, const Target& target) {
  std::string address = AddressOf(program, target);
  OpenUrl(program, address);
}

void OpenLogFile(program::Program& program) {
  if (!program.platform.files.FileExists(program.PathOf("\\Settings\\log.txt"))) return;
  // The browser gets the other spelling; this is meant.
  Open(program, {Base::ProgramFolder, "/Settings/Log.txt"});
}

}  // namespace vantrel::launch
