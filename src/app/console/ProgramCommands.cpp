#include <array>

#include "app/console/Commands.h"
#include "app/console/Find.h"
#include "app/console/Names.h"
#include "app/console/Screen.h"
#include "app/console/Words.h"
#include "windows/frmMain.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

// As the shell tells the mouse on an icon.
constexpr std::uint32_t LeftDoubleClick = 515;
constexpr std::uint32_t RightButtonUp = 517;

// A visible entry of a menu that has popped up; telling the entries when none is asked for.
forms::Menu* PickFrom(Session& session, forms::Menu& menu, const std::string& wanted,
                      std::string& failure) {
  std::vector<forms::Menu*> visible;
  std::string names;
  for (forms::Menu* entry : menu.Entries()) {
    if (!entry->Visible() || entry->IsSeparator()) continue;
    visible.push_back(entry);
    names += (names.empty() ? "" : ", ") + Printable(WithoutMark(entry->Caption()));
  }
  session.Say("menu: " + names);
  if (wanted.empty()) return nullptr;
  try {
    return &FindEntry(visible, wanted);
  } catch (const CommandError& error) {
    failure = error.what();
    return nullptr;
  }
}

memory::TrayIcon LastIcon(Session& session) {
  const auto& icons = session.World().tray.Icons();
  for (auto icon = icons.rbegin(); icon != icons.rend(); ++icon) {
    if (session.World().desktop.IsWindow(icon->window)) return *icon;
  }
  throw CommandError("there is no tray icon");
}

void OpenTrayMenu(Session& session, const std::string& wanted) {
  std::string failure;
  session.ChooseFromPopup = [&session, &wanted, &failure](forms::Menu& menu) {
    return PickFrom(session, menu, wanted, failure);
  };
  session.World().tray.Mouse(session.World().desktop, LastIcon(session), RightButtonUp);
  session.ChooseFromPopup = nullptr;
  if (!failure.empty()) throw CommandError(failure);
}

void ListIcons(Session& session) {
  const auto& icons = session.World().tray.Icons();
  for (const memory::TrayIcon& icon : icons) {
    const bool alive = session.World().desktop.IsWindow(icon.window);
    session.Say("icon " + Quoted(icon.tip) +
                (alive ? " of " + session.World().desktop.ControlName(icon.window)
                       : " of a window that is gone"));
  }
  if (icons.empty()) session.Say("no icon");
}

void StartCopy(Session& session, const Words& words) { session.Start(Joined(words)); }

void SendCommand(Session& session, const Words& words) {
  session.Current();  // one must run
  session.Start(Joined(words));
}

void ExitProgram(Session& session, const Words&) {
  Copy& copy = session.Current();
  auto& main = copy.Program.windows.frmMain;
  if (main.Loaded() && (copy.Hand.Select(main->MnuExit) || copy.Ended())) return;
  OpenTrayMenu(session, "Exit");
}

void LogOff(Session& session, const Words&) { session.Current().Toolkit.SystemEnds(); }

void ClickTray(Session& session, const Words& words) {
  if (words.empty()) return ListIcons(session);
  const bool right = PickName("mouse button", words[0], {"left", "right"}) == 1;
  session.Current();
  if (right) return OpenTrayMenu(session, words.size() > 1 ? words[1] : std::string());
  if (words.size() > 1) throw CommandError("a double-click opens no menu");
  session.World().tray.Mouse(session.World().desktop, LastIcon(session), LeftDoubleClick);
}

void Quit(Session& session, const Words&) { session.Quitting = true; }

void Help(Session& session, const Words& words) { session.Write(HelpText(words)); }

constexpr std::array Table{
    Command{"start", "[COMMAND LINE]",
            "starts a copy; with one running already, it hands its command line over and ends", 0,
            AnyNumber, StartCopy},
    Command{"command", "LINE", "the same, only with one running: command /clean", 1, AnyNumber,
            SendCommand},
    Command{"exit", "", "chooses Exit from the menu bar, or from the tray icon's menu", 0, 0,
            ExitProgram},
    Command{"logoff", "", "ends the user's session", 0, 0, LogOff},
    Command{"tray", "[left | right [ENTRY]]",
            "shows the tray icons; double-clicks the last one; opens its menu and chooses", 0, 2,
            ClickTray},
    Command{"help", "[COMMAND]", "tells the commands", 0, 2, Help},
    Command{"quit", "", "leaves the console; a running program is just gone", 0, 0, Quit},
};

}  // namespace

std::span<const Command> ProgramCommands() { return Table; }

}  // namespace vantrel::console
