// The shell's services: the notification area and the opening of documents.
#ifndef VANTREL_PLATFORM_SHELL_H_
#define VANTREL_PLATFORM_SHELL_H_

#include <array>
#include <cstdint>
#include <string>

#include "platform/Handles.h"

namespace vantrel::platform {

inline constexpr std::uint32_t NimAdd = 0;
inline constexpr std::uint32_t NimModify = 1;
inline constexpr std::uint32_t NimDelete = 2;

// The record of one tray icon, field by field as the shell takes it. `cbSize` names the record's
// first form; the adapter hands over the system's own size of that form.
struct NotifyIconData {
  std::uint32_t cbSize = 0;
  WindowHandle hWnd = 0;
  std::uint32_t uID = 0;
  std::uint32_t uFlags = 0;
  std::uint32_t uCallbackMessage = 0;
  IconHandle hIcon = 0;
  std::array<char, 64> szTip{};
};

class Shell {
 public:
  virtual ~Shell() = default;

  // False if the shell refused, as it does when there is no notification area.
  virtual bool Shell_NotifyIconA(std::uint32_t message, const NotifyIconData& data) = 0;

  // A result above 32 is success; nobody here looks at it.
  virtual std::intptr_t ShellExecuteA(WindowHandle owner, const std::string& verb,
                                      const std::string& file, const std::string& parameters,
                                      const std::string& directory, int showCommand) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_SHELL_H_
