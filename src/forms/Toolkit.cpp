#include "forms/Toolkit.h"

#include <algorithm>
#include <new>
#include <utility>

#include "forms/Form.h"

namespace vantrel::forms {

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
  if (to == focus_) return true;
  Control* const from = focus_;
  if (from != nullptr && !from->UserLeaves()) return false;
  // The handler may have moved the focus itself; that stands.
  if (focus_ != from) return focus_ == to;
  Transfer(to, false);
  return focus_ == to;
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

void Toolkit::Leave(const Form& form, bool raiseLostFocus) {
  const auto lies = [&form](Form* inside) {
    for (; inside != nullptr; inside = inside->Host()) {
      if (inside == &form) return true;
    }
    return false;
  };
  if (lies(activeForm_)) activeForm_ = nullptr;
  if (focus_ == nullptr || !lies(&focus_->Owner())) return;
  Control* const from = std::exchange(focus_, nullptr);
  if (raiseLostFocus) from->LostFocus();
}

}  // namespace vantrel::forms
