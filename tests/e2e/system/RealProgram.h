// A copy of the program on the real Windows, with windows that are on no screen: for routines of
// the program on the system's own files and dialogs.
#ifndef VANTREL_TESTS_E2E_SYSTEM_REALPROGRAM_H_
#define VANTREL_TESTS_E2E_SYSTEM_REALPROGRAM_H_

#include <memory>

#include "forms/headless/Toolkit.h"
#include "platform/memory/World.h"
#include "platform/win32/Win32Platform.h"
#include "program/Program.h"

namespace vantrel::e2e {

struct RealProgram {
  platform::memory::World world;  // its desktop and clock are the windows'
  std::unique_ptr<platform::win32::Win32Platform> windows = platform::win32::MakeWin32Platform();
  forms::headless::Toolkit toolkit{world.desktop, world.clock, 1};
  program::Program program{windows->Platform(), toolkit};
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SYSTEM_REALPROGRAM_H_
