#include "program/Program.h"

#include <algorithm>

#include "windows/frmMain.h"

namespace vantrel::program {
namespace {

// The box of an error that no handler trapped; the program goes on behind it.
void ShowUntrapped(Program& program, const text::RuntimeError& error) {
  program.MsgBox("Run-time error '" + std::to_string(static_cast<int>(error.Number())) +
                     "':\r\n\r\n" + error.Description(),
                 platform::StyleCritical);
}

// The window that a box belongs to: the dialog that keeps the others from being used, else the main
// window; none while that is hidden or not made yet.
platform::WindowHandle BoxOwner(const forms::Toolkit& toolkit, Windows& windows) {
  const auto& loaded = toolkit.LoadedForms();
  const auto dialog = std::find_if(loaded.rbegin(), loaded.rend(), [](const forms::Form* form) {
    return form->Modal() && form->Visible();
  });
  if (dialog != loaded.rend()) return (*dialog)->hWnd();
  if (!windows.frmMain.Loaded() || !windows.frmMain->Visible()) return 0;
  return windows.frmMain->hWnd();
}

}  // namespace

Program::Program(const platform::Platform& platform, forms::Toolkit& toolkit)
    : platform(platform), toolkit(toolkit), fileNumbers(platform.binaryFiles), windows(toolkit) {
  toolkit.OnUntrappedError = [this](const text::RuntimeError& error) {
    ShowUntrapped(*this, error);
  };
}

std::string Program::PathOf(const std::string& literal) const {
  return platform.system.ProgramFolder() + literal;
}

int Program::MsgBox(const std::string& text, std::uint32_t style, const std::string& title) {
  const int answer = platform.dialogs.MessageBoxA(BoxOwner(toolkit, windows), text, title, style);
  toolkit.ThrowIfEnding();
  return answer;
}

void Program::ShowError(const text::RuntimeError& error) {
  MsgBox("Error occured: " + error.Description(), platform::StyleInformation);
}

}  // namespace vantrel::program
