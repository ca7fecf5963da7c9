// The native console: the whole control panel on an in-memory Windows, driven by lines of text.
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <string>

#include "app/console/Session.h"
#include "app/console/State.h"
#include "app/console/Words.h"

namespace {

using namespace vantrel::console;

constexpr const char* Usage =
    "usage: vantrel-console [--state FILE] [--keep-going] [--echo] [SCRIPT]\n"
    "Reads commands, one a line, from SCRIPT or from standard input; 'help' lists them.\n"
    "docs/console.md explains them.\n";

struct Arguments {
  Options options;
  std::string state;
  std::string script;
};

// False for a wrong argument.
bool Parse(const Words& words, Arguments& arguments) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--state" && i + 1 < words.size()) {
      arguments.state = words[++i];
    } else if (words[i] == "--keep-going") {
      arguments.options.KeepGoing = true;
    } else if (words[i] == "--echo") {
      arguments.options.Echo = true;
    } else if (arguments.script.empty() && !words[i].starts_with("-")) {
      arguments.script = words[i];
    } else {
      return false;
    }
  }
  arguments.options.Prompt = arguments.script.empty() && isatty(STDIN_FILENO) != 0;
  return true;
}

int Run(const Arguments& arguments) {
  std::istringstream script;
  if (!arguments.script.empty()) script.str(ReadRealFile(arguments.script));
  std::istream& in = arguments.script.empty() ? std::cin : script;
  Session session(in, std::cout, arguments.options);
  const std::string& state = arguments.state;
  if (!state.empty() && std::filesystem::exists(state)) {
    session.Replace(WindowsFromState(ReadRealFile(state)));
  }
  const bool done = session.Run();
  if (!state.empty()) WriteRealFile(state, StateText(session.World()));
  return done ? 0 : 1;
}

}  // namespace

int main(int count, char** words) {
  Arguments arguments;
  const bool help = count == 2 && words[1] == std::string("--help");
  if (help || !Parse(Words(words + 1, words + count), arguments)) {
    std::fputs(Usage, help ? stdout : stderr);
    return help ? 0 : 2;
  }
  try {
    return Run(arguments);
  } catch (const CommandError& error) {
    std::cout.flush();
    std::cerr << "vantrel-console: " << error.what() << '\n';
    return 1;
  }
}
