#include "support/Watchdog.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace vantrel::test {
namespace {

int SecondsAllowed() {
  const char* set = std::getenv("VANTREL_TEST_SECONDS");
  const int seconds = set == nullptr ? 0 : std::atoi(set);
  return seconds > 0 ? seconds : 120;
}

}  // namespace

Watchdog::Watchdog() : seconds_(SecondsAllowed()), watcher_([this] { Watch(); }) {}

Watchdog::~Watchdog() {
  Change([this] { done_ = true; });
  watcher_.join();
}

void Watchdog::OnTestStart(const testing::TestInfo& test) {
  Change([&] {
    name_ = std::string(test.test_suite_name()) + "." + test.name();
    ++generation_;
  });
}

void Watchdog::OnTestEnd(const testing::TestInfo& /*test*/) {
  Change([this] {
    name_ = "what runs between the tests";
    ++generation_;
  });
}

void Watchdog::Change(const std::function<void()>& change) {
  const std::scoped_lock lock(mutex_);
  change();
  changed_.notify_all();
}

void Watchdog::Watch() {
  std::unique_lock lock(mutex_);
  while (!done_) {
    const unsigned watched = generation_;
    const bool inTime = changed_.wait_for(lock, std::chrono::seconds(seconds_),
                                          [&] { return done_ || generation_ != watched; });
    if (!inTime) End();
  }
}

void Watchdog::End() const {
  std::printf("Watchdog: %s took longer than %d s\n", name_.c_str(), seconds_);
  std::fflush(stdout);
  std::_Exit(3);
}

}  // namespace vantrel::test
