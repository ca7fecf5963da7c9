// The double's entry point: arguments in, one look at the world after another, an exit code out.
#include <windows.h>

#include <iostream>
#include <string>
#include <vector>

#include "engine/Engine.h"
#include "engine/win32/WindowsWorld.h"

namespace vantrel::engine {
namespace {

// Set by Ctrl+C and by the end of the session. Handlers of this kind get no argument.
HANDLE stopRequested = nullptr;

BOOL WINAPI RequestStop(DWORD) { return SetEvent(stopRequested); }

int Run(const Options& options) {
  stopRequested = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  SetConsoleCtrlHandler(RequestStop, TRUE);
  const auto world = MakeWindowsWorld();
  Engine engine(options, *world, std::cout);
  // The tick count of 32 bits wraps once in 49 days; differences are taken here, so that is
  // harmless.
  std::uint64_t now = 0;
  DWORD lastTick = GetTickCount();
  do {
    const DWORD tick = GetTickCount();
    now += static_cast<DWORD>(tick - lastTick);
    lastTick = tick;
    engine.Step(now);
  } while (!engine.Finished() &&
           WaitForSingleObject(stopRequested, engine.Pause()) == WAIT_TIMEOUT);
  engine.PrintSummary();
  return engine.ExitCode();
}

}  // namespace
}  // namespace vantrel::engine

int main(int count, char** arguments) {
  using namespace vantrel::engine;
  const auto parsed = ParseOptions(std::vector<std::string>(arguments + 1, arguments + count));
  if (!parsed.error.empty()) {
    std::cerr << "engine-double: " << parsed.error << "\n\n" << Usage;
    return 2;
  }
  if (parsed.options.help) {
    std::cout << Usage;
    return 0;
  }
  return Run(parsed.options);
}
