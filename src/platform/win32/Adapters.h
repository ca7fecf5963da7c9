// The factories of the single families, and what two of them share.
#ifndef VANTREL_PLATFORM_WIN32_ADAPTERS_H_
#define VANTREL_PLATFORM_WIN32_ADAPTERS_H_

#include <memory>
#include <string>

#include "platform/Platform.h"

namespace vantrel::platform::win32 {

std::unique_ptr<Registry> MakeRegistry();
std::unique_ptr<Desktop> MakeDesktop();
std::unique_ptr<Shell> MakeShell();
std::unique_ptr<Files> MakeFiles();
std::unique_ptr<Processes> MakeProcesses();
std::unique_ptr<Sound> MakeSound();
std::unique_ptr<Dialogs> MakeDialogs();
std::unique_ptr<System> MakeSystem();
std::unique_ptr<Modules> MakeModules();
std::unique_ptr<Folders> MakeFolders();
std::unique_ptr<BinaryFiles> MakeBinaryFiles();

// A command line's program, without its quotes, and what stands behind it and the blanks after it.
struct CommandLineParts {
  std::string program;
  std::string tail;
};
CommandLineParts SplitCommandLine(const std::string& commandLine);

}  // namespace vantrel::platform::win32

#endif  // VANTREL_PLATFORM_WIN32_ADAPTERS_H_
