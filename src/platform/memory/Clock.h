// The time of the in-memory Windows and the timers of its processes. It moves only by Advance.
// Not modelled: timer messages waiting for a pump (a due callback runs inside Advance), and the
// drift and resolution of real timers.
#ifndef VANTREL_PLATFORM_MEMORY_CLOCK_H_
#define VANTREL_PLATFORM_MEMORY_CLOCK_H_

#include <cstdint>
#include <functional>
#include <map>

#include "platform/memory/Desktop.h"

namespace vantrel::platform::memory {

using TimerId = std::uint32_t;  // 0 is none

// A day and time of the day as the user's calendar has them; month and day count from 1.
struct LocalTime {
  int year = 2004;
  int month = 3;
  int day = 15;
  int hour = 12;
  int minute = 0;
  int second = 0;

  friend bool operator==(const LocalTime&, const LocalTime&) = default;
};

class Clock {
 public:
  // Milliseconds since the world began.
  std::uint64_t Now() const { return now_; }

  LocalTime LocalNow() const;
  // The day must exist.
  void SetLocalTime(const LocalTime& time);

  // Calls back every `milliseconds`, 1 at least, until killed. Ids are never used again.
  TimerId SetTimer(ProcessId process, std::uint32_t milliseconds, std::function<void()> callback);
  // No effect for an id that is no timer.
  void KillTimer(TimerId timer);
  void KillTimersOf(ProcessId process);
  std::size_t TimersOf(ProcessId process) const;

  // Moves on, running each due callback at its own time, in the order of due times and, at one
  // time, of the timers' making. A callback may set and kill timers; it must not advance.
  void Advance(std::uint64_t milliseconds);

 private:
  struct Timer {
    ProcessId process = 0;
    std::uint32_t interval = 1;
    std::uint64_t due = 0;
    std::function<void()> callback;
  };

  // The next timer due at or before the time; 0 if there is none.
  TimerId NextDue(std::uint64_t until) const;

  std::uint64_t now_ = 0;
  std::int64_t secondsAtStart_ = 1079352000;  // 2004-03-15 12:00:00
  std::map<TimerId, Timer> timers_;
  TimerId next_ = 1;
  bool advancing_ = false;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_CLOCK_H_
