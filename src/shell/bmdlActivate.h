// The sender's side of the command channel: the search for the hidden button of a running copy by
// its caption, and the delivery of one command to it.
#ifndef VANTREL_SHELL_BMDLACTIVATE_H_
#define VANTREL_SHELL_BMDLACTIVATE_H_

#include <string>

#include "program/Program.h"

namespace vantrel::shell {

// The caption by which senders find the button; it is absent while a command is delivered.
inline constexpr const char* ReadyForCommand = "Ready for command";

// A window's caption, at most 127 characters of it, empty for no window.
std::string GetWindowCaption(platform::Desktop& desktop, platform::WindowHandle window);

// The first child window on the desktop with exactly this caption, 0 if there is none. Top-level
// windows themselves are not compared. A process searches once: after a match, every further search
// gives that match again.
platform::WindowHandle FindWindowByCaption(program::Program& program, const std::string& caption);

// Brings a window forward, restoring it if it is minimised; nothing for handle 0.
void ActivateWindow(platform::Desktop& desktop, platform::WindowHandle window);

// Sends the command to the running copy and returns when that has carried it out. Without a
// receiver the command is lost, silently.
void SendCommand(program::Program& program, const std::string& command);

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_BMDLACTIVATE_H_
