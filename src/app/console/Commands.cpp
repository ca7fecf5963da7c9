#include "app/console/Commands.h"

#include <algorithm>
#include <cstddef>

namespace vantrel::console {
namespace {

std::string FirstWord(const Command& command) { return SplitWords(command.Name).front(); }
std::string LastWord(const Command& command) { return SplitWords(command.Name).back(); }

// The commands that share the first word of their name; they stand together.
std::span<const Command> FamilyOf(const std::string& word) {
  const std::size_t place = PickName("command", word, Texts(Commands(), FirstWord));
  const auto first = Commands().begin() + static_cast<std::ptrdiff_t>(place);
  return {first, std::find_if(first, Commands().end(), [&first](const Command& command) {
            return FirstWord(command) != FirstWord(*first);
          })};
}

std::string Usage(const Command& command) {
  const std::string arguments = command.Arguments;
  return command.Name + (arguments.empty() ? "" : " " + arguments);
}

bool Takes(const Command& command, std::size_t count) {
  Words arguments = SplitWords(command.Arguments);
  const bool anyMore = !arguments.empty() && arguments.back().starts_with("...");
  if (anyMore) arguments.pop_back();
  const auto optional = std::find_if(arguments.begin(), arguments.end(),
                                     [](const std::string& word) { return word.front() == '['; });
  return count >= static_cast<std::size_t>(optional - arguments.begin()) &&
         (anyMore || count <= arguments.size());
}

}  // namespace

const std::vector<Command>& Commands() {
  static std::vector<Command> all;
  if (!all.empty()) return all;
  for (const auto table : {ProgramCommands, WindowCommands, StoreCommands}) {
    all.insert(all.end(), table().begin(), table().end());
  }
  return all;
}

void RunCommand(Session& session, const Words& words) {
  const std::span<const Command> family = FamilyOf(words.front());
  const Command* found = &family.front();
  const std::size_t nameWords = SplitWords(found->Name).size();
  if (nameWords > 1) {
    const std::string member = words.size() > 1 ? words[1] : std::string();
    found = &family[PickName(FirstWord(*found) + " command", member, Texts(family, LastWord))];
  }
  const Words behind(words.begin() + static_cast<std::ptrdiff_t>(nameWords), words.end());
  if (!Takes(*found, behind.size())) throw CommandError("it goes: " + Usage(*found));
  found->Run(session, behind);
}

std::string HelpText(const Words& words) {
  std::string text;
  for (const Command& command : words.empty() ? std::span(Commands()) : FamilyOf(words.front())) {
    text += Usage(command) + "\n    " + command.Help + '\n';
  }
  return text;
}

}  // namespace vantrel::console
