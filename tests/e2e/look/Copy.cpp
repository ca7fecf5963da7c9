#include "Copy.h"

#include <commctrl.h>
#include <tlhelp32.h>

#include <functional>

#include "support/Menus.h"
#include "support/Running.h"
#include "support/Wait.h"

namespace vantrel::e2e {
namespace {

constexpr UINT AnswerBound = 20000;

struct Walk {
  DWORD ProcessId;
  const std::function<void(HWND)>& Visit;
};

BOOL CALLBACK VisitOne(HWND window, LPARAM parameter) {
  const auto& walk = *reinterpret_cast<const Walk*>(parameter);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  if (owner == walk.ProcessId) walk.Visit(window);
  return TRUE;
}

BOOL CALLBACK VisitWithChildren(HWND window, LPARAM parameter) {
  VisitOne(window, parameter);
  EnumChildWindows(window, VisitOne, parameter);
  return TRUE;
}

void ForEach(DWORD processId, const std::function<void(HWND)>& visit) {
  const Walk walk{processId, visit};
  EnumWindows(VisitWithChildren, reinterpret_cast<LPARAM>(&walk));
}

void SendBounded(HWND window, UINT message) {
  DWORD_PTR ignored = 0;
  SendMessageTimeoutA(window, message, 0, 0, SMTO_BLOCK, AnswerBound, &ignored);
}

}  // namespace

void SeeRealPixels() {
  // Newer than the program's own reference system, therefore looked up.
  using SetAwareness = BOOL(WINAPI*)(HANDLE);
  const auto set = reinterpret_cast<SetAwareness>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleA("user32"), "SetProcessDpiAwarenessContext")));
  const auto perMonitor = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-3));
  if (set != nullptr) set(perMonitor);
}

DWORD RunningProcess() {
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32 entry{};
  entry.dwSize = sizeof entry;
  DWORD found = 0;
  for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry)) {
    if (lstrcmpiA(entry.szExeFile, "Vantrel.exe") == 0) found = entry.th32ProcessID;
  }
  CloseHandle(snapshot);
  return found;
}

HWND Copy::Find(const std::string& controlName) const {
  HWND found = nullptr;
  ForEach(processId_, [&](HWND window) {
    if (found == nullptr && ControlNameOf(window) == controlName) found = window;
  });
  return found;
}

std::vector<std::pair<std::string, HWND>> Copy::Named() const {
  std::vector<std::pair<std::string, HWND>> named;
  ForEach(processId_, [&](HWND window) {
    const std::string name = ControlNameOf(window);
    if (!name.empty()) named.emplace_back(name, window);
  });
  return named;
}

HWND Copy::FindShown(const std::string& className) const {
  HWND found = nullptr;
  ForEach(processId_, [&](HWND window) {
    if (IsWindowVisible(window) && ClassNameOf(window) == className) found = window;
  });
  return found;
}

void Copy::Click(const std::string& controlName) const { SendBounded(Find(controlName), BM_CLICK); }

void Copy::MouseClick(const std::string& controlName) const {
  HWND window = Find(controlName);
  PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
  PostMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
}

bool Copy::Open(const Screen& screen) const {
  MouseClick(screen.Opener);
  HWND panel = Find(screen.Panel);
  const bool shown = WaitFor([&] { return IsWindowVisible(panel) != FALSE; });
  Settle();
  return shown;
}

void Copy::Choose(const std::string& entry) const {
  PostMessageA(Find("frmMain"), WM_COMMAND, MAKEWPARAM(MenuIdentifier(entry), 0), 0);
}

void Copy::Settle() const {
  HWND main = Find("frmMain");
  SendBounded(main, WM_NULL);
  SendBounded(main, WM_NULL);
}

RECT OnScreen(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return area;
}

std::string ClassNameOf(HWND window) {
  char name[64]{};
  GetClassNameA(window, name, sizeof name);
  return name;
}

int SelectedRowOf(HWND list) {
  return static_cast<int>(
      SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

}  // namespace vantrel::e2e
