// The message boxes of one process: recorded, and answered by a script.
#ifndef VANTREL_PLATFORM_MEMORY_DIALOGSVIEW_H_
#define VANTREL_PLATFORM_MEMORY_DIALOGSVIEW_H_

#include <deque>
#include <functional>
#include <vector>

#include "platform/Dialogs.h"

namespace vantrel::platform::memory {

struct Box {
  WindowHandle owner = 0;
  std::string text;
  std::string title;
  std::uint32_t style = 0;

  friend bool operator==(const Box&, const Box&) = default;
};

class DialogsView : public Dialogs {
 public:
  // Both are called if set: the one while a box is up, the other to answer it instead of the
  // script.
  DialogsView(const std::function<void(const Box&)>& whileUp,
              const std::function<int(const Box&)>& answer)
      : whileUp_(whileUp), answer_(answer) {}

  int MessageBoxA(WindowHandle owner, const std::string& text, const std::string& title,
                  std::uint32_t style) override;

  std::vector<Box> boxes;
  std::deque<int> answers;

 private:
  int ScriptedAnswer(const Box& box);

  const std::function<void(const Box&)>& whileUp_;
  const std::function<int(const Box&)>& answer_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_DIALOGSVIEW_H_
