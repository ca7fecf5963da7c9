#include "app/console/Commands.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "app/console/Handlers.h"
#include "app/console/Names.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

constexpr std::array Table{
    Command{"start", "[COMMAND LINE]",
            "starts a copy; with one running already, it hands its command line over and ends", 0,
            AnyNumber, StartCopy},
    Command{"command", "LINE", "the same, only with one running: command /clean", 1, AnyNumber,
            SendCommand},
    Command{"show", "[WINDOW | CONTROL | all]",
            "shows the windows as text; a window or control with all that is in it", 0, 1, Show},
    Command{"click", "CONTROL", "clicks a button, link, label or box", 1, 1, Click},
    Command{"point", "CONTROL", "moves the mouse over a control", 1, 1, PointAt},
    Command{"tick", "BOX | LIST ROW", "ticks a check box or option, or the mark of a row", 1, 2,
            Tick},
    Command{"untick", "BOX | LIST ROW", "clears a check box, or the mark of a row", 1, 2, Untick},
    Command{"choose", "COMBO ENTRY", "picks an entry of a drop-down list", 2, 2, Choose},
    Command{"type", "CONTROL TEXT", "replaces the text of a box", 2, 2, Type},
    Command{"select", "LIST ROW", "selects a row by its number or text", 2, 2, Select},
    Command{"menu", "ENTRY", "chooses from the menu bar: menu \"File/Start Blocking\"", 1, 1,
            ChooseMenu},
    Command{"tool", "NUMBER | TIP", "presses a tool button", 1, 1, PressTool},
    Command{"key", "tab | back | enter | space | escape", "presses a key", 1, 1, PressKey},
    Command{"size", "WIDTH HEIGHT [WINDOW]", "gives a window another size, in twips", 2, 3, Resize},
    Command{"window", "minimize | maximize | restore [WINDOW]", "changes a window's state", 1, 2,
            SetWindowState},
    Command{"close", "[WINDOW]", "presses the close box of the window in front, or of this one", 0,
            1, CloseWindow},
    Command{"exit", "", "chooses Exit from the menu bar, or from the tray icon's menu", 0, 0,
            ExitProgram},
    Command{"logoff", "", "ends the user's session", 0, 0, LogOff},
    Command{"tray", "[left | right [ENTRY]]",
            "shows the tray icons; double-clicks the last one; opens its menu and chooses", 0, 2,
            ClickTray},
    Command{"advance", "MILLISECONDS", "moves the clock on; timers tick", 1, 1, Advance},
    Command{"clock", "[YEAR-MONTH-DAY HOUR:MINUTE:SECOND]", "shows or sets the clock", 0, 2,
            ShowClock},
    Command{"answer", "[BUTTON ...]",
            "answers for boxes to come: yes, no, ok, cancel ...; without one, forgets them", 0, 100,
            Answer},
    Command{"boxes", "", "lists the message boxes so far, with their answers", 0, 0, ShowBoxes},
    Command{"processes", "", "lists the copies that run and the programs they started", 0, 0,
            ShowProcesses},
    Command{"sounds", "", "lists the sounds that were played", 0, 0, ShowSounds},
    Command{"registry show", "[KEY]", "shows a key with all below it, or the whole registry", 0, 1,
            ShowRegistry},
    Command{"registry set", "KEY NAME TYPE DATA ...",
            "sets a value: string, expand, dword, binary or multi; \"\" is the default value", 4,
            AnyNumber, SetRegistry},
    Command{"registry delete", "KEY [NAME]", "deletes a key with all below it, or a value", 1, 2,
            DeleteRegistry},
    Command{"registry refuse", "KEY none | write | all",
            "takes the user's rights to a key, or gives them back", 2, 2, RefuseRegistry},
    Command{"registry load", "FILE", "loads a .reg file of the real disk", 1, 1, LoadRegistry},
    Command{"registry save", "FILE KEY", "saves a key as a .reg file (REGEDIT4) on the real disk",
            2, 2, SaveRegistry},
    Command{"files list", "[FOLDER]", "lists the files of the in-memory disk", 0, 1, ListFiles},
    Command{"files show", "PATH", "shows a file", 1, 1, ShowFile},
    Command{"files put", "PATH [LINE ...]", "makes a file of these lines", 1, AnyNumber, PutLines},
    Command{"files delete", "PATH", "deletes a file, or a folder with all in it", 1, 1, DeleteFile},
    Command{"files mark", "PATH readonly | writable | locked | free",
            "protects a file from the program, or frees it", 2, 2, MarkFile},
    Command{"files load", "FILE PATH", "copies a file of the real disk in", 2, 2, LoadFile},
    Command{"files save", "PATH FILE", "copies a file out to the real disk", 2, 2, SaveFile},
    Command{"trace", "on | off | show",
            "prints the calls to Windows after each command; or those of the last one", 1, 1,
            Trace},
    Command{"fail", "CALL N CODE | clear",
            "lets the n-th call of a name (or any; or every) fail with an error code", 1, 3, Fail},
    Command{"state load", "FILE", "replaces the Windows by a saved one", 1, 1, LoadState},
    Command{"state save", "FILE", "saves clock, registry and files", 1, 1, SaveState},
    Command{"help", "[COMMAND]", "tells the commands", 0, 2, Help},
    Command{"quit", "", "leaves the console; a running program is just gone", 0, 0, Quit},
};

constexpr std::string_view Family(const Command& command) {
  const std::string_view name = command.Name;
  return name.substr(0, name.find(' '));
}

constexpr std::string_view Member(const Command& command) {
  const std::string_view name = command.Name;
  const std::size_t blank = name.find(' ');
  return blank == std::string_view::npos ? std::string_view() : name.substr(blank + 1);
}

// No two names are one, and a word is either a command or a family.
constexpr bool IsSound() {
  for (std::size_t i = 0; i < Table.size(); ++i) {
    if (Table[i].Run == nullptr || Table[i].Least > Table[i].Most) return false;
    for (std::size_t j = 0; j < i; ++j) {
      if (Family(Table[i]) != Family(Table[j])) continue;
      if (Member(Table[i]) == Member(Table[j])) return false;
      if (Member(Table[i]).empty() || Member(Table[j]).empty()) return false;
    }
  }
  return true;
}
static_assert(IsSound());

std::vector<std::string> Families() {
  std::vector<std::string> families;
  for (const Command& command : Table) {
    if (families.empty() || families.back() != Family(command)) {
      families.emplace_back(Family(command));
    }
  }
  return families;
}

std::vector<const Command*> MembersOf(std::string_view family) {
  std::vector<const Command*> members;
  for (const Command& command : Table) {
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

std::span<const Command> Commands() { return Table; }

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
    for (const Command& command : Table) text += HelpLine(command);
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
  for (const Command& command : Table) {
    text += "| `" + InColumn(Usage(command)) + "` | " + InColumn(command.Help) + " |\n";
  }
  return text;
}

}  // namespace vantrel::console
