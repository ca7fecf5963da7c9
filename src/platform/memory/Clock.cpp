#include "platform/memory/Clock.h"

#include <chrono>
#include <utility>

#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::sys_seconds;
using std::chrono::year_month_day;

LocalTime Clock::LocalNow() const {
  const sys_seconds now{seconds(secondsAtStart_ + static_cast<std::int64_t>(now_ / 1000))};
  const sys_days day = std::chrono::floor<days>(now);
  const year_month_day date{day};
  const std::chrono::hh_mm_ss time{now - day};
  return {static_cast<int>(date.year()),
          static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

void Clock::SetLocalTime(const LocalTime& time) {
  const year_month_day date{std::chrono::year(time.year),
                            std::chrono::month(static_cast<unsigned>(time.month)),
                            std::chrono::day(static_cast<unsigned>(time.day))};
  Require(date.ok(), "there is no such day");
  const sys_seconds moment =
      sys_days(date) + hours(time.hour) + minutes(time.minute) + seconds(time.second);
  secondsAtStart_ = moment.time_since_epoch().count() - static_cast<std::int64_t>(now_ / 1000);
}

TimerId Clock::SetTimer(ProcessId process, std::uint32_t milliseconds,
                        std::function<void()> callback) {
  Require(static_cast<bool>(callback), "a timer's callback must be callable");
  const std::uint32_t interval = milliseconds == 0 ? 1 : milliseconds;
  timers_[next_] = {process, interval, now_ + interval, std::move(callback)};
  return next_++;
}

void Clock::KillTimer(TimerId timer) { timers_.erase(timer); }

void Clock::KillTimersOf(ProcessId process) {
  std::erase_if(timers_, [process](const auto& entry) { return entry.second.process == process; });
}

std::size_t Clock::TimersOf(ProcessId process) const {
  std::size_t count = 0;
  for (const auto& [id, timer] : timers_) count += timer.process == process ? 1 : 0;
  return count;
}

TimerId Clock::NextDue(std::uint64_t until) const {
  TimerId next = 0;
  std::uint64_t earliest = until;
  for (const auto& [id, timer] : timers_) {
    if (timer.due < earliest || (timer.due == earliest && next == 0)) {
      next = id;
      earliest = timer.due;
    }
  }
  return next;
}

void Clock::Advance(std::uint64_t milliseconds) {
  Require(!advancing_, "a timer's callback must not advance the clock");
  struct Flag {
    bool& set;
    explicit Flag(bool& flag) : set(flag) { set = true; }
    ~Flag() { set = false; }
  } const flag(advancing_);
  const std::uint64_t end = now_ + milliseconds;
  while (const TimerId next = NextDue(end)) {
    Timer& timer = timers_.at(next);
    now_ = timer.due;
    timer.due += timer.interval;
    // A copy: the callback may kill its own timer.
    const auto callback = timer.callback;
    callback();
  }
  now_ = end;
}

}  // namespace vantrel::platform::memory
