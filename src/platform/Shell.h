// The shell's services: the notification area, the opening of documents, special folders, the
// folder picker and the Recycle Bin.
#ifndef VANTREL_PLATFORM_SHELL_H_
#define VANTREL_PLATFORM_SHELL_H_

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "platform/Handles.h"

namespace vantrel::platform {

inline constexpr std::uint32_t NimAdd = 0;
inline constexpr std::uint32_t NimModify = 1;
inline constexpr std::uint32_t NimDelete = 2;

// The record of one tray icon, field by field as the shell takes it. `cbSize` names the record's
// first form; the adapter passes the system's own size of that form.
struct NotifyIconData {
  std::uint32_t cbSize = 0;
  WindowHandle hWnd = 0;
  std::uint32_t uID = 0;
  std::uint32_t uFlags = 0;
  std::uint32_t uCallbackMessage = 0;
  IconHandle hIcon = 0;
  std::array<char, 64> szTip{};
};

// A place in the shell, made by the shell; 0 is none.
using ItemList = std::uintptr_t;

// The size of a buffer for a path, in bytes.
inline constexpr std::size_t PathRoom = 260;

// Only folders of the file system may be chosen.
inline constexpr std::uint32_t BifReturnOnlyFsDirs = 1;
// What the picker's callback is called for, and the message that selects a folder in it: with -1
// as first parameter the second is a path.
inline constexpr std::uint32_t BffmInitialized = 1;
inline constexpr std::uint32_t BffmSetSelectionA = 0x466;

// How the folder picker is opened.
struct BrowseInfo {
  WindowHandle Owner = 0;
  std::string Prompt;  // empty for none
  std::uint32_t Flags = 0;
  // Called in the picker's loop with its window, a message and the parameter below.
  std::function<int(WindowHandle picker, std::uint32_t message, std::intptr_t parameter)> Callback;
  std::intptr_t Parameter = 0;
  int Image = 0;
};

// The Recycle Bin is emptied without a question.
inline constexpr std::uint32_t SherbNoConfirmation = 1;

class Shell {
 public:
  virtual ~Shell() = default;

  // False if the shell refused, as it does when there is no notification area.
  virtual bool Shell_NotifyIconA(std::uint32_t message, const NotifyIconData& data) = 0;

  // A result above 32 is success; nobody here looks at it.
  virtual std::intptr_t ShellExecuteA(WindowHandle owner, const std::string& verb,
                                      const std::string& file, const std::string& parameters,
                                      const std::string& directory, int showCommand) = 0;

  // Finds a special folder by its number. 0 for success; the caller frees `list`.
  virtual std::int32_t SHGetSpecialFolderLocation(WindowHandle owner, int folder,
                                                  ItemList& list) = 0;

  // Copies the path of a place in the file system and a NUL into the buffer, which has PathRoom
  // bytes. False, and the buffer undefined, for any other place.
  virtual bool SHGetPathFromIDListA(ItemList list, std::span<char> buffer) = 0;

  // Shows the folder picker, modal to its owner, and returns what was chosen, 0 for a cancel; the
  // caller frees it. Messages to the program's windows are handled meanwhile.
  virtual ItemList SHBrowseForFolderA(const BrowseInfo& info) = 0;

  // Frees a place; no effect on none.
  virtual void CoTaskMemFree(ItemList list) = 0;

  // Empties the Recycle Bin of the drive of `root`, of all drives if it is empty. A result other
  // than 0 is a failure; an empty bin may count as one.
  virtual std::int32_t SHEmptyRecycleBinA(WindowHandle owner, const std::string& root,
                                          std::uint32_t flags) = 0;
  virtual void SHUpdateRecycleBinIcon() = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_SHELL_H_
