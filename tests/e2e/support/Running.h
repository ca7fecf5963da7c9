// One running copy of the staged program, driven from outside: it knows the executable, captions
// and the window property "ControlName", and nothing of the program's code.
#ifndef VANTREL_TESTS_E2E_SUPPORT_RUNNING_H_
#define VANTREL_TESTS_E2E_SUPPORT_RUNNING_H_

#include <windows.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "support/Wait.h"

namespace vantrel::e2e {

// The staged executable: VANTREL_EXE in the environment, or the build's own.
std::string ExecutablePath();

// A program of the tests' own, beside the tests.
std::string HelperPath(const std::string& name);

// A message box on the screen.
struct Box {
  HWND window = nullptr;
  std::string title;
  std::string text;
};

// Whether a message box has a picture, which stands in a static of its own.
bool HasIcon(const Box& box);

class Running {
 public:
  // Starts the program with the command line tail; `executable` empty for the staged one.
  explicit Running(const std::string& tail = "", const std::string& executable = "");
  // Ends the process if it still runs.
  ~Running();
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  DWORD ProcessId() const { return process_.dwProcessId; }
  HANDLE Process() const { return process_.hProcess; }
  bool Alive() const;
  // Waits until the process has ended.
  bool WaitForExit(DWORD bound = DefaultBound) const;
  // Waits until start-up is over: the mailbox is ready and Start is pressed. Fails at once if the
  // process ends or a box comes up, and says on the error output what stood in the way.
  bool WaitUntilIdle(DWORD bound = 30000) const;

  // The window or control with this "ControlName", nullptr if there is none.
  HWND Find(const std::string& controlName) const;
  // All windows of the program, also those within the system's controls.
  std::vector<HWND> AllWindows() const;
  // Those with names, for messages and sweeps.
  std::vector<std::pair<std::string, HWND>> Named() const;

  std::string TextOf(const std::string& controlName) const;
  bool IsVisible(const std::string& controlName) const;  // with all its parents
  bool IsShown(const std::string& controlName) const;    // its own state
  bool IsEnabled(const std::string& controlName) const;
  // Waits until the control's text is this one.
  bool WaitForText(const std::string& controlName, const std::string& text,
                   DWORD bound = DefaultBound) const;
  bool WaitUntilVisible(const std::string& controlName, bool visible = true) const;
  // Whether the program answers messages now.
  bool Answers() const;
  int CheckOf(const std::string& controlName) const;

  // Clicks as BM_CLICK does and returns when the program has handled it. False if there is no such
  // control or the program does not answer.
  bool Click(const std::string& controlName) const;
  // The same without waiting, for clicks that bring up a box.
  void ClickAndLeave(const std::string& controlName) const;
  // A mouse click into the middle of a control that is no button (links, labels).
  void MouseClick(const std::string& controlName) const;
  void SetText(const std::string& controlName, const std::string& text) const;
  // Chooses an entry of the main window's menus by its name, as the menu itself does.
  void ChooseMenu(const std::string& entry) const;
  // A mouse click on the 1-based button of the main window's toolbar.
  void PressTool(int index) const;
  // Chooses the 0-based entry of a combo box as a pick from its list does; true when the program
  // has handled it.
  bool Choose(const std::string& comboName, int index) const;
  // A key press for the control or window.
  void PressKey(const std::string& controlName, int key) const;
  // The rows of a list with columns, its cells with "|" between them.
  std::vector<std::string> RowsOf(const std::string& listName, int columns) const;
  // The tray's call with this mouse code.
  void TrayCallback(int code) const;
  void PressCloseBox() const;

  // The message box that the program shows now.
  std::optional<Box> CurrentBox() const;
  std::size_t BoxCount() const;
  // Waits for a box.
  std::optional<Box> WaitForBox(DWORD bound = DefaultBound) const;
  // Presses the box's button and waits until the box is gone.
  bool Answer(const Box& box, int button = IDOK) const;

  // The menu that is open, nullptr if none is.
  HWND OpenMenu() const;

 private:
  std::string Hindrance() const;

  PROCESS_INFORMATION process_{};
  mutable std::map<std::string, HWND> known_;  // the named windows when Find last looked
};

// The "ControlName" of a window of any process, empty without one.
std::string ControlNameOf(HWND window);
// The text by WM_GETTEXT, which also another process's edit answers.
std::string WindowTextOf(HWND window);

// The class of a window.
std::string ClassOf(HWND window);

// The processes that run from a file of this name.
std::vector<DWORD> ProcessesOf(const std::string& executable);
// Ends them all.
void EndAll(const std::string& executable);
// Ends every running copy; for sweeping before a case.
void EndAllCopies();

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_RUNNING_H_
