// The message box.
#ifndef VANTREL_PLATFORM_DIALOGS_H_
#define VANTREL_PLATFORM_DIALOGS_H_

#include <cstdint>
#include <string>

#include "platform/Handles.h"

namespace vantrel::platform {

inline constexpr std::uint32_t StylePlain = 0;
inline constexpr std::uint32_t StyleCritical = 16;
inline constexpr std::uint32_t StyleQuestionYesNo = 36;
inline constexpr std::uint32_t StyleInformation = 64;
inline constexpr std::uint32_t StyleInformationYesNo = 68;

inline constexpr int AnswerOk = 1;
inline constexpr int AnswerYes = 6;
inline constexpr int AnswerNo = 7;

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // Shows the box, modal to the whole program, and returns the button's number. Messages to the
  // program's windows are handled meanwhile. With no owner the box comes to the foreground.
  virtual int MessageBoxA(WindowHandle owner, const std::string& text, const std::string& title,
                          std::uint32_t style) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_DIALOGS_H_
