// The entry point of the Windows program: puts the real platform, the real windows and the
// program's behaviour together, starts it and runs its messages until it ends.
#include <windows.h>

#include "app/pictures/ProgramPictures.h"
#include "forms/win32/Win32Toolkit.h"
#include "platform/win32/Win32Platform.h"
#include "program/Program.h"
#include "shell/Attach.h"
#include "shell/Lifetime.h"
#include "shell/Startup.h"
#include "windows/frmMain.h"

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*tail*/, int /*show*/) {
  using namespace vantrel;
  // No library is loaded from the current folder, and one that cannot be loaded is reported by
  // the program, not by a box of the system's.
  SetDllDirectoryA("");
  SetErrorMode(SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  const auto platform = platform::win32::MakeWin32Platform();
  const platform::Platform families = platform->Platform();
  const auto toolkit = forms::win32::MakeWin32Toolkit(
      app::ProgramPictures(), [&families] { return families.system.HighContrast(); });
  program::Program program(families, *toolkit);
  shell::AttachProgram(program);
  shell::Start(program);
  // Without a window nobody could end the program, nor start another copy.
  if (!toolkit->Ending() && program.windows.frmMain.Loaded()) toolkit->RunMessageLoop();
  shell::Finish(program);
  return 0;
}
