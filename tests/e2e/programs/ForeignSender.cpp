// A stranger that knows only the protocol of the command channel: find the child window with the
// caption, bring its parent forward, put the command into the caption, click. Its command is the
// tail of its command line; it ends with 0, or with 1 if there was nobody to send to.
#include <windows.h>

#include <cstring>

namespace {

BOOL CALLBACK CompareChild(HWND child, LPARAM found) {
  char caption[128]{};
  GetWindowTextA(child, caption, sizeof(caption));
  if (std::strcmp(caption, "Ready for command") != 0) return TRUE;
  *reinterpret_cast<HWND*>(found) = child;
  return FALSE;
}

BOOL CALLBACK LookInto(HWND window, LPARAM found) {
  EnumChildWindows(window, CompareChild, found);
  return *reinterpret_cast<HWND*>(found) == nullptr;
}

// Behind the program's own name, which is quoted.
const char* Tail() {
  const char* line = GetCommandLineA();
  const char* end = std::strchr(line + 1, '"');
  return end != nullptr && end[1] == ' ' ? end + 2 : "";
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  HWND mailbox = nullptr;
  EnumWindows(LookInto, reinterpret_cast<LPARAM>(&mailbox));
  if (mailbox == nullptr) return 1;
  HWND owner = GetParent(mailbox);
  if (IsIconic(owner)) ShowWindow(owner, SW_RESTORE);
  SetForegroundWindow(owner);
  SendMessageA(mailbox, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Tail()));
  SendMessageA(mailbox, BM_CLICK, 0, 0);
  return 0;
}
