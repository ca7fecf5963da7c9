#include "app/console/Commands.h"

#include <string_view>

#include "app/console/Names.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

std::string_view Family(const Command& command) {
  const std::string_view name = command.Name;
  return name.substr(0, name.find(' '));
}

std::string_view Member(const Command& command) {
  const std::string_view name = command.Name;
  const std::size_t blank = name.find(' ');
  return blank == std::string_view::npos ? std::string_view() : name.substr(blank + 1);
}

std::vector<std::string> Families() {
  std::vector<std::string> families;
  for (const Command& command : Commands()) {
    if (families.empty() || families.back() != Family(command)) {
      families.emplace_back(Family(command));
    }
  }
  return families;
}

std::vector<const Command*> MembersOf(std::string_view family) {
  std::vector<const Command*> members;
  for (const Command& command : Commands()) {
    if (Family(command) == family) members.push_back(&command);
  }
  return members;
}

std::string Usage(const Command& command) {
  const std::string arguments = command.Arguments;
  return command.Name + (arguments.empty() ? "" : " " + arguments);
}

struct Found {
  const Command* What;
  std::size_t NameWords;
};

Found FindName(const Words& words) {
  const std::vector<std::string> families = Families();
  const std::string& family = families[PickName("command", words.front(), families)];
  const std::vector<const Command*> members = MembersOf(family);
  if (Member(*members.front()).empty()) return {members.front(), 1};
  std::vector<std::string> names;
  names.reserve(members.size());
  for (const Command* member : members) names.emplace_back(Member(*member));
  const std::string second = words.size() > 1 ? words[1] : std::string();
  return {members[PickName(family + " command", second, names)], 2};
}

std::string HelpLine(const Command& command) {
  return Usage(command) + "\n    " + command.Help + '\n';
}

// The bars of alternatives would end a column of the document.
std::string InColumn(std::string text) {
  for (std::size_t at = text.find('|'); at != std::string::npos; at = text.find('|', at + 2)) {
    text.insert(at, "\\");
  }
  return text;
}

}  // namespace

const std::vector<Command>& Commands() {
  static const std::vector<Command> all = [] {
    std::vector<Command> rows;
    for (const auto table : {ProgramCommands, WindowCommands, WorldCommands, StoreCommands}) {
      rows.insert(rows.end(), table().begin(), table().end());
    }
    return rows;
  }();
  return all;
}

Call FindCommand(const Words& words) {
  const Found found = FindName(words);
  Call call{found.What,
            Words(words.begin() + static_cast<std::ptrdiff_t>(found.NameWords), words.end())};
  const std::size_t count = call.Behind.size();
  if (count < found.What->Least || count > found.What->Most) {
    throw CommandError("it goes: " + Usage(*found.What));
  }
  return call;
}

std::string HelpText(const Words& words) {
  std::string text;
  if (words.empty()) {
    for (const Command& command : Commands()) text += HelpLine(command);
    return text;
  }
  const std::vector<std::string> families = Families();
  const std::string& family = families[PickName("command", words.front(), families)];
  if (words.size() > 1) return HelpLine(*FindName(words).What);
  for (const Command* member : MembersOf(family)) text += HelpLine(*member);
  return text;
}

std::string HelpDocument() {
  std::string text = "| command | what it does |\n|---|---|\n";
  for (const Command& command : Commands()) {
    text += "| `" + InColumn(Usage(command)) + "` | " + InColumn(command.Help) + " |\n";
  }
  return text;
}

}  // namespace vantrel::console
