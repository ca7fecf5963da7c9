#include "platform/Dialogs.h"

#include <windows.h>

#include "platform/win32/Adapters.h"

namespace vantrel::platform::win32 {
namespace {

class DialogsAdapter : public Dialogs {
 public:
  int MessageBoxA(WindowHandle owner, const std::string& text, const std::string& title,
                  std::uint32_t style) override {
    const UINT more = owner == 0 ? MB_SETFOREGROUND | MB_TASKMODAL : 0;
    return ::MessageBoxA(reinterpret_cast<HWND>(owner), text.c_str(), title.c_str(), style | more);
  }
};

}  // namespace

std::unique_ptr<Dialogs> MakeDialogs() { return std::make_unique<DialogsAdapter>(); }

}  // namespace vantrel::platform::win32
