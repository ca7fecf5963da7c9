// The whole program, started on an in-memory Windows, for the benchmarks to act on.
#ifndef VANTREL_BENCH_NATIVE_MACHINE_H_
#define VANTREL_BENCH_NATIVE_MACHINE_H_

#include "forms/headless/Toolkit.h"
#include "platform/memory/Process.h"
#include "platform/memory/World.h"
#include "program/Program.h"
#include "shell/Attach.h"
#include "shell/Startup.h"

namespace vantrel::bench {

inline constexpr const char* CountersKey = "Software\\Qorvel Softwares\\Block Log";
inline constexpr const char* SettingsKey = "Software\\Qorvel Softwares\\Block Settings";

// A machine whose browser the program accepts.
struct FilledWorld : platform::memory::World {
  FilledWorld() {
    registry.SetString(platform::HKeyLocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer",
                       "Version", "6.0.2900.2180");
    files.MakeFolder("C:\\Program Files\\Vantrel\\Settings");
  }
};

struct Machine {
  Machine() {
    shell::AttachProgram(program);
    shell::Start(program);
  }

  platform::Registry& Registry() { return program.platform.registry; }

  FilledWorld world;
  platform::memory::Process process{world};
  forms::headless::Toolkit toolkit{world.desktop, world.clock, process.Id()};
  program::Program program{process.Platform(), toolkit};
};

}  // namespace vantrel::bench

#endif  // VANTREL_BENCH_NATIVE_MACHINE_H_
