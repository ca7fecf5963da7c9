// The Windows that a console without a state begins with: what a computer has on which the browser
// and the program have just been installed and the program was never started.
#ifndef VANTREL_APP_CONSOLE_FRESHWINDOWS_H_
#define VANTREL_APP_CONSOLE_FRESHWINDOWS_H_

#include <memory>

#include "platform/memory/World.h"

namespace vantrel::console {

std::unique_ptr<platform::memory::World> FreshWindows();

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_FRESHWINDOWS_H_
