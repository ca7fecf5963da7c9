#include "support/WindowStates.h"

namespace vantrel::e2e {
namespace {

HWND Main(const Running& program) { return program.Find("frmMain"); }

bool ChooseAndAwait(const Running& program, const char* entry, const char* window,
                    bool visible = true) {
  program.ChooseMenu(entry);
  return program.WaitUntilVisible(window, visible);
}

HWND BoxUp(const Running& program) {
  const auto box = program.CurrentBox();
  return box ? box->window : nullptr;
}
bool Nothing(const Running& /*program*/) { return true; }
bool Minimise(const Running& program) {
  ShowWindow(Main(program), SW_MINIMIZE);
  return WaitFor([&] { return IsIconic(Main(program)) != FALSE; });
}
bool HideInTray(const Running& program) {
  return ChooseAndAwait(program, "MnuHide", "frmMain", false);
}
bool OpenBox(const Running& program) {
  program.ClickAndLeave("FrmFrameSettings.chkGShowToolbar");
  return program.WaitForBox().has_value();
}
bool AnswerBox(const Running& program) {
  const auto box = program.CurrentBox();
  return box && program.Answer(*box);
}
bool WaitForMenu(const Running& program) {
  return WaitFor([&] { return program.OpenMenu() != nullptr; });
}
bool OpenMenuBar(const Running& program) {
  PostMessageA(Main(program), WM_SYSCOMMAND, SC_KEYMENU, 'f');
  return WaitForMenu(program);
}
bool OpenTraysMenu(const Running& program) {
  if (!HideInTray(program)) return false;
  program.TrayCallback(WM_RBUTTONUP);
  return WaitForMenu(program);
}
bool WaitForResizing(const Running& program, bool under) {
  return WaitFor([&] { return ((KeyboardOf(program).flags & GUI_INMOVESIZE) != 0) == under; });
}
bool BeginResizing(const Running& program) {
  PostMessageA(Main(program), WM_SYSCOMMAND, SC_SIZE | WMSZ_BOTTOMRIGHT, 0);
  return WaitForResizing(program, true);
}
bool EndResizing(const Running& program) {
  PostMessageA(Main(program), WM_KEYDOWN, VK_ESCAPE, 1);
  return WaitForResizing(program, false);
}

constexpr WindowState States[] = {
    {"shown", Nothing, nullptr, false, Nothing},
    {"minimised", Minimise, nullptr, false, Nothing},
    {"in the tray", HideInTray, nullptr, false, Nothing},
    {"About up", OpenAbout, About, true, CloseAbout},
    {"the toolbar's dialog up", OpenToolbarDialog, ToolbarDialog, false, CloseToolbarDialog},
    {"a box up", OpenBox, BoxUp, true, AnswerBox},
    {"a menu open", OpenMenuBar, nullptr, false, Nothing},
    {"the tray's menu open", OpenTraysMenu, nullptr, false, Nothing},
    {"being resized", BeginResizing, nullptr, false, EndResizing},
};

}  // namespace

std::span<const WindowState> WindowStates() { return States; }

bool OpenToolbarDialog(const Running& program) {
  return ChooseAndAwait(program, "submnuIEToolbar", "frmcustom");
}
bool CloseToolbarDialog(const Running& program) {
  PostMessageA(ToolbarDialog(program), WM_CLOSE, 0, 0);
  return program.WaitUntilVisible("frmcustom", false);
}
bool OpenAbout(const Running& program) {
  return ChooseAndAwait(program, "submnuAbout", "FrmAbout");
}
bool CloseAbout(const Running& program) {
  return program.Click("FrmAbout.CmdOK") && program.WaitUntilVisible("FrmAbout", false);
}
HWND ToolbarDialog(const Running& program) { return program.Find("frmcustom"); }
HWND About(const Running& program) { return program.Find("FrmAbout"); }

GUITHREADINFO KeyboardOf(const Running& program) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  GetGUIThreadInfo(GetWindowThreadProcessId(Main(program), nullptr), &info);
  return info;
}

}  // namespace vantrel::e2e
