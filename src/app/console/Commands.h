// The console's commands: tables by subject, whose rows hold the name, what stands behind it, a
// line of help, how many words it takes, and the function that does it. Help and the document are
// made from them. A new command is one row and its function.
#ifndef VANTREL_APP_CONSOLE_COMMANDS_H_
#define VANTREL_APP_CONSOLE_COMMANDS_H_

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "app/console/Session.h"

namespace vantrel::console {

using Words = std::vector<std::string>;

inline constexpr std::size_t AnyNumber = 1000000;

// `Run` gets the words behind the name, as many as the row allows; CommandError if it cannot be
// done.
struct Command {
  const char* Name;       // one word, or two: a family and its member
  const char* Arguments;  // as help shows them
  const char* Help;
  std::size_t Least;  // how many words it takes
  std::size_t Most;
  void (*Run)(Session& session, const Words& words);
};

std::span<const Command> ProgramCommands();  // the program's life, and the console's
std::span<const Command> WindowCommands();   // its windows
std::span<const Command> WorldCommands();    // the Windows around it
std::span<const Command> StoreCommands();    // its registry and files

const std::vector<Command>& Commands();

// The words of a line and the command they name; the words behind the name are left.
struct Call {
  const Command* What = nullptr;
  Words Behind;
};

// CommandError for an unknown command and for too few or too many words. `words` is not empty.
Call FindCommand(const Words& words);

// The text of help: all commands, or the one that is named.
std::string HelpText(const Words& words);
// The tables as the document has them.
std::string HelpDocument();

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_COMMANDS_H_
