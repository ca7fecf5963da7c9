// What the console works on: one in-memory Windows, the copies of the program that run on it, the
// answers that wait for message boxes, and the text that goes out. Commands act on the copy that
// was started last and still runs.
#ifndef VANTREL_APP_CONSOLE_SESSION_H_
#define VANTREL_APP_CONSOLE_SESSION_H_

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "app/console/Copy.h"
#include "platform/memory/World.h"

namespace vantrel::console {

// A call that shall fail: the n-th of the name from now on; an empty name is any call, and 0 every
// one.
struct Fault {
  std::string Call;
  std::size_t Nth = 1;
  std::int32_t Code = 0;
};

class Session {
 public:
  // A fresh Windows. `out` must outlive the session.
  explicit Session(std::ostream& out);
  ~Session();

  platform::memory::World& World() { return *world_; }
  // Replaces the Windows; CommandError while a copy runs.
  void Replace(std::unique_ptr<platform::memory::World> world);

  // Starts a copy and runs it until it idles. With one running already it hands over and ends.
  void Start(const std::string& commandLine);
  // CommandError if none runs.
  Copy& Current();
  const std::vector<std::unique_ptr<Copy>>& Copies() const { return copies_; }
  bool Running() const;

  // Lets a fault happen in the running copy, or else in the next one. Clearing forgets both.
  void Fail(const Fault& fault);
  void ClearFaults();

  // Moves the clock, with all that is due; CommandError from within a timer.
  void Advance(std::uint64_t milliseconds);

  void Say(const std::string& line) { out_ << line << '\n'; }
  void Write(const std::string& text) { out_ << text; }
  // The calls to Windows of the command before this one.
  void SayLastCalls();

  // Around every command. Before begins a new trace of calls; After lets the copies handle
  // what is queued and tells what the world has seen: sounds, started programs, opened documents,
  // copies that ended, and the windows that show if those have changed.
  void Before();
  void After();

  // Told when a modal window waits: does the next thing, or closes the window (false) for want of
  // one.
  std::function<bool()> DoNext;
  // The menu entry that a coming pop-up menu is answered with.
  std::function<forms::Menu*(forms::Menu&)> ChooseFromPopup;

  std::deque<int> Answers;
  std::vector<std::string> BoxLines;
  bool TracePrinted = false;
  bool Quitting = false;

 private:
  struct Seen {
    std::size_t calls = 0;
    std::size_t sounds = 0;
    std::size_t started = 0;
    std::size_t opened = 0;
    std::string screen;
  };

  void Wire(Copy& copy);
  void Settle();
  void Apply(const Fault& fault, Copy& copy) const;
  int AnswerBox(const platform::memory::Box& box);
  bool WaitInModal(Copy& copy);
  void TellEvents();
  void TellScreen();
  void DropEnded();

  std::ostream& out_;
  std::unique_ptr<platform::memory::World> world_;
  std::vector<std::unique_ptr<Copy>> copies_;
  std::vector<Fault> waitingFaults_;
  std::vector<std::string> lastCalls_;
  Seen seen_;
  int nextNumber_ = 1;
  int depth_ = 0;
  bool advancing_ = false;
};

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_SESSION_H_
