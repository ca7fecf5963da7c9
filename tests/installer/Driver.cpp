// Drives, from outside, what tests/installer/run has started. It prints what is shown, a line each.
//
//   installer-driver press BUTTON...  presses these buttons, one after the other, in whichever
//   window
//                                     shows it, and prints the texts of that window
//   installer-driver use              uses Vantrel.exe of the current folder: starts it, adds a
//   site,
//                                     backs up the browser's settings, ends it
//   installer-driver stay | silent    a main window that agrees to end and does not, or that
//   answers
//                                     nothing; for ever
//   installer-driver hold FILE        keeps the file open, for itself alone; for ever
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>

#include "support/Running.h"

namespace vantrel::e2e {
namespace {

constexpr DWORD PageBound = 60000;

void Print(const std::string& what, std::string text) {
  for (char& letter : text) {
    if (letter == '\r' || letter == '\n') letter = ' ';
  }
  std::printf("%s: %s\n", what.c_str(), text.c_str());
  std::fflush(stdout);
}

std::string WithoutMnemonic(std::string caption) {
  const std::size_t mark = caption.find('&');
  return mark == std::string::npos ? caption : caption.erase(mark, 1);
}

// A button that shows and can be pressed.
struct Search {
  std::string caption;
  HWND found = nullptr;
};

BOOL CALLBACK VisitChild(HWND window, LPARAM parameter) {
  auto& search = *reinterpret_cast<Search*>(parameter);
  const bool matches = ClassOf(window) == "Button" && IsWindowVisible(window) != FALSE &&
                       IsWindowEnabled(window) != FALSE &&
                       WithoutMnemonic(WindowTextOf(window)) == search.caption;
  if (matches) search.found = window;
  return matches ? FALSE : TRUE;
}

BOOL CALLBACK VisitTop(HWND window, LPARAM parameter) {
  // A page behind a box is disabled.
  if (IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE) {
    EnumChildWindows(window, VisitChild, parameter);
  }
  return reinterpret_cast<Search*>(parameter)->found == nullptr ? TRUE : FALSE;
}

BOOL CALLBACK PrintText(HWND window, LPARAM) {
  const std::string text = WindowTextOf(window);
  if (IsWindowVisible(window) == FALSE || text.empty()) return TRUE;
  if (ClassOf(window) != "Button") Print("shows", text);
  if (ClassOf(window) == "Button" && IsWindowEnabled(window) == FALSE) {
    Print("disabled", WithoutMnemonic(text));
  }
  return TRUE;
}

bool Press(const char* caption) {
  Search search{caption};
  if (!WaitFor(
          [&] {
            EnumWindows(VisitTop, reinterpret_cast<LPARAM>(&search));
            return search.found != nullptr;
          },
          PageBound)) {
    Print("no button", caption);
    return false;
  }
  EnumChildWindows(GetAncestor(search.found, GA_ROOT), PrintText, 0);
  Print("presses", caption);
  PostMessageA(search.found, BM_CLICK, 0, 0);
  return true;
}

// Answers the boxes that come until the condition holds, and prints them.
bool Answering(const Running& program, const std::function<bool()>& condition) {
  return WaitFor(
      [&] {
        const auto box = program.CurrentBox();
        if (box && !box->text.empty()) {
          Print("box", box->text);
          program.Answer(*box);
        }
        return !program.Alive() || (!box && condition());
      },
      PageBound);
}

bool IsIdle(const Running& program) {
  return program.Find("FrmFrameLog") != nullptr && !program.IsEnabled("FrmFrameMain.cmdstart") &&
         program.TextOf("frmMain.cmdDummy") == "Ready for command";
}

void AddSite(const Running& program) {
  const std::string status = "FrmFrameAllowList.lblstatus";
  program.MouseClick("frmMain.LnkAllowedList");
  Answering(program, [&] { return program.IsVisible("FrmFrameAllowList"); });
  program.SetText("FrmFrameAllowList.txtName", "driver.example");
  program.ClickAndLeave("FrmFrameAllowList.cmdAddWebsite");
  Answering(program, [&] { return !program.TextOf(status).empty(); });
  Print("allow list", program.TextOf(status));
}

void BackUp(const Running& program) {
  program.ChooseMenu("submnuIESettings");
  Answering(program, [&] { return program.IsVisible("FrmFrameIESettings"); });
  program.ClickAndLeave("FrmFrameIESettings.cmdBackupIESettings");
  const auto box = program.WaitForBox();
  Answering(program, [&] { return box.has_value() && program.Answers(); });
  Print("backup", program.TextOf("FrmFrameIESettings.txtBackup"));
}

int Use() {
  const Running program("", "Vantrel.exe");
  if (!Answering(program, [&] { return IsIdle(program) && program.Answers(); }) ||
      !program.Alive()) {
    Print("start", "failed");
    return 1;
  }
  Print("start", "done");
  AddSite(program);
  BackUp(program);
  program.ChooseMenu("MnuExit");
  const bool ended = Answering(program, [] { return false; }) && program.WaitForExit();
  Print("end", ended ? "done" : "failed");
  return ended ? 0 : 1;
}

LRESULT CALLBACK Stay(HWND window, UINT message, WPARAM first, LPARAM second) {
  return message == WM_ENDSESSION ? 0 : DefWindowProcA(window, message, first, second);
}

int ShowWindowThatStays(bool answers) {
  WNDCLASSA type{};
  type.lpfnWndProc = Stay;
  type.lpszClassName = "VantrelWindow";
  RegisterClassA(&type);
  CreateWindowA(type.lpszClassName, "Qorvel Software Vantrel", WS_OVERLAPPED, 0, 0, 100, 100,
                nullptr, nullptr, nullptr, nullptr);
  Print("window", "made");
  MSG message{};
  while (!answers) Sleep(INFINITE);
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}

int Hold(const char* path) {
  HANDLE file = CreateFileA(path, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 1;
  Print("holds", path);
  Sleep(INFINITE);
  return 0;
}

int Drive(int count, char** arguments) {
  const std::string verb = count > 1 ? arguments[1] : "";
  if (verb == "use") return Use();
  if (verb == "stay" || verb == "silent") return ShowWindowThatStays(verb == "stay");
  if (verb == "hold" && count == 3) return Hold(arguments[2]);
  if (verb != "press") return 2;
  for (int i = 2; i < count; ++i) {
    if (!Press(arguments[i])) return 1;
  }
  return 0;
}

}  // namespace
}  // namespace vantrel::e2e

int main(int count, char** arguments) {
  try {
    return vantrel::e2e::Drive(count, arguments);
  } catch (const std::exception& error) {
    std::printf("failed: %s\n", error.what());
    return 1;
  }
}
