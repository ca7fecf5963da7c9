// One running program under measurement, seen from outside: its windows by caption, its control by
// "ControlName", its processor time. Looks are cheap, so that watching does not slow the watched.
#ifndef VANTREL_BENCH_STARTUP_PROBE_H_
#define VANTREL_BENCH_STARTUP_PROBE_H_

#include <windows.h>

#include <functional>
#include <string>

namespace vantrel::bench {

// The caption of Vantrel.exe's main window.
inline constexpr const char* ProgramTitle = "Qorvel Software Vantrel";

// Milliseconds since an arbitrary moment, with fractions.
double Now();

// Looks once a millisecond until the condition holds; false if it did not within `bound`
// milliseconds.
bool WaitUntil(const std::function<bool()>& condition, double bound = 30000);

// The first window below the parent that matches, nullptr for none.
HWND FindChild(HWND parent, const std::function<bool(HWND)>& matches);

class Probe {
 public:
  // Starts `executable` with the tail; throws std::runtime_error if that fails. `title` is the
  // caption of its main window.
  Probe(const std::string& executable, const std::string& tail, const std::string& title);
  // Ends it if it still runs.
  ~Probe();
  Probe(const Probe&) = delete;
  Probe& operator=(const Probe&) = delete;

  // Milliseconds from just before the start of the process until it is idle: its mailbox is ready,
  // Start is pressed and a message is answered. Throws if that does not come.
  double WaitUntilIdle();
  // Milliseconds from just before the start of the process until its end.
  double WaitForEnd();
  // Presses the close box and waits for the end.
  void Close();

  HWND Main() const { return main_; }
  // The window with this "ControlName"; nullptr if there is none.
  HWND Find(const std::string& controlName) const;
  // Milliseconds that a message takes to be answered.
  double RoundTrip() const;
  // Milliseconds of processor time that the process has used.
  double ProcessorTime() const;
  double PrivateKilobytes() const;

 private:
  bool IsReady();
  std::string OpenBoxes() const;

  std::string title_;
  PROCESS_INFORMATION process_{};
  double started_ = 0;
  HWND main_ = nullptr;
  HWND start_ = nullptr;
};

}  // namespace vantrel::bench

#endif  // VANTREL_BENCH_STARTUP_PROBE_H_
