// One running copy of the program: the platform it runs on, its windows, and the process-wide
// variables. Operations take it as their first argument; there is no other global state.
#ifndef VANTREL_PROGRAM_PROGRAM_H_
#define VANTREL_PROGRAM_PROGRAM_H_

#include <cstdint>
#include <string>

#include "forms/Toolkit.h"
#include "platform/Platform.h"
#include "program/FileNumbers.h"
#include "program/Windows.h"

namespace vantrel::program {

// The title of message boxes that name no other.
inline constexpr const char* ApplicationTitle = "Vantrel";

class Program {
 public:
  // Both must outlive the program.
  Program(const platform::Platform& platform, forms::Toolkit& toolkit);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  platform::Platform platform;
  forms::Toolkit& toolkit;

  // True while saved settings are copied into controls; guarded saves skip then.
  bool LoadingSettings = false;
  // True after Start, false after Stop; the only input of the stored GDisabled.
  bool BlockingActive = false;
  // 1 while stopped, 0 while started; kept up to date and read by nothing.
  std::int16_t BlockStopped = 0;
  // Set by GetOSVer; read by nothing.
  bool IsWindowsNT = false;
  // The total of the counters at start-up; read by nothing.
  std::int32_t TotalBlocked = 0;
  // True while the box of a failed refresh of the counters is up; no second one opens then.
  bool RefreshErrorShown = false;
  // The folder preselected in the folder picker while it is open.
  std::string BrowseStartPath;
  // The cookies folder as the last scan that found one has it.
  std::string CookiesFolder;
  // The record of the one tray icon, as it was last given to the shell.
  platform::NotifyIconData TrayIcon;
  // The record of the main window's own icon, which is never added.
  platform::NotifyIconData MainTrayIcon;
  // The search for a running copy's window: what is looked for, whether it was found, and where.
  // Not reset between searches; a process searches once.
  std::string SearchCaption;
  bool WindowFound = false;
  platform::WindowHandle FoundWindow = 0;
  // What the last search for a site in the allow list found: whether it is there, its name as it
  // stands there, and the kinds that are let through on it.
  bool SiteFound = false;
  std::string SiteName;
  bool SitePopup = false;
  bool SiteDHTML = false;
  bool SiteWebDialog = false;
  bool SiteBanner = false;
  bool SiteFlash = false;
  // How often a product name ran on into the next entry; read by nothing.
  std::int16_t ProductNameFallbacks = 0;
  // The files that are open under numbers.
  FileNumbers fileNumbers;
  // A window procedure; never assigned, so it stays 0.
  std::int32_t OldWindowProc = 0;

  Windows windows;

  // The folder of the executable followed by the literal, e.g. "\\Settings\\log.txt". The folder
  // is used as the system gives it.
  std::string PathOf(const std::string& literal) const;

  // Shows a message box over the active window and returns the button's number. Messages are
  // handled meanwhile; throws EndProgram if one of them ended the program.
  int MsgBox(const std::string& text, std::uint32_t style = platform::StylePlain,
             const std::string& title = ApplicationTitle);

  // The information box "Error occured: " and the error's description.
  void ShowError(const text::RuntimeError& error);

  void DoEvents() { toolkit.DoEvents(); }
};

}  // namespace vantrel::program

#endif  // VANTREL_PROGRAM_PROGRAM_H_
