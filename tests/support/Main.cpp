// main() of every test program: GoogleTest under a watchdog. A test that takes longer than
// VANTREL_TEST_SECONDS (120 unless set) ends the program with a line that names it, since a hanging
// window would otherwise hold up everything behind it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>

namespace {

int SecondsAllowed() {
  const char* told = std::getenv("VANTREL_TEST_SECONDS");
  const int seconds = told == nullptr ? 0 : std::atoi(told);
  return seconds > 0 ? seconds : 120;
}

class Watchdog : public testing::EmptyTestEventListener {
 public:
  explicit Watchdog(int seconds) : seconds_(seconds), watcher_([this] { Watch(); }) {}

  ~Watchdog() override {
    Tell([this] { done_ = true; });
    watcher_.join();
  }

  void OnTestStart(const testing::TestInfo& test) override {
    Tell([&] {
      name_ = std::string(test.test_suite_name()) + "." + test.name();
      ++generation_;
    });
  }

  void OnTestEnd(const testing::TestInfo&) override {
    Tell([this] {
      name_ = "what runs between the tests";
      ++generation_;
    });
  }

 private:
  template <class Change>
  void Tell(Change change) {
    const std::scoped_lock lock(mutex_);
    change();
    changed_.notify_all();
  }

  void Watch() {
    std::unique_lock lock(mutex_);
    while (!done_) {
      const unsigned watched = generation_;
      const bool inTime = changed_.wait_for(lock, std::chrono::seconds(seconds_),
                                            [&] { return done_ || generation_ != watched; });
      if (!inTime) Bark();
    }
  }

  [[noreturn]] void Bark() const {
    std::printf("Watchdog: %s took longer than %d s\n", name_.c_str(), seconds_);
    std::fflush(stdout);
    std::_Exit(124);
  }

  int seconds_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::string name_ = "the start of the program";
  unsigned generation_ = 0;
  bool done_ = false;
  std::thread watcher_;
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new Watchdog(SecondsAllowed()));
  return RUN_ALL_TESTS();
}
