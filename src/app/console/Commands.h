// The console's commands: tables by subject, whose rows hold the name, what stands behind it, a
// line of help, and the function that does it. The check of a line, the help and the document are
// made from them. A new command is one row.
#ifndef VANTREL_APP_CONSOLE_COMMANDS_H_
#define VANTREL_APP_CONSOLE_COMMANDS_H_

#include <span>
#include <string>
#include <vector>

#include "app/console/Session.h"
#include "app/console/Words.h"

namespace vantrel::console {

struct Command {
  const char* Name;  // one word, or two: a family and its member
  // One word each, "A|B" for one or the other; in brackets at the end those that may be missing;
  // "..." at last for any number more. Help shows them so.
  const char* Arguments;
  const char* Help;
  // Gets the words behind the name, as many as there may be; CommandError if it cannot be done.
  void (*Run)(Session& session, const Words& words);
};

std::span<const Command> ProgramCommands();  // the program's life, the console's, and Windows'
std::span<const Command> WindowCommands();   // the program's windows
std::span<const Command> StoreCommands();    // registry and files

const std::vector<Command>& Commands();

// Does what the line's words say, of which there is one at least. CommandError for an unknown
// command, for too few or too many words, and if it cannot be done.
void RunCommand(Session& session, const Words& words);

// The text of help: all commands, or those that have this first word in common.
std::string HelpText(const Words& words);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_COMMANDS_H_
