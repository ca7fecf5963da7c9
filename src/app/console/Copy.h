// One running copy of the program on the in-memory Windows, whole: its process, its windows, its
// behaviour, and the hand that uses it.
#ifndef VANTREL_APP_CONSOLE_COPY_H_
#define VANTREL_APP_CONSOLE_COPY_H_

#include <string>

#include "forms/headless/Toolkit.h"
#include "forms/headless/User.h"
#include "platform/memory/Process.h"
#include "program/Program.h"

namespace vantrel::console {

class Copy {
 public:
  // The process exists from here on, the program does nothing before Start.
  Copy(platform::memory::World& world, int number, const std::string& commandLine)
      : Process(world, platform::memory::Process::DefaultExecutable, commandLine),
        Toolkit(world.desktop, world.clock, Process.Id()),
        Program(Process.Platform(), Toolkit),
        Hand(Toolkit),
        Number(number) {
    Process.EndThread = [this] { Toolkit.End(); };
  }

  bool Ended() const { return Toolkit.Ending(); }

  platform::memory::Process Process;
  forms::headless::Toolkit Toolkit;
  program::Program Program;
  forms::headless::User Hand;
  int Number;
};

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_COPY_H_
