#include "forms/win32/TimerPeer.h"

#include <utility>

namespace vantrel::forms::win32 {
namespace {

class TimerPeer final : public ControlPeer {
 public:
  TimerPeer(Timer& timer, HWND form, int identifier)
      : timer_(timer), form_(form), identifier_(static_cast<UINT_PTR>(identifier)) {
    Apply();
  }
  ~TimerPeer() override { Stop(); }

  void Changed(Aspect aspect) override {
    if (aspect == Aspect::Enabled || aspect == Aspect::Value) Apply();
  }
  void SetFocus() override {}
  forms::Handle WindowHandle() const override { return 0; }

 private:
  void Apply() {
    Stop();
    if (!timer_.Enabled() || timer_.Interval() <= 0) return;
    SetTimer(form_, identifier_, static_cast<UINT>(timer_.Interval()), nullptr);
    running_ = true;
  }
  void Stop() {
    if (std::exchange(running_, false)) KillTimer(form_, identifier_);
  }

  Timer& timer_;
  HWND form_;
  UINT_PTR identifier_;
  bool running_ = false;
};

}  // namespace

std::unique_ptr<ControlPeer> MakeTimerPeer(Timer& timer, HWND form, int identifier) {
  return std::make_unique<TimerPeer>(timer, form, identifier);
}

void TimerFires(WindowSystem& system, const Form& form, int identifier) {
  const auto& controls = form.Controls();
  if (identifier < 1 || identifier > static_cast<int>(controls.size())) return;
  auto* timer = dynamic_cast<Timer*>(controls[static_cast<std::size_t>(identifier) - 1]);
  if (timer == nullptr || !timer->Enabled() || timer->Interval() == 0) return;
  system.Raise([timer] { timer->Tick(); });
}

}  // namespace vantrel::forms::win32
