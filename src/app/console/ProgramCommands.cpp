#include <algorithm>

#include "app/console/Commands.h"
#include "app/console/Screen.h"
#include "app/console/State.h"
#include "forms/SpokenName.h"
#include "platform/memory/CallNames.h"
#include "text/Strings.h"
#include "windows/frmMain.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

// The messages of the mouse that the shell sends for an icon.
constexpr std::uint32_t LeftDoubleClick = 515;
constexpr std::uint32_t RightButtonUp = 517;

constexpr long long LongestAdvance = 24LL * 60 * 60 * 1000;

memory::TrayIcon LastIcon(Session& session) {
  const auto& icons = session.World().tray.Icons();
  const bool there = !icons.empty() && session.World().desktop.IsWindow(icons.back().window);
  if (!there) throw CommandError("there is no tray icon");
  return icons.back();
}

// The entry of a menu that has popped up, if one is wanted, after a line with the visible ones.
forms::Menu* PickFrom(Session& session, const forms::Menu& menu, const std::string& wanted) {
  std::vector<forms::Menu*> visible = menu.Entries();
  std::erase_if(visible,
                [](const auto* entry) { return !entry->Visible() || entry->IsSeparator(); });
  const Words captions = Texts(
      visible, [](const forms::Menu* entry) { return forms::WithoutMarks(entry->Caption()); });
  session.Say("menu: " + Printable(Joined(captions, ", ")));
  return wanted.empty() ? nullptr : &FindEntry(visible, wanted);
}

void OpenTrayMenu(Session& session, const std::string& wanted) {
  const memory::TrayIcon icon = LastIcon(session);
  // The menu pops up within the program, which an exception must not unwind.
  std::string failure;
  session.ChooseFromPopup = [&](forms::Menu& menu) -> forms::Menu* {
    try {
      return PickFrom(session, menu, wanted);
    } catch (const CommandError& error) {
      failure = error.what();
      return nullptr;
    }
  };
  session.World().tray.Mouse(session.World().desktop, icon, RightButtonUp);
  session.ChooseFromPopup = nullptr;
  if (!failure.empty()) throw CommandError(failure);
}

void ListIcons(Session& session) {
  const memory::World& world = session.World();
  const Words lines = Texts(world.tray.Icons(), [&world](const memory::TrayIcon& icon) {
    const bool alive = world.desktop.IsWindow(icon.window);
    return "icon " + Quoted(icon.tip) + " of " +
           (alive ? world.desktop.ControlName(icon.window) : "a window that is gone");
  });
  session.SayAll(lines, "", "no icon");
}

void ExitProgram(Session& session, const Words&) {
  Copy& copy = session.Current();
  auto& main = copy.Program.windows.frmMain;
  if (main.Loaded() && (copy.User.Select(main->MnuExit) || copy.Ended())) return;
  OpenTrayMenu(session, "Exit");
}

void ClickTray(Session& session, const Words& words) {
  if (words.empty()) return ListIcons(session);
  const bool right = PickName("mouse button", words[0], {"left", "right"}) == 1;
  session.Current();
  if (right) return OpenTrayMenu(session, words.size() > 1 ? words[1] : std::string());
  if (words.size() > 1) throw CommandError("a double-click opens no menu");
  session.World().tray.Mouse(session.World().desktop, LastIcon(session), LeftDoubleClick);
}

void Answer(Session& session, const Words& words) {
  std::vector<int> answers;
  const Words names(ButtonNames.begin(), ButtonNames.end());
  for (const std::string& word : words) {
    answers.push_back(static_cast<int>(PickName("answer", word, names)) + 1);
  }
  if (words.empty()) session.Answers.clear();
  session.Answers.insert(session.Answers.end(), answers.begin(), answers.end());
}

void ShowProcesses(Session& session, const Words&) {
  Words lines = Texts(session.Copies(), [](const auto& copy) {
    return "copy " + std::to_string(copy->Number) + " runs";
  });
  for (const memory::StartedProcess& process : session.World().programs.Started()) {
    lines.push_back("started " + process.commandLine);
  }
  session.SayAll(lines, "", "no process");
}

void Trace(Session& session, const Words& words) {
  const std::size_t what = PickName("trace", words.front(), {"on", "off", "show"});
  if (what == 2) return session.SayAll(session.LastCalls(), "call: ", "no call");
  session.TracePrinted = what == 0;
}

void Fail(Session& session, const Words& words) {
  memory::FaultPlan& faults = session.Faults();
  if (words.size() == 1 && text::EqualIgnoringCase(words[0], "clear")) return faults.Clear();
  if (words.size() != 3) throw CommandError("it goes: fail CALL N CODE, or: fail clear");
  const bool any = text::EqualIgnoringCase(words[0], "any");
  const bool every = text::EqualIgnoringCase(words[1], "every");
  if (any && every) throw CommandError("not every call of any name can fail");
  const auto nth = static_cast<std::size_t>(every ? 0 : ParseNumber(words[1], 1, 1000000, "N"));
  const auto code = static_cast<std::int32_t>(ParseNumber(words[2], 1, 0x7FFFFFFF, "the code"));
  if (any) return faults.FailNthCall(nth, code);
  const Words names(memory::CallNames.begin(), memory::CallNames.end());
  const std::string name = names[PickName("call", words[0], names)];
  if (every) return faults.FailEvery(name, code);
  faults.FailCall(name, nth, code);
}

constexpr Command Table[] = {
    {"start", "[COMMAND LINE ...]",
     "starts a copy; with one running already, it passes its command line on and ends",
     [](Session& session, const Words& words) { session.Start(Joined(words)); }},
    {"command", "LINE ...", "the same, only with one running: command /clean",
     [](Session& session, const Words& words) {
       session.Current();  // one must run
       session.Start(Joined(words));
     }},
    {"exit", "", "chooses Exit from the menu bar, or from the tray icon's menu", ExitProgram},
    {"logoff", "", "ends the user's session",
     [](Session& session, const Words&) { session.Current().Toolkit.SystemEnds(); }},
    {"tray", "[left|right ENTRY]",
     "shows the tray icons; double-clicks the last one; opens its menu and chooses", ClickTray},
    {"help", "[COMMAND ...]", "lists the commands",
     [](Session& session, const Words& words) { session.Write(HelpText(words)); }},
    {"quit", "", "leaves the console; a running program is just gone",
     [](Session& session, const Words&) { session.Quit(); }},
    {"advance", "MILLISECONDS", "moves the clock on; timers tick",
     [](Session& session, const Words& words) {
       session.Advance(static_cast<std::uint64_t>(
           ParseNumber(words[0], 0, LongestAdvance, "the time in milliseconds")));
     }},
    {"clock", "[YEAR-MONTH-DAY HOUR:MINUTE:SECOND]", "shows or sets the clock",
     [](Session& session, const Words& words) {
       if (!words.empty()) SetClock(session.World(), Joined(words));
       session.Say(TimeText(session.World().clock.LocalNow()));
     }},
    {"answer", "[BUTTON ...]",
     "answers for boxes to come: yes, no, ok, cancel ...; without one, forgets them", Answer},
    {"pick", "[FOLDER]", "chooses the folder in pickers to come; without one, cancels them",
     [](Session& session, const Words& words) {
       session.PickedFolder = words.empty() ? std::string() : words[0];
     }},
    {"boxes", "", "lists the message boxes so far, with their answers",
     [](Session& session, const Words&) { session.SayAll(session.BoxLines(), "", "no box"); }},
    {"processes", "", "lists the copies that run and the programs they started", ShowProcesses},
    {"sounds", "", "lists the sounds that were played",
     [](Session& session, const Words&) {
       session.SayAll(Texts(session.World().playedSounds, &memory::PlayedSound::path), "",
                      "no sound");
     }},
    {"trace", "on|off|show",
     "prints the calls to Windows after each command; or those of the last one", Trace},
    {"fail", "CALL|clear [N CODE]",
     "lets the n-th call of a name (or any; or every) fail with an error code", Fail},
    {"state load", "FILE", "replaces the Windows by a saved one",
     [](Session& session, const Words& words) {
       session.Replace(WindowsFromState(ReadRealFile(words[0])));
     }},
    {"state save", "FILE", "saves clock, registry and files",
     [](Session& session, const Words& words) {
       WriteRealFile(words[0], StateText(session.World()));
     }},
};

}  // namespace

std::span<const Command> ProgramCommands() { return Table; }

}  // namespace vantrel::console
