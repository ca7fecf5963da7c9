// The opening of pages and of the log file in the user's default browser, which is found in the
// registry and started as a process with a command line of its own.
#ifndef VANTREL_SHELL_LAUNCH_OPENURL_H_
#define VANTREL_SHELL_LAUNCH_OPENURL_H_

#include <string>

#include "program/Program.h"
#include "shell/launch/Targets.h"

namespace vantrel::launch {

// The browser's program path in quotes; the empty text if its command is missing or not quoted.
std::string GetDefaultBrowser(program::Program& program);

// Opens the target: a text that starts with "http" as it is, any other put in quotes, which the
// caller's text shows afterwards. A target shorter than 5 characters gets the message box. Raises
// file not found (53) or permission denied (70) if the browser cannot be started.
void OpenUrl(program::Program& program, std::string& target);

// The same for a target of the tables.
void Open(program::Program& program, const Target& target);

// Opens the engine's log file, if it exists.
void OpenLogFile(program::Program& program);

}  // namespace vantrel::launch

#endif  // VANTREL_SHELL_LAUNCH_OPENURL_H_
