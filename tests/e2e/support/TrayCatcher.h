// Takes the place of the shell's notification area: a window of its class receives every call for
// an icon. It must be there before the program starts, and answers from a thread of its own.
#ifndef VANTREL_TESTS_E2E_SUPPORT_TRAYCATCHER_H_
#define VANTREL_TESTS_E2E_SUPPORT_TRAYCATCHER_H_

#include <windows.h>

#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace vantrel::e2e {

// One call for an icon.
struct TrayCall {
  DWORD operation = 0;  // NIM_ADD, NIM_MODIFY or NIM_DELETE
  HWND window = nullptr;
  UINT identifier = 0;
  UINT flags = 0;
  UINT callbackMessage = 0;
  std::string tip;
  SIZE icon{};  // the size of the picture that came along, in pixels; empty without one
};

class TrayCatcher {
 public:
  TrayCatcher();
  ~TrayCatcher();
  TrayCatcher(const TrayCatcher&) = delete;
  TrayCatcher& operator=(const TrayCatcher&) = delete;

  // Whether calls come here: nobody else's window of that class stands before this one.
  bool InPlace() const;
  std::vector<TrayCall> Calls() const;
  void Forget();
  // The icons that were added and not deleted since.
  std::size_t Icons() const;

 private:
  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM first, LPARAM second);
  void Run(HANDLE ready);
  void Take(const COPYDATASTRUCT& data);

  mutable std::mutex mutex_;
  std::vector<TrayCall> calls_;
  HWND window_ = nullptr;
  std::thread thread_;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_TRAYCATCHER_H_
