#include "program/Program.h"

namespace vantrel::program {
namespace {

// The box of an error that no handler trapped; the program goes on behind it.
void ShowUntrapped(Program& program, const text::RuntimeError& error) {
  program.MsgBox("Run-time error '" + std::to_string(static_cast<int>(error.Number())) +
                     "':\r\n\r\n" + error.Description(),
                 platform::StyleCritical);
}

// The window that a box belongs to: none while the main window is hidden or not made yet.
platform::WindowHandle BoxOwner(Windows& windows) {
  if (!windows.frmMain.Loaded() || !windows.frmMain->Visible()) return 0;
  return windows.frmMain->hWnd();
}

}  // namespace

Program::Program(const platform::Platform& platform, forms::Toolkit& toolkit)
    : platform(platform), toolkit(toolkit), windows(toolkit) {
  toolkit.OnUntrappedError = [this](const text::RuntimeError& error) {
    ShowUntrapped(*this, error);
  };
}

std::string Program::PathOf(const std::string& literal) const {
  return platform.system.ProgramFolder() + literal;
}

int Program::MsgBox(const std::string& text, std::uint32_t style, const std::string& title) {
  const int answer = platform.dialogs.MessageBoxA(BoxOwner(windows), text, title, style);
  toolkit.ThrowIfEnding();
  return answer;
}

void Program::ShowError(const text::RuntimeError& error) {
  MsgBox("Error occured: " + error.Description(), platform::StyleInformation);
}

}  // namespace vantrel::program
