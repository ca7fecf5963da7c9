// What the console works on: one in-memory Windows, the copies of the program that run on it, the
// lines that come in and the text that goes out. Commands act on the copy that was started last and
// still runs. An error is one line that begins with "error: ".
#ifndef VANTREL_APP_CONSOLE_SESSION_H_
#define VANTREL_APP_CONSOLE_SESSION_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <istream>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "forms/headless/Toolkit.h"
#include "forms/headless/User.h"
#include "platform/memory/Process.h"
#include "platform/memory/World.h"
#include "program/Program.h"

namespace vantrel::console {

struct Options {
  bool KeepGoing = false;  // go on behind a command that failed
  bool Echo = false;       // print each line behind "> " before it is done
  bool Prompt = false;     // print "> " before each line is read
};

// One running copy of the program: its process, its windows, its behaviour, and its user. The
// process exists from the beginning, the program does nothing before its start.
struct Copy {
  Copy(platform::memory::World& world, int number, const std::string& commandLine)
      : Process(world, platform::memory::Process::DefaultExecutable, commandLine),
        Toolkit(world.desktop, world.clock, Process.Id()),
        Program(Process.Platform(), Toolkit),
        User(Toolkit),
        Number(number) {}

  bool Ended() const { return Toolkit.Ending(); }

  platform::memory::Process Process;
  forms::headless::Toolkit Toolkit;
  program::Program Program;
  forms::headless::User User;
  int Number;
};

// The buttons of message boxes by their numbers, from 1 on.
inline constexpr std::array<const char*, 7> ButtonNames{"OK",     "Cancel", "Abort", "Retry",
                                                        "Ignore", "Yes",    "No"};

class Session {
 public:
  // A fresh Windows. Both streams must outlive the session.
  Session(std::istream& in, std::ostream& out, Options options);
  ~Session();

  // Does all lines up to the end, to Quit, or to the first that fails. Whether none failed.
  bool Run();
  void Quit() { quitting_ = true; }

  platform::memory::World& World() { return *world_; }
  // Replaces the Windows; CommandError while a copy runs.
  void Replace(std::unique_ptr<platform::memory::World> world);

  // Starts a copy and runs it until it idles. With one running already it passes its
  // command line on and ends.
  void Start(const std::string& commandLine);
  // CommandError if none runs.
  Copy& Current();
  const std::vector<std::unique_ptr<Copy>>& Copies() const { return copies_; }
  // Of the running copy, or else of the next one.
  platform::memory::FaultPlan& Faults();

  // Moves the clock, with all that is due; CommandError from within a timer.
  void Advance(std::uint64_t milliseconds);

  void Say(const std::string& line) { out_ << line << '\n'; }
  // Each line behind the prefix, or the one that stands for none.
  void SayAll(const std::vector<std::string>& lines, const std::string& prefix, const char* none);
  void Write(const std::string& text) { out_ << text; }

  // The calls to Windows of the command before this one.
  const std::vector<std::string>& LastCalls() const { return lastCalls_; }
  // The message boxes so far, with their answers.
  const std::vector<std::string>& BoxLines() const { return boxLines_; }

  // The menu entry that a coming pop-up menu is answered with.
  std::function<forms::Menu*(forms::Menu&)> ChooseFromPopup;
  // The numbers of buttons for message boxes to come: each goes to the first box that has it.
  std::vector<int> Answers;
  // What folder pickers to come choose; empty for Cancel.
  std::string PickedFolder;
  bool TracePrinted = false;

 private:
  struct Seen {
    std::size_t calls = 0;
    std::size_t sounds = 0;
    std::size_t started = 0;
    std::size_t opened = 0;
    std::string screen;
  };

  bool DoNext();
  void DoLine(const std::string& line);
  void BeginCommand();
  void EndCommand();
  void Settle();
  void SayEvents();
  Copy* Running() const;
  int AnswerBox(const platform::memory::Box& box);
  bool WaitInModal(Copy& copy);

  std::istream& in_;
  std::ostream& out_;
  Options options_;
  std::unique_ptr<platform::memory::World> world_;
  std::vector<std::unique_ptr<Copy>> copies_;
  platform::memory::FaultPlan nextFaults_;
  std::vector<std::string> lastCalls_;
  std::vector<std::string> boxLines_;
  Seen seen_;
  int depth_ = 0;
  int nextNumber_ = 1;
  bool advancing_ = false;
  bool failed_ = false;
  bool quitting_ = false;
};

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_SESSION_H_
