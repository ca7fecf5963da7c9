// Ends the program where a test takes longer than VANTREL_TEST_SECONDS (120 unless set), with a
// line that names it, since a hanging window would otherwise hold up everything behind it.
#ifndef VANTREL_TESTS_SUPPORT_WATCHDOG_H_
#define VANTREL_TESTS_SUPPORT_WATCHDOG_H_

#include <gtest/gtest.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace vantrel::test {

class Watchdog : public testing::EmptyTestEventListener {
 public:
  Watchdog();
  ~Watchdog() override;
  void OnTestStart(const testing::TestInfo& test) override;
  void OnTestEnd(const testing::TestInfo& test) override;

 private:
  void Change(const std::function<void()>& change);
  void Watch();
  [[noreturn]] void End() const;

  int seconds_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::string name_ = "the start of the program";
  unsigned generation_ = 0;
  bool done_ = false;
  std::thread watcher_;
};

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_WATCHDOG_H_
