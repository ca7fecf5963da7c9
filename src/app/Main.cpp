// The entry point of the Windows program: puts the real platform, the real windows and the
// program's behaviour together, starts it and runs its messages until it ends.
#include <windows.h>

#include <memory>

#include "forms/win32/Toolkit.h"
#include "platform/win32/Platform.h"
#include "program/Program.h"
#include "resources/ImageStrips.h"
#include "shell/Attach.h"
#include "shell/Startup.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  using namespace vantrel;
  // No library is loaded from the current folder.
  SetDllDirectoryA("");
  const auto windowsPlatform = platform::win32::MakePlatform();
  const auto toolkit = forms::win32::MakeToolkit(resources::ImageStrips);
  program::Program program(windowsPlatform->Families(), *toolkit);
  shell::AttachProgram(program);
  shell::Start(program);
  if (!toolkit->Ending()) toolkit->RunMessageLoop();
  return 0;
}
