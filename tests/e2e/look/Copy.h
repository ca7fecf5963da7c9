// The windows of one running copy as the eye has them: which there are, where they lie on the
// screen in its own pixels, and how each is brought up.
#ifndef VANTREL_TESTS_E2E_LOOK_COPY_H_
#define VANTREL_TESTS_E2E_LOOK_COPY_H_

#include <windows.h>

#include <string>
#include <utility>
#include <vector>

namespace vantrel::e2e {

// From here on the calling process sees the screen's pixels as they are, at every resolution.
void SeeRealPixels();

// The process of the copy that runs, 0 if there is none.
DWORD RunningProcess();

struct Screen {
  const char* Name;    // of its picture
  const char* Opener;  // the control that brings it up
  const char* Panel;   // the window that shows then
};

// The panels in the order of the left column.
inline constexpr Screen Panels[] = {
    {"main-welcome", "frmMain.LnkWelcome", "FrmFrameMain"},
    {"adblocking", "frmMain.LnkAdBlocking", "FrmFrameBlockPreferences"},
    {"settings", "frmMain.LnkSettings", "FrmFrameSettings"},
    {"allowed", "frmMain.LnkAllowedList", "FrmFrameAllowList"},
    {"notification", "frmMain.LnkNotification", "FrmFrameNotification"},
    {"clean", "frmMain.lnkClean", "FrmFrameHistory"},
    {"iesettings", "frmMain.LnkIESettings", "FrmFrameIESettings"},
    {"ieplugins", "frmMain.LnkIePlug", "FrmFrameIEPlugin"},
    {"graph", "frmMain.LnkGraph", "FrmFrameGraph"},
    {"log", "frmMain.LnkLog", "FrmFrameLog"},
};

class Copy {
 public:
  explicit Copy(DWORD processId) : processId_(processId) {}

  DWORD ProcessId() const { return processId_; }
  HWND Find(const std::string& controlName) const;
  std::vector<std::pair<std::string, HWND>> Named() const;
  // Of a window without a name: by its class, such as a menu's "#32768"; nullptr if none shows.
  HWND FindShown(const std::string& className) const;

  // Clicks and returns when the program has handled it.
  void Click(const std::string& controlName) const;
  // Presses and releases the left button in it; returns at once.
  void MouseClick(const std::string& controlName) const;
  // Brings the panel up; false if it does not show within a bound.
  bool Open(const Screen& screen) const;
  // Chooses an entry of the main window's menu.
  void Choose(const std::string& entry) const;
  // Waits until the program has handled what was posted, and painted.
  void Settle() const;

 private:
  DWORD processId_;
};

RECT OnScreen(HWND window);
std::string ClassNameOf(HWND window);
// The 0-based row that is selected in a list, -1 for none.
int SelectedRowOf(HWND list);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_LOOK_COPY_H_
