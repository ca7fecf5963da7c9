#include "forms/headless/Toolkit.h"

#include <algorithm>
#include <utility>

#include "forms/headless/Windows.h"
#include "platform/memory/Misuse.h"

namespace vantrel::forms::headless {

namespace memory = platform::memory;

// As long as it lives, the form is the only window that the user reaches.
class Toolkit::Modal {
 public:
  Modal(Toolkit& toolkit, Form& form) : toolkit_(toolkit), form_(form) {
    toolkit_.modal_.push_back(&form_);
    toolkit_.EnableOthers(form_, false);
  }
  ~Modal() {
    toolkit_.modal_.pop_back();
    Form* const outer = toolkit_.ModalForm();
    if (outer == nullptr) {
      toolkit_.EnableOthers(form_, true);
    } else {
      toolkit_.Enable(*outer, true);
    }
  }
  Modal(const Modal&) = delete;
  Modal& operator=(const Modal&) = delete;

 private:
  Toolkit& toolkit_;
  Form& form_;
};

Toolkit::Toolkit(memory::Desktop& desktop, memory::Clock& clock, memory::ProcessId process)
    : desktop_(desktop), clock_(clock), process_(process) {}

std::unique_ptr<FormPeer> Toolkit::MakeWindow(Form& form) {
  auto window = std::make_unique<Window>(*this, form);
  for (Control* control : form.Controls()) {
    const Control* container = control->Container();
    const Handle parent = container == nullptr ? window->WindowHandle() : container->WindowHandle();
    control->AttachPeer(MakeControlWindow(*this, *control, parent));
  }
  return window;
}

void Toolkit::Tell(const std::string& line) const {
  if (Trace) Trace(line);
}

void Toolkit::WhenPumped(std::function<void()> event) {
  desktop_.Post(process_, [this, event = std::move(event)] { AtBorder(event); });
}

bool Toolkit::Pump() { return desktop_.PumpProcess(process_); }

void Toolkit::PumpMessages() {
  if (DuringDoEvents) AtBorder(DuringDoEvents);
  Pump();
}

void Toolkit::ScreenPointerChanged() {
  if (Trace) Trace("Screen MousePointer=" + std::to_string(ScreenPointer()));
}

void Toolkit::UserCloses(Form& form) {
  AtBorder([&form] { form.Unload(UnloadByCloseBox); });
}

void Toolkit::SystemEnds() {
  std::vector<Form*> asked;
  for (Form* form : LoadedForms()) {
    if (form->Host() == nullptr) asked.push_back(form);
  }
  for (Form* form : asked) {
    // An answer may have unloaded others.
    const auto& loaded = LoadedForms();
    if (std::find(loaded.begin(), loaded.end(), form) == loaded.end()) continue;
    AtBorder([form] { form->Unload(UnloadBySystem); });
  }
}

void Toolkit::RunModal(Form& form) {
  const Modal modal(*this, form);
  while (form.Visible() && !Ending()) WaitOnce(form);
}

void Toolkit::WaitOnce(const Form& form) {
  if (Pump()) return;
  if (WaitForEvents && WaitForEvents()) return;
  memory::Misuse(form.Name() + " is open modally, and nobody is there to close it");
}

void Toolkit::EnableOthers(const Form& form, bool enabled) {
  for (const Form* other : LoadedForms()) {
    if (other != &form && other->Host() == nullptr) Enable(*other, enabled);
  }
}

void Toolkit::Enable(const Form& form, bool enabled) {
  if (desktop_.IsWindow(form.hWnd())) desktop_.SetEnabled(form.hWnd(), enabled);
}

}  // namespace vantrel::forms::headless
