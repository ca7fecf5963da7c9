// The native console: the whole control panel on an in-memory Windows, driven by lines of text.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>

#include "app/console/Commands.h"
#include "app/console/Console.h"
#include "app/console/State.h"
#include "app/console/Words.h"

namespace {

using vantrel::console::CommandError;
using vantrel::console::Console;
using vantrel::console::ConsoleOptions;

constexpr const char* Usage =
    "usage: vantrel-console [--state FILE] [--keep-going] [--echo] [SCRIPT]\n"
    "       vantrel-console --commands\n"
    "\n"
    "Reads commands, one a line, from SCRIPT or from standard input; 'help' lists them.\n"
    "  --state FILE   begins with the registry, files and clock of FILE, if it exists, and\n"
    "                 leaves them there at the end\n"
    "  --keep-going   goes on behind a command that failed\n"
    "  --echo         prints each command before what comes of it\n"
    "  --commands     prints the table of commands as the document has it\n"
    "The exit code is 0, 1 if a command failed, 2 for a wrong argument.\n";

struct Arguments {
  ConsoleOptions options;
  std::string state;
  std::string script;
  bool help = false;
  bool commands = false;
};

std::optional<Arguments> Parse(int count, char** words) {
  Arguments arguments;
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    if (word == "--state" && i + 1 < count) {
      arguments.state = words[++i];
    } else if (word == "--keep-going") {
      arguments.options.KeepGoing = true;
    } else if (word == "--echo") {
      arguments.options.Echo = true;
    } else if (word == "--commands") {
      arguments.commands = true;
    } else if (word == "--help" || word == "-h") {
      arguments.help = true;
    } else if (arguments.script.empty() && !word.starts_with("-")) {
      arguments.script = word;
    } else {
      return std::nullopt;
    }
  }
  return arguments;
}

int RunWith(Console& console, const std::string& state) {
  using namespace vantrel::console;
  if (!state.empty() && std::filesystem::exists(state)) {
    console.TheSession().Replace(WindowsFromState(ReadRealFile(state)));
  }
  const bool done = console.Run();
  if (!state.empty()) WriteRealFile(state, StateText(console.TheSession().World()));
  return done ? 0 : 1;
}

int Run(const Arguments& arguments) {
  std::istringstream script;
  if (!arguments.script.empty()) script.str(vantrel::console::ReadRealFile(arguments.script));
  ConsoleOptions options = arguments.options;
  options.Prompt = arguments.script.empty() && isatty(STDIN_FILENO) != 0;
  std::istream& in = arguments.script.empty() ? std::cin : script;
  Console console(in, std::cout, options);
  return RunWith(console, arguments.state);
}

}  // namespace

int main(int count, char** words) {
  const std::optional<Arguments> arguments = Parse(count, words);
  if (!arguments || arguments->help) {
    std::fputs(Usage, arguments ? stdout : stderr);
    return arguments ? 0 : 2;
  }
  if (arguments->commands) {
    std::cout << vantrel::console::HelpDocument();
    return 0;
  }
  try {
    return Run(*arguments);
  } catch (const CommandError& error) {
    std::cout.flush();
    std::cerr << "vantrel-console: " << error.what() << '\n';
    return 1;
  }
}
