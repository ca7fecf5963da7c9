#include "shell/CommandChannel.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <string_view>

#include "shell/Navigation.h"
#include "shell/bmdlActivate.h"
#include "text/Strings.h"
#include "windows/FrmFrameMain.h"
#include "windows/frmMain.h"
#include "windows/frmcustom.h"

namespace vantrel::shell {
namespace {

using program::Program;
using Operation = void (*)(Program&);

// The dialog alone: the main window stays hidden in the tray.
void CustomizeToolbar(Program& program) {
  program.windows.frmMain->Hide();
  program.windows.frmcustom->Show();
}

void ToggleBlocking(Program& program) {
  CaseWelcome(program);
  auto& panel = *program.windows.FrmFrameMain;
  forms::CommandButton& button = panel.cmdstart.Enabled() ? panel.cmdstart : panel.cmdstop;
  button.SetValue(true);
}

void ShowMainWindow(Program& program) { program.windows.frmMain->Show(); }

void LoadAndShowToolbar(Program& program) {
  program.windows.frmMain->Hide();
  program.windows.frmcustom.EnsureLoaded();
  program.windows.frmcustom->Show();
}

// The toggle's row of OneGulp looks whether blocking could be started and leaves it at that; this
// is meant.
void ShowWelcomeWithoutToggle(Program& program) {
  CaseWelcome(program);
  static_cast<void>(program.windows.FrmFrameMain->cmdstart.Enabled());
  ShowMainWindow(program);
}

struct Command {
  const char* text;
  Operation dispatched;
  bool showsMainWindow;
  Operation gulped;
};

constexpr Command Commands[] = {
    {"/customtoolbar", CustomizeToolbar, false, LoadAndShowToolbar},
    {"/clean", CaseClean, true, CaseClean},
    {"/addlinks", CaseAllow, true, CaseAllow},
    {"/onoff", ToggleBlocking, true, ShowWelcomeWithoutToggle},
    {"/notify", CaseNotify, true, CaseNotify},
    {"/graph", CaseGraph, true, CaseGraph},
    {"/iesettings", CaseIESettings, true, CaseIESettings},
    {"/ieplugins", CaseIEPlugins, true, CaseIEPlugins},
    {"/options", CaseSettings, true, CaseSettings},
};

// A command is looked up in lower case: a row with a capital would never be found.
constexpr bool Findable(std::string_view text) {
  const bool capitals =
      std::any_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
  return text.starts_with('/') && !capitals;
}

constexpr bool IsFindable(const Command& row) { return Findable(row.text); }
constexpr bool StandsOnce(const Command& row) {
  const auto same = [&row](const Command& c) { return std::string_view(c.text) == row.text; };
  return std::count_if(std::begin(Commands), std::end(Commands), same) == 1;
}
static_assert(std::all_of(std::begin(Commands), std::end(Commands), IsFindable),
              "a command is in lower case behind a slash");
static_assert(std::all_of(std::begin(Commands), std::end(Commands), StandsOnce),
              "a command has one row");
static_assert(Findable("/az") && !Findable("/A") && !Findable("/Z") && !Findable("az"));

const Command* FindCommand(const std::string& command) {
  const std::string wanted = text::LowerCase(command);
  const auto* row = std::find_if(std::begin(Commands), std::end(Commands),
                                 [&wanted](const Command& c) { return wanted == c.text; });
  return row == std::end(Commands) ? nullptr : row;
}

void TraceCommand(Program& program, const std::string& command) {
  forms::TextBox& trace = program.windows.frmMain->Text1;
  const std::string before = trace.Text().empty() ? std::string() : trace.Text() + "\r\n";
  trace.SetText(before + "Excuted with command: " + command);
}

void OpenChannel(Program& program) {
  forms::CommandButton& mailbox = program.windows.frmMain->cmdDummy;
  mailbox.SetCaption(ReadyForCommand);
  // Senders look for a window: it stands from here on, also while the main window stays hidden.
  static_cast<void>(mailbox.WindowHandle());
}

}  // namespace

void cmdDummy_Click(Program& program) {
  // A copy: a sender that found the button earlier may write into it meanwhile.
  const std::string command = program.windows.frmMain->cmdDummy.Caption();
  try {
    DispatchCommand(program, command);
  } catch (const std::exception&) {
    program.toolkit.ThrowIfEnding();
    // The box of the error is the end neither of the channel nor of the window.
    OpenChannel(program);
    ShowMainWindow(program);
    throw;
  }
  OpenChannel(program);
}

void DispatchCommand(Program& program, const std::string& command) {
  TraceCommand(program, command);
  program.windows.frmMain->Hide();
  const Command* row = FindCommand(command);
  if (row != nullptr) row->dispatched(program);
  if (row == nullptr || row->showsMainWindow) ShowMainWindow(program);
}

void OneGulp(Program& program, const std::string& command) {
  const Command* row = FindCommand(command);
  (row != nullptr ? row->gulped : CaseWelcome)(program);
}

void AttachCommandChannel(Program& program, windows::frmMain& form) {
  form.cmdDummy.Click = [&program] { cmdDummy_Click(program); };
}

}  // namespace vantrel::shell
