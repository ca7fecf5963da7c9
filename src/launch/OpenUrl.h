// The opening of pages and of the log file in the user's default browser, which is found in the
// registry and started as a process with a command line of its own.
#ifndef VANTREL_LAUNCH_OPENURL_H_
#define VANTREL_LAUNCH_OPENURL_H_

#include <string>

#include "launch/Targets.h"
#include "program/Program.h"

namespace vantrel::launch {

// The browser's program path in quotes, as its command has it: the command up to the first quote
// behind its first character. The empty text if there is no such quote or no command. An unquoted
// command with a quoted parameter gives a piece: what stands before the parameter, and its opening
// quote.
std::string GetDefaultBrowser(program::Program& program);

// Opens the target: a text that starts with "http" as it is, any other put in quotes, which the
// caller's text shows afterwards. A target shorter than 5 characters gets the message box. If the
// browser cannot be started, raises permission denied (70), path not found (76), or file not found
// (53) for every other reason.
void OpenUrl(program::Program& program, std::string& target);

// The same for a target of the tables.
void Open(program::Program& program, const Target& target);

// Opens the engine's log file, if it exists.
void OpenLogFile(program::Program& program);

}  // namespace vantrel::launch

#endif  // VANTREL_LAUNCH_OPENURL_H_
