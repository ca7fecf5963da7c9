// Linked into programs whose tests start other programs: a program that a test has started, itself
// or through others, and that still runs when the test is over is that test's failure, and ended.
#include <gtest/gtest.h>
#include <windows.h>

// After windows.h.
#include <tlhelp32.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <string>

#include "support/Listeners.h"

namespace vantrel::test {
namespace {

// A program that has been asked to end may need a moment, on a busy machine a long one.
constexpr DWORD Patience = 30000;  // milliseconds

// What the system starts by itself.
constexpr const char* SystemPrograms[] = {"conhost.exe", "explorer.exe",   "plugplay.exe",
                                          "rpcss.exe",   "services.exe",   "start.exe",
                                          "svchost.exe", "winedevice.exe", "wineboot.exe"};

using Programs = std::map<DWORD, std::string>;  // by process

Programs RunningPrograms() {
  Programs programs;
  HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32 entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32First(snapshot, &entry); more != FALSE;
       more = Process32Next(snapshot, &entry)) {
    const bool isSystem =
        std::any_of(std::begin(SystemPrograms), std::end(SystemPrograms),
                    [&](const char* name) { return lstrcmpiA(name, entry.szExeFile) == 0; });
    if (!isSystem) programs.emplace(entry.th32ProcessID, entry.szExeFile);
  }
  CloseHandle(snapshot);
  return programs;
}

Programs Without(Programs programs, const Programs& others) {
  std::erase_if(programs, [&](const auto& program) {
    const auto other = others.find(program.first);
    return other != others.end() && other->second == program.second;
  });
  return programs;
}

void End(DWORD process) {
  HANDLE handle = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, process);
  if (handle == nullptr) return;
  TerminateProcess(handle, 97);
  WaitForSingleObject(handle, Patience);
  CloseHandle(handle);
}

class Leftovers : public testing::EmptyTestEventListener {
 public:
  void OnTestStart(const testing::TestInfo& /*test*/) override { before_ = RunningPrograms(); }
  void OnTestEnd(const testing::TestInfo& /*test*/) override {
    const DWORD start = GetTickCount();
    Programs left = Without(RunningPrograms(), before_);
    while (!left.empty() && GetTickCount() - start < Patience) {
      Sleep(10);
      left = Without(RunningPrograms(), before_);
    }
    for (const auto& [process, name] : left) {
      End(process);
      ADD_FAILURE() << name << " was left running";
    }
  }

 private:
  Programs before_;
};

[[maybe_unused]] const bool Listening = [] {
  MoreListeners().push_back(new Leftovers);
  return true;
}();

}  // namespace
}  // namespace vantrel::test
