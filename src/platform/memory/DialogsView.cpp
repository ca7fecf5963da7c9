#include "platform/memory/DialogsView.h"

#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {

int DialogsView::MessageBoxA(WindowHandle owner, const std::string& text, const std::string& title,
                             std::uint32_t style) {
  // Texts end at their first NUL.
  const Box box{owner, text.c_str(), title.c_str(), style};
  boxes.push_back(box);
  if (whileUp_) whileUp_(box);
  return answer_ ? answer_(box) : ScriptedAnswer(box);
}

int DialogsView::ScriptedAnswer(const Box& box) {
  // A box that has only OK takes no answer that is meant for a question behind it.
  const bool onlyOk = (box.style & 0xF) == 0;
  if (onlyOk && (answers.empty() || answers.front() != AnswerOk)) return AnswerOk;
  if (answers.empty()) Misuse("no answer for the box \"" + box.text + '"');
  const int answer = answers.front();
  answers.pop_front();
  if (!onlyOk && answer == AnswerOk) Misuse("a wrong answer for the box \"" + box.text + '"');
  return answer;
}

}  // namespace vantrel::platform::memory
