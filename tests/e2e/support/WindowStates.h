// The states in which a user can leave the main window: the table that the cases of the commands
// and of the end of the session go through.
#ifndef VANTREL_TESTS_E2E_SUPPORT_WINDOWSTATES_H_
#define VANTREL_TESTS_E2E_SUPPORT_WINDOWSTATES_H_

#include <windows.h>

#include <span>

#include "support/Running.h"

namespace vantrel::e2e {

// How the window gets into a state, what is in front then besides the main window, and how the user
// leaves that. Entering and leaving are false if the window did not get there.
struct WindowState {
  const char* name;
  bool (*enter)(const Running&);
  HWND (*front)(const Running&);  // nullptr: no dialog
  bool modal;
  bool (*leave)(const Running&);
};

std::span<const WindowState> WindowStates();

bool OpenToolbarDialog(const Running& program);
bool CloseToolbarDialog(const Running& program);
bool OpenAbout(const Running& program);
bool CloseAbout(const Running& program);
HWND ToolbarDialog(const Running& program);
HWND About(const Running& program);

// Which windows of the program are active and have the keyboard, and whether a menu or a resizing
// is under way.
GUITHREADINFO KeyboardOf(const Running& program);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_WINDOWSTATES_H_
