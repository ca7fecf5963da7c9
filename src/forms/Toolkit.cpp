#include "forms/Toolkit.h"

#include <algorithm>
#include <new>
#include <utility>

#include "forms/Form.h"
#include "text/ScopedFlag.h"

namespace vantrel::forms {
namespace {

// Whether `inside` is the form, or shows within it.
bool LiesIn(const Form& form, const Form* inside) {
  for (; inside != nullptr; inside = inside->Host()) {
    if (inside == &form) return true;
  }
  return false;
}

}  // namespace

Toolkit::~Toolkit() { EndOfBorder(); }

void Toolkit::DoEvents() {
  {
    const Pumping pumping(*this);
    PumpMessages();
  }
  ThrowIfEnding();
}

void Toolkit::End() {
  ending_ = true;
  throw EndProgram{};
}

void Toolkit::ThrowIfEnding() const {
  if (ending_) throw EndProgram{};
}

void Toolkit::AtBorder(const std::function<void()>& event) noexcept {
  if (ending_) return;
  const EventScope scope(*this);
  try {
    event();
  } catch (const EndProgram&) {
    ending_ = true;
  } catch (const text::RuntimeError& error) {
    Report(error);
  } catch (const std::bad_alloc&) {
    Report(text::RuntimeError(text::ErrorNumber::OutOfMemory));
  } catch (const std::exception&) {
    Report(text::RuntimeError(text::ErrorNumber::InvalidProcedureCall));
  }
}

void Toolkit::Report(const text::RuntimeError& error) noexcept {
  try {
    if (OnUntrappedError) OnUntrappedError(error);
  } catch (const EndProgram&) {
    ending_ = true;
  } catch (const std::exception&) {
    // What cannot even be shown is let go: an event must not take the program with it.
  }
}

// A discarded window may discard another on its way out, so the list is emptied in rounds.
void Toolkit::EndOfBorder() noexcept {
  while (!discarded_.empty()) std::exchange(discarded_, {}).clear();
}

void Toolkit::SetScreenPointer(int pointer) {
  if (screenPointer_ == pointer) return;
  screenPointer_ = pointer;
  ScreenPointerChanged();
}

void Toolkit::Discard(std::unique_ptr<Form> form) {
  if (form) discarded_.push_back(std::move(form));
}

bool Toolkit::UserMovesFocus(Control* to) {
  if (to == focus_ || asking_) return true;
  Control* const from = focus_;
  if (from != nullptr && !MayLeave(*from)) return false;
  // The handler may have moved the focus itself; that stands.
  if (focus_ != from) return focus_ == to;
  Transfer(to, false);
  return focus_ == to;
}

// The box of an error comes up within the border here, while the control still counts as asked.
bool Toolkit::MayLeave(Control& control) {
  const text::ScopedFlag asking(asking_);
  bool leaves = true;
  AtBorder([&] { leaves = control.UserLeaves(); });
  ThrowIfEnding();
  return leaves;
}

void Toolkit::MoveFocus(Control* to) {
  if (to != focus_) {
    Transfer(to, true);
  } else if (to != nullptr && to->Peer() != nullptr) {
    to->Peer()->SetFocus();
  }
}

void Toolkit::Transfer(Control* to, bool tellPeer) {
  Control* const from = std::exchange(focus_, to);
  if (tellPeer && to != nullptr && to->Peer() != nullptr) to->Peer()->SetFocus();
  if (from != nullptr) from->LostFocus();
  if (to != nullptr && focus_ == to) to->GotFocus();
}

void Toolkit::LeaveHidden(Form& form) {
  if (LiesIn(form, activeForm_)) activeForm_ = nullptr;
  if (focus_ == nullptr || !LiesIn(form, &focus_->Owner())) return;
  const Form& around = form.Outermost();
  Transfer(around.Shown() ? around.NextTabStop(nullptr) : nullptr, true);
}

void Toolkit::LeaveGone(const Form& form) {
  if (LiesIn(form, activeForm_)) activeForm_ = nullptr;
  if (focus_ != nullptr && LiesIn(form, &focus_->Owner())) focus_ = nullptr;
}

}  // namespace vantrel::forms
