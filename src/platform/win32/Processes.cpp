#include "platform/Processes.h"

#include <windows.h>
// Behind windows.h, which it needs.
#include <shellapi.h>

#include "platform/win32/Adapters.h"
#include "platform/win32/Handle.h"

namespace vantrel::platform::win32 {
namespace {

// The command line's program and tail, where the application's path may stand unquoted in front.
CommandLineParts PartsOf(const std::string& application, const std::string& commandLine) {
  if (application.empty() || !commandLine.starts_with(application)) {
    return SplitCommandLine(commandLine);
  }
  return {application, SplitCommandLine(commandLine.substr(application.size())).tail};
}

std::int32_t StartThroughShell(const std::string& application, const std::string& commandLine,
                               int showCommand) {
  const CommandLineParts parts = PartsOf(application, commandLine);
  SHELLEXECUTEINFOA start{};
  start.cbSize = sizeof start;
  // A failure is the caller's to show: the shell would put a box of its own beside it.
  start.fMask = SEE_MASK_FLAG_NO_UI;
  start.lpFile = application.empty() ? parts.program.c_str() : application.c_str();
  start.lpParameters = parts.tail.c_str();
  start.nShow = showCommand;
  return ShellExecuteExA(&start) ? ErrorSuccess : LastError();
}

class ProcessesAdapter : public Processes {
 public:
  std::int32_t CreateProcessA(const std::string& application, const std::string& commandLine,
                              int showCommand) override {
    std::string line = commandLine;  // the system may write into it
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(showCommand);
    PROCESS_INFORMATION made{};
    if (::CreateProcessA(application.empty() ? nullptr : application.c_str(), line.data(), nullptr,
                         nullptr, FALSE, 0, nullptr, nullptr, &startup, &made)) {
      const KernelHandle process(made.hProcess);
      const KernelHandle thread(made.hThread);
      return ErrorSuccess;
    }
    const std::int32_t code = LastError();
    if (code != ErrorElevationRequired) return code;
    return StartThroughShell(application, commandLine, showCommand);
  }
};

}  // namespace

std::unique_ptr<Processes> MakeProcesses() { return std::make_unique<ProcessesAdapter>(); }

}  // namespace vantrel::platform::win32
