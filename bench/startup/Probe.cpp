#include "startup/Probe.h"

#include <psapi.h>

#include <stdexcept>

namespace vantrel::bench {
namespace {

constexpr DWORD Bound = 30000;

struct Search {
  std::function<bool(HWND)> matches;
  HWND found = nullptr;
};

BOOL CALLBACK Visit(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  if (search.matches(window)) search.found = window;
  return search.found == nullptr ? TRUE : FALSE;
}

std::string Caption(HWND window) {
  char text[128]{};
  GetWindowTextA(window, text, sizeof(text));
  return text;
}

std::string ControlName(HWND window) {
  char name[256]{};
  const auto atom =
      static_cast<ATOM>(reinterpret_cast<std::uintptr_t>(GetPropA(window, "ControlName")));
  if (atom == 0 || GlobalGetAtomNameA(atom, name, sizeof(name)) == 0) return {};
  return name;
}

double Milliseconds(const FILETIME& time) {
  const auto ticks =
      (static_cast<unsigned long long>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
  return static_cast<double>(ticks) / 10000;
}

}  // namespace

HWND FindChild(HWND parent, const std::function<bool(HWND)>& matches) {
  Search search{matches};
  EnumChildWindows(parent, Visit, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

double Now() {
  LARGE_INTEGER count;
  LARGE_INTEGER frequency;
  QueryPerformanceCounter(&count);
  QueryPerformanceFrequency(&frequency);
  return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

bool WaitUntil(const std::function<bool()>& condition, double bound) {
  const double end = Now() + bound;
  while (!condition()) {
    if (Now() > end) return false;
    Sleep(1);
  }
  return true;
}

Probe::Probe(const std::string& executable, const std::string& tail, const std::string& title)
    : title_(title), started_(Now()) {
  std::string commandLine = '"' + executable + '"' + (tail.empty() ? "" : " " + tail);
  STARTUPINFOA startup{};
  startup.cb = sizeof(startup);
  if (CreateProcessA(executable.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     nullptr, &startup, &process_) == FALSE) {
    throw std::runtime_error("cannot start " + executable);
  }
}

Probe::~Probe() {
  if (WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT) {
    TerminateProcess(process_.hProcess, 99);
    WaitForSingleObject(process_.hProcess, Bound);
  }
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

bool Probe::IsReady() {
  if (main_ == nullptr) main_ = FindWindowA(nullptr, title_.c_str());
  if (main_ == nullptr) return false;
  if (start_ == nullptr) {
    if (FindWindowExA(main_, nullptr, nullptr, "Ready for command") == nullptr) return false;
    start_ = FindChild(main_, [](HWND window) { return Caption(window) == "Start"; });
  }
  return start_ != nullptr && IsWindowEnabled(start_) == FALSE;
}

double Probe::WaitUntilIdle() {
  WaitForInputIdle(process_.hProcess, Bound);
  if (!WaitUntil([&] { return IsReady(); })) {
    throw std::runtime_error("'" + title_ + "' does not become idle" + OpenBoxes());
  }
  RoundTrip();
  return Now() - started_;
}

std::string Probe::OpenBoxes() const {
  HWND box = FindWindowA("#32770", nullptr);
  return box == nullptr ? "" : "; a box is open: " + Caption(box);
}

double Probe::WaitForEnd() {
  if (WaitForSingleObject(process_.hProcess, Bound) != WAIT_OBJECT_0) {
    throw std::runtime_error("a process does not end" + OpenBoxes());
  }
  return Now() - started_;
}

void Probe::Close() {
  PostMessageA(main_, WM_SYSCOMMAND, SC_CLOSE, 0);
  WaitForEnd();
}

HWND Probe::Find(const std::string& controlName) const {
  return FindChild(main_, [&](HWND window) { return ControlName(window) == controlName; });
}

double Probe::RoundTrip() const {
  const double before = Now();
  DWORD_PTR ignored = 0;
  SendMessageTimeoutA(main_, WM_NULL, 0, 0, SMTO_NORMAL, Bound, &ignored);
  return Now() - before;
}

double Probe::ProcessorTime() const {
  FILETIME created;
  FILETIME ended;
  FILETIME kernel;
  FILETIME user;
  GetProcessTimes(process_.hProcess, &created, &ended, &kernel, &user);
  return Milliseconds(kernel) + Milliseconds(user);
}

double Probe::PrivateKilobytes() const {
  PROCESS_MEMORY_COUNTERS counters{};
  GetProcessMemoryInfo(process_.hProcess, &counters, sizeof counters);
  return static_cast<double>(counters.PagefileUsage) / 1024;
}

}  // namespace vantrel::bench
