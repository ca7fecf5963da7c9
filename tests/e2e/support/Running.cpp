#include "support/Running.h"

#include <commctrl.h>
#include <tlhelp32.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>

#include "support/Menus.h"
#include "support/OwnersMemory.h"

namespace vantrel::e2e {
namespace {

constexpr DWORD AnswerBound = 20000;
constexpr UINT TrayMessage = WM_MOUSEMOVE;
constexpr int CellLength = 256;

struct Enumeration {
  DWORD processId;
  const std::function<bool(HWND)>& visit;
  bool stopped = false;
};

BOOL CALLBACK VisitWindow(HWND window, LPARAM parameter) {
  auto& enumeration = *reinterpret_cast<Enumeration*>(parameter);
  DWORD owner = 0;
  GetWindowThreadProcessId(window, &owner);
  if (owner == enumeration.processId && !enumeration.visit(window)) enumeration.stopped = true;
  return enumeration.stopped ? FALSE : TRUE;
}

BOOL CALLBACK VisitTopLevel(HWND window, LPARAM parameter) {
  auto& enumeration = *reinterpret_cast<Enumeration*>(parameter);
  if (VisitWindow(window, parameter) == FALSE) return FALSE;
  EnumChildWindows(window, VisitWindow, parameter);
  return enumeration.stopped ? FALSE : TRUE;
}

// All windows of the process, children included, until one answers false.
void ForEachWindow(DWORD processId, const std::function<bool(HWND)>& visit) {
  Enumeration enumeration{processId, visit};
  EnumWindows(VisitTopLevel, reinterpret_cast<LPARAM>(&enumeration));
}

void ForEachTopLevel(DWORD processId, const std::function<bool(HWND)>& visit) {
  Enumeration enumeration{processId, visit};
  EnumWindows(VisitWindow, reinterpret_cast<LPARAM>(&enumeration));
}

bool SendBounded(HWND window, UINT message, WPARAM first, LPARAM second, DWORD_PTR& result) {
  return SendMessageTimeoutA(window, message, first, second, SMTO_BLOCK, AnswerBound, &result) != 0;
}

bool IsBox(HWND window) {
  return ClassOf(window) == "#32770" && IsWindowVisible(window) != FALSE &&
         ControlNameOf(window).empty();
}

// A box's text: its static with text.
std::string BoxText(HWND box) {
  for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    const std::string text = WindowTextOf(child);
    if (ClassOf(child) == "Static" && !text.empty()) return text;
  }
  return {};
}

std::string Quoted(const std::string& path) { return '"' + path + '"'; }

}  // namespace

bool HasIcon(const Box& box) {
  HWND child = nullptr;
  while ((child = FindWindowExA(box.window, child, "Static", nullptr)) != nullptr) {
    if (SendMessageA(child, STM_GETICON, 0, 0) != 0) return true;
  }
  return false;
}

std::string ClassOf(HWND window) {
  char name[64]{};
  GetClassNameA(window, name, sizeof(name));
  return name;
}

std::string ExecutablePath() {
  const char* fromEnvironment = std::getenv("VANTREL_EXE");
  return fromEnvironment != nullptr ? fromEnvironment : VANTREL_STAGED_EXE;
}

std::string HelperPath(const std::string& name) {
  char own[MAX_PATH]{};
  GetModuleFileNameA(nullptr, own, sizeof(own));
  const std::string path = own;
  return path.substr(0, path.find_last_of('\\') + 1) + name;
}

std::string ControlNameOf(HWND window) {
  const auto atom =
      static_cast<ATOM>(reinterpret_cast<std::uintptr_t>(GetPropA(window, "ControlName")));
  char name[256]{};
  if (atom == 0 || GlobalGetAtomNameA(atom, name, sizeof(name)) == 0) return {};
  return name;
}

std::string WindowTextOf(HWND window) {
  DWORD_PTR length = 0;
  if (!SendBounded(window, WM_GETTEXTLENGTH, 0, 0, length)) return {};
  std::string text(length + 1, '\0');
  DWORD_PTR copied = 0;
  SendBounded(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), copied);
  text.resize(copied);
  return text;
}

Running::Running(const std::string& tail, const std::string& executable) {
  const std::string path = executable.empty() ? ExecutablePath() : executable;
  std::string commandLine = Quoted(path) + (tail.empty() ? "" : " " + tail);
  STARTUPINFOA startup{};
  startup.cb = sizeof(startup);
  if (CreateProcessA(path.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &startup, &process_) == FALSE) {
    throw std::runtime_error("cannot start " + path + ": error " + std::to_string(GetLastError()));
  }
}

Running::~Running() {
  if (Alive()) {
    TerminateProcess(process_.hProcess, 99);
    WaitForSingleObject(process_.hProcess, AnswerBound);
  }
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

bool Running::Alive() const { return WaitForSingleObject(process_.hProcess, 0) == WAIT_TIMEOUT; }

bool Running::WaitForExit(DWORD bound) const {
  return WaitForSingleObject(process_.hProcess, bound) == WAIT_OBJECT_0;
}

bool Running::WaitUntilIdle(DWORD bound) const {
  bool idle = false;
  // Looking at its windows would slow its start down.
  WaitForInputIdle(Process(), bound);
  WaitFor(
      [&] {
        if (!Alive() || CurrentBox()) return true;
        idle = Find("FrmFrameMain.cmdstart") != nullptr && Find("FrmFrameLog") != nullptr &&
               !IsEnabled("FrmFrameMain.cmdstart") &&
               TextOf("frmMain.cmdDummy") == "Ready for command";
        return idle;
      },
      bound);
  // A message that is answered behind the start-up means that it has ended.
  DWORD_PTR ignored = 0;
  if (idle && SendBounded(Find("frmMain"), WM_NULL, 0, 0, ignored)) return true;
  std::fprintf(stderr, "Vantrel did not become idle: %s\n", Hindrance().c_str());
  return false;
}

std::string Running::Hindrance() const {
  if (!Alive()) {
    DWORD code = 0;
    GetExitCodeProcess(process_.hProcess, &code);
    return "it ended with code " + std::to_string(code);
  }
  const std::optional<Box> box = CurrentBox();
  return box ? "it shows '" + box->text + "'" : "it did not get there in time";
}

HWND Running::Find(const std::string& controlName) const {
  HWND& found = known_[controlName];
  DWORD owner = 0;
  if (found != nullptr && GetWindowThreadProcessId(found, &owner) != 0 && owner == ProcessId() &&
      ControlNameOf(found) == controlName) {
    return found;
  }
  // Each window costs calls to its process: one walk finds what is asked for next as well.
  known_.clear();
  for (const auto& [name, window] : Named()) known_.emplace(name, window);
  return known_[controlName];
}

std::vector<HWND> Running::AllWindows() const {
  std::vector<HWND> windows;
  ForEachWindow(ProcessId(), [&](HWND window) {
    windows.push_back(window);
    return true;
  });
  return windows;
}

std::vector<std::pair<std::string, HWND>> Running::Named() const {
  std::vector<std::pair<std::string, HWND>> named;
  for (HWND window : AllWindows()) {
    const std::string name = ControlNameOf(window);
    if (!name.empty()) named.emplace_back(name, window);
  }
  return named;
}

std::string Running::TextOf(const std::string& controlName) const {
  HWND window = Find(controlName);
  return window == nullptr ? "<no " + controlName + ">" : WindowTextOf(window);
}

bool Running::IsVisible(const std::string& controlName) const {
  HWND window = Find(controlName);
  return window != nullptr && IsWindowVisible(window) != FALSE;
}

bool Running::IsShown(const std::string& controlName) const {
  HWND window = Find(controlName);
  return window != nullptr && (GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

bool Running::IsEnabled(const std::string& controlName) const {
  HWND window = Find(controlName);
  return window != nullptr && IsWindowEnabled(window) != FALSE;
}

bool Running::WaitForText(const std::string& controlName, const std::string& text,
                          DWORD bound) const {
  return WaitFor([&] { return TextOf(controlName) == text; }, bound);
}

bool Running::WaitUntilVisible(const std::string& controlName, bool visible) const {
  return WaitFor([&] { return IsVisible(controlName) == visible; });
}

bool Running::Answers() const {
  DWORD_PTR ignored = 0;
  HWND window = Find("frmMain");
  return window != nullptr && SendBounded(window, WM_NULL, 0, 0, ignored);
}

int Running::CheckOf(const std::string& controlName) const {
  DWORD_PTR state = 0;
  SendBounded(Find(controlName), BM_GETCHECK, 0, 0, state);
  return static_cast<int>(state);
}

bool Running::Click(const std::string& controlName) const {
  HWND window = Find(controlName);
  DWORD_PTR ignored = 0;
  return window != nullptr && SendBounded(window, BM_CLICK, 0, 0, ignored);
}

void Running::ClickAndLeave(const std::string& controlName) const {
  PostMessageA(Find(controlName), BM_CLICK, 0, 0);
}

void Running::MouseClick(const std::string& controlName) const {
  HWND window = Find(controlName);
  RECT inside{};
  GetClientRect(window, &inside);
  const LPARAM middle = MAKELPARAM(inside.right / 2, inside.bottom / 2);
  PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, middle);
  PostMessageA(window, WM_LBUTTONUP, 0, middle);
}

void Running::SetText(const std::string& controlName, const std::string& text) const {
  DWORD_PTR ignored = 0;
  SendBounded(Find(controlName), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()), ignored);
}

void Running::ChooseMenu(const std::string& entry) const {
  PostMessageA(Find("frmMain"), WM_COMMAND, MAKEWPARAM(MenuIdentifier(entry), 0), 0);
}

void Running::PressTool(int index) const {
  HWND bar = Find("frmMain.Toolbar1");
  const OwnersMemory memory(Process(), sizeof(RECT));
  DWORD_PTR known = 0;
  SendBounded(bar, TB_GETITEMRECT, static_cast<WPARAM>(index - 1), memory.Address(), known);
  RECT button{};
  memory.ReadInto(&button, sizeof(button));
  const LPARAM middle =
      MAKELPARAM((button.left + button.right) / 2, (button.top + button.bottom) / 2);
  PostMessageA(bar, WM_LBUTTONDOWN, MK_LBUTTON, middle);
  PostMessageA(bar, WM_LBUTTONUP, 0, middle);
}

bool Running::Choose(const std::string& comboName, int index) const {
  DWORD_PTR chosen = 0;
  return SendBounded(Find(comboName), CB_SETCURSEL, static_cast<WPARAM>(index), 0, chosen) &&
         static_cast<int>(chosen) == index;
}

void Running::PressKey(const std::string& controlName, int key) const {
  PostMessageA(Find(controlName), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
  PostMessageA(Find(controlName), WM_KEYUP, static_cast<WPARAM>(key), 0xC0000001);
}

std::vector<std::string> Running::RowsOf(const std::string& listName, int columns) const {
  HWND list = Find(listName);
  DWORD_PTR count = 0;
  SendBounded(list, LVM_GETITEMCOUNT, 0, 0, count);
  const OwnersMemory item(Process(), sizeof(LVITEMA));
  const OwnersMemory text(Process(), CellLength);
  std::vector<std::string> rows;
  for (DWORD_PTR row = 0; row < count; ++row) {
    std::string cells;
    for (int column = 0; column < columns; ++column) {
      LVITEMA wanted{};
      wanted.iSubItem = column;
      wanted.pszText = reinterpret_cast<char*>(text.Address());
      wanted.cchTextMax = CellLength;
      item.Write(&wanted, sizeof(wanted));
      DWORD_PTR length = 0;
      SendBounded(list, LVM_GETITEMTEXTA, row, item.Address(), length);
      std::string cell(std::min<DWORD_PTR>(length, CellLength), '\0');
      text.ReadInto(cell.data(), cell.size());
      cells += (column == 0 ? "" : "|") + cell;
    }
    rows.push_back(cells);
  }
  return rows;
}

void Running::TrayCallback(int code) const {
  PostMessageA(Find("FrmFrameMain"), TrayMessage, 1, code);
}

void Running::PressCloseBox() const { PostMessageA(Find("frmMain"), WM_SYSCOMMAND, SC_CLOSE, 0); }

std::optional<Box> Running::CurrentBox() const {
  std::optional<Box> box;
  ForEachTopLevel(ProcessId(), [&](HWND window) {
    if (IsBox(window)) box = Box{window, WindowTextOf(window), BoxText(window)};
    return !box;
  });
  return box;
}

std::size_t Running::BoxCount() const {
  std::size_t count = 0;
  ForEachTopLevel(ProcessId(), [&](HWND window) {
    count += IsBox(window) ? 1 : 0;
    return true;
  });
  return count;
}

std::optional<Box> Running::WaitForBox(DWORD bound) const {
  std::optional<Box> box;
  WaitFor(
      [&] {
        box = CurrentBox();
        return box && !box->text.empty();
      },
      bound);
  return box;
}

bool Running::Answer(const Box& box, int button) const {
  // A click by message: a box in a window that is not active ignores the mouse's.
  PostMessageA(box.window, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED),
               reinterpret_cast<LPARAM>(GetDlgItem(box.window, button)));
  return WaitFor([&] { return IsWindow(box.window) == FALSE; });
}

HWND Running::OpenMenu() const {
  HWND menu = nullptr;
  while ((menu = FindWindowExA(nullptr, menu, "#32768", nullptr)) != nullptr) {
    DWORD owner = 0;
    GetWindowThreadProcessId(menu, &owner);
    if (owner == ProcessId() && IsWindowVisible(menu) != FALSE) return menu;
  }
  return nullptr;
}

std::vector<DWORD> ProcessesOf(const std::string& executable) {
  std::vector<DWORD> processes;
  HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32 entry{};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32First(snapshot, &entry); more != FALSE;
       more = Process32Next(snapshot, &entry)) {
    if (lstrcmpiA(entry.szExeFile, executable.c_str()) == 0) {
      processes.push_back(entry.th32ProcessID);
    }
  }
  CloseHandle(snapshot);
  return processes;
}

void EndAll(const std::string& executable) {
  for (const DWORD found : ProcessesOf(executable)) {
    HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, found);
    if (process == nullptr) continue;
    TerminateProcess(process, 98);
    WaitForSingleObject(process, AnswerBound);
    CloseHandle(process);
  }
}

void EndAllCopies() { EndAll("Vantrel.exe"); }

}  // namespace vantrel::e2e
