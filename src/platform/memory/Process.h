// One process of the in-memory Windows, and all that it can ask of it. Its calls are traced and
// can be made to fail; its message boxes are answered by a script. When the process object dies,
// its windows, timers and claimed name go with it, as in the system; a tray icon stays.
#ifndef VANTREL_PLATFORM_MEMORY_PROCESS_H_
#define VANTREL_PLATFORM_MEMORY_PROCESS_H_

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "platform/memory/Calls.h"
#include "platform/memory/DialogsView.h"
#include "platform/memory/World.h"

namespace vantrel::platform::memory {

class Process {
 public:
  static constexpr const char* DefaultExecutable = "C:\\Program Files\\Vantrel\\Vantrel.exe";

  // The executable's file is put into the world's files where it is missing.
  explicit Process(World& world, const std::string& executable = DefaultExecutable,
                   const std::string& commandLineTail = {});
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  platform::Platform Platform();
  ProcessId Id() const;
  World& TheWorld();

  // Answers for the boxes to come, each used once, in their order. A box that has only OK is
  // answered with OK whether the script says so or not; any other box without an answer of its own
  // is a misuse.
  void AnswerBoxes(const std::vector<int>& answers);
  std::size_t UnusedAnswers() const;
  // The boxes shown so far.
  const std::vector<Box>& Boxes() const;
  void ClearBoxes();
  // Called while a box is up, before its answer is taken: a test ticks and clicks there.
  std::function<void(const Box&)> WhileBoxIsUp;
  // Set, it answers every box instead of the script.
  std::function<int(const Box&)> AnswerBox;

  FaultPlan& Faults();
  // This process's calls alone; the world's trace has all. Neither records before it is started.
  memory::Trace& Trace();

  std::size_t OpenKeys() const;
  std::size_t OpenFiles() const;
  std::size_t OpenThreads() const;

  // Leaves the process's own thread when that calls ExitThread: there is no stack here that could
  // just vanish, so it must throw what unwinds the program, and not come back. The windows and
  // timers are gone by then.
  std::function<void()> EndThread;
  // The code that the process's own thread has ended with; absent while it runs.
  std::optional<std::uint32_t> ThreadExitCode() const;
  // Whether any thread of the process runs: its own, or one in a library that hangs.
  bool Alive() const;

 private:
  struct Families;

  std::unique_ptr<Families> families_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_PROCESS_H_
