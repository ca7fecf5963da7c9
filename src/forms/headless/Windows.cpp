#include "forms/headless/Windows.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/Bars.h"
#include "forms/ControlVisitor.h"
#include "forms/ImageList.h"
#include "forms/UserControl.h"
#include "forms/headless/TraceLine.h"
#include "platform/Desktop.h"

namespace vantrel::forms::headless {
namespace {

namespace memory = platform::memory;

constexpr std::uint32_t WmClose = 16;
constexpr std::uint32_t WmMouseMove = 512;

// The icon's handle has only to be one that is not 0 and is the same each time.
constexpr Handle IconOfThePrograms = 0x1C01;

std::int16_t LowWord(std::uintptr_t value) { return static_cast<std::int16_t>(value & 0xFFFFU); }
std::int16_t HighWord(std::uintptr_t value) { return LowWord(value >> 16U); }

// The keys of a mouse message as buttons (1 left, 2 right, 4 middle) and shift (1, 2 control).
int Buttons(std::uintptr_t keys) {
  return static_cast<int>((keys & 3U) | ((keys & 16U) != 0 ? 4U : 0U));
}
int Shift(std::uintptr_t keys) { return static_cast<int>((keys >> 2U) & 3U); }

memory::Rectangle Pixels(const Toolkit& toolkit, const Place& place) {
  const auto pixels = [&toolkit](int twips) {
    return static_cast<std::int32_t>(std::lround(twips / toolkit.TwipsPerPixelX()));
  };
  return {pixels(place.Left), pixels(place.Top), pixels(place.Width), pixels(place.Height)};
}

// Which kinds have a record of their own, and which of them a BmClick presses.
class Kind : public ControlVisitor {
 public:
  explicit Kind(Control& control) { control.Accept(*this); }

  bool Windowed = true;
  bool Button = false;
  Timer* Ticking = nullptr;
  UserControl* Surface = nullptr;

  void Visit(Chart&) override {}
  void Visit(CheckBox&) override { Button = true; }
  void Visit(ComboBox&) override {}
  void Visit(CommandButton&) override { Button = true; }
  void Visit(FileListBox&) override {}
  void Visit(Frame&) override {}
  void Visit(Image&) override { Windowed = false; }
  void Visit(Label&) override {}
  void Visit(ListView&) override {}
  void Visit(OptionButton&) override { Button = true; }
  void Visit(PictureBox&) override {}
  void Visit(ProgressBar&) override {}
  void Visit(StatusBar&) override {}
  void Visit(TextBox&) override {}
  void Visit(Timer& timer) override {
    Windowed = false;
    Ticking = &timer;
  }
  void Visit(Toolbar&) override {}
  void Visit(UserControl& control) override { Surface = &control; }
};

// A control that has no record: only the trace knows it.
class QuietPeer : public ControlPeer {
 public:
  QuietPeer(Toolkit& toolkit, Control& control) : toolkit_(toolkit), control_(control) {}

  void Changed(Aspect aspect) override {
    if (toolkit_.Trace) toolkit_.Tell(TraceLine(control_, aspect));
  }
  void SetFocus() override {
    if (toolkit_.Trace) toolkit_.Tell(control_.QualifiedName() + " SetFocus");
  }
  Handle WindowHandle() const override { return 0; }

 protected:
  Toolkit& toolkit_;
  Control& control_;
};

class TimerPeer : public QuietPeer {
 public:
  TimerPeer(Toolkit& toolkit, Timer& timer) : QuietPeer(toolkit, timer), timer_(timer) { Start(); }
  ~TimerPeer() override { toolkit_.Clock().KillTimer(running_); }

  void Changed(Aspect aspect) override {
    QuietPeer::Changed(aspect);
    if (aspect != Aspect::Enabled && aspect != Aspect::Value) return;
    toolkit_.Clock().KillTimer(std::exchange(running_, 0));
    Start();
  }

 private:
  void Start() {
    if (!timer_.Enabled() || timer_.Interval() == 0) return;
    running_ = toolkit_.Clock().SetTimer(
        toolkit_.Process(), static_cast<std::uint32_t>(timer_.Interval()),
        [&toolkit = toolkit_, &timer = timer_] { toolkit.AtBorder([&timer] { timer.Tick(); }); });
  }

  Timer& timer_;
  memory::TimerId running_ = 0;
};

class ControlWindow : public QuietPeer {
 public:
  ControlWindow(Toolkit& toolkit, Control& control, const Kind& kind, Handle parent);
  ~ControlWindow() override;

  void Changed(Aspect aspect) override;
  Handle WindowHandle() const override { return handle_; }

 private:
  bool Takes(const memory::Message& message, bool button);
  void Follow(Aspect aspect);

  UserControl* surface_;
  Handle handle_;
};

ControlWindow::ControlWindow(Toolkit& toolkit, Control& control, const Kind& kind, Handle parent)
    : QuietPeer(toolkit, control),
      surface_(kind.Surface),
      handle_(toolkit.Desktop().MakeWindow(toolkit.Process(), parent, control.WindowText())) {
  memory::Desktop& desktop = toolkit_.Desktop();
  desktop.SetControlName(handle_, control_.QualifiedName());
  desktop.SetHandler(handle_, [this, button = kind.Button](const memory::Message& message) {
    return Takes(message, button);
  });
  for (const Aspect aspect : {Aspect::Visible, Aspect::Enabled, Aspect::Place}) Follow(aspect);
}

ControlWindow::~ControlWindow() {
  if (toolkit_.Desktop().IsWindow(handle_)) toolkit_.Desktop().DestroyWindow(handle_);
}

void ControlWindow::Changed(Aspect aspect) {
  Follow(aspect);
  QuietPeer::Changed(aspect);
  if (aspect == Aspect::Place && surface_ != nullptr) surface_->Resized();
}

// A window that hosted this one may be gone, and this one's record with it.
void ControlWindow::Follow(Aspect aspect) {
  memory::Desktop& desktop = toolkit_.Desktop();
  if (!desktop.IsWindow(handle_)) return;
  if (aspect == Aspect::Text) desktop.SetCaption(handle_, control_.WindowText());
  if (aspect == Aspect::Visible) desktop.SetVisible(handle_, control_.Visible());
  if (aspect == Aspect::Enabled) desktop.SetEnabled(handle_, control_.Enabled());
  if (aspect == Aspect::Place) desktop.SetPlace(handle_, Pixels(toolkit_, control_.At()));
}

// The event may unload the window: nothing of this peer is used behind it.
bool ControlWindow::Takes(const memory::Message& message, bool button) {
  Control& control = control_;
  if (message.message == platform::WmSetText && message.text != nullptr) {
    toolkit_.AtBorder([&] { control.AssignWindowText(*message.text); });
    return true;
  }
  if (message.message == platform::BmClick && button) {
    toolkit_.AtBorder([&] { control.UserClick(); });
    return true;
  }
  return false;
}

}  // namespace

std::unique_ptr<ControlPeer> MakeControlWindow(Toolkit& toolkit, Control& control, Handle parent) {
  const Kind kind(control);
  if (kind.Ticking != nullptr) return std::make_unique<TimerPeer>(toolkit, *kind.Ticking);
  // The parts of a control made of others are drawn on its surface.
  const bool part = control.Container() != nullptr && Kind(*control.Container()).Surface != nullptr;
  if (!kind.Windowed || part) return std::make_unique<QuietPeer>(toolkit, control);
  return std::make_unique<ControlWindow>(toolkit, control, kind, parent);
}

Window::Window(Toolkit& toolkit, Form& form)
    : toolkit_(toolkit),
      form_(form),
      name_(form.Name()),
      handle_(toolkit.Desktop().MakeWindow(toolkit.Process(), 0, form.Caption())) {
  toolkit_.Desktop().SetControlName(handle_, name_);
  toolkit_.Desktop().SetChildStyle(handle_, form.Designed().Frame == Border::Panel);
  toolkit_.Desktop().SetHandler(handle_,
                                [this](const memory::Message& message) { return Takes(message); });
  Place();
  toolkit_.Tell(name_ + " Load");
}

Window::~Window() {
  if (toolkit_.Desktop().IsWindow(handle_)) toolkit_.Desktop().DestroyWindow(handle_);
  // A window that goes with the whole program is not unloaded.
  const auto& loaded = toolkit_.LoadedForms();
  if (std::find(loaded.begin(), loaded.end(), &form_) != loaded.end()) {
    toolkit_.Tell(name_ + " Unload");
  }
}

void Window::Place() {
  const forms::Place place{std::max(form_.Left(), 0), std::max(form_.Top(), 0), form_.Width(),
                           form_.Height()};
  toolkit_.Desktop().SetPlace(handle_, Pixels(toolkit_, place));
}

void Window::Changed(Aspect aspect) {
  memory::Desktop& desktop = toolkit_.Desktop();
  if (desktop.IsWindow(handle_)) {
    if (aspect == Aspect::Text) desktop.SetCaption(handle_, form_.Caption());
    if (aspect == Aspect::Visible) desktop.SetVisible(handle_, form_.Visible());
    if (aspect == Aspect::Place) Place();
    if (aspect == Aspect::State) {
      desktop.SetIconic(handle_, form_.WindowState() == WindowState::Minimized);
    }
  }
  if (toolkit_.Trace) toolkit_.Tell(TraceLine(form_, aspect));
}

void Window::RunModal() { toolkit_.RunModal(form_); }

void Window::PopupMenu(Menu& menu) {
  toolkit_.Tell(name_ + " PopupMenu " + menu.Name());
  Menu* chosen = toolkit_.ChooseFromPopup ? toolkit_.ChooseFromPopup(menu) : nullptr;
  if (chosen != nullptr) chosen->UserClick();
}

Handle Window::IconHandle() const { return IconOfThePrograms; }

// A hosted window keeps its place in the stack, which is that of its hosting; a modal dialog stays
// in front.
void Window::Activate() {
  if (form_.Host() != nullptr) return;
  memory::Desktop& desktop = toolkit_.Desktop();
  if (!desktop.IsWindow(handle_)) return;
  desktop.BringToFront(handle_);
  const Form* modal = toolkit_.ModalForm();
  const Form& front = modal != nullptr ? *modal : form_;
  if (&front != &form_) desktop.BringToFront(front.hWnd());
  if (front.Shown()) desktop.SetForegroundWindow(front.hWnd());
}

bool Window::Takes(const memory::Message& message) {
  Form& form = form_;
  switch (message.message) {
    case platform::WmSetText:
      if (message.text == nullptr) return false;
      toolkit_.AtBorder([&] { form.SetCaption(*message.text); });
      return true;
    case WmClose:
      // A panel has no close box: only a foreign program can ask it.
      if (form.Designed().Frame != Border::Panel) toolkit_.UserCloses(form);
      return true;
    case WmMouseMove:
      MouseMoved(message);
      return true;
    case memory::WmShowWindow:
      toolkit_.AtBorder([&] { form.UserShows(message.wParam != 0); });
      return true;
    case memory::WmSize:
      Sized(message);
      return true;
    default:
      return false;
  }
}

void Window::MouseMoved(const memory::Message& message) {
  Form& form = form_;
  const double unit = form.ScaleMode() == ScaleMode::Pixels ? 1 : toolkit_.TwipsPerPixelX();
  const auto x = static_cast<float>(LowWord(message.lParam) * unit);
  const auto y = static_cast<float>(HighWord(message.lParam) * unit);
  toolkit_.AtBorder([&] { form.MouseMove(Buttons(message.wParam), Shift(message.wParam), x, y); });
}

void Window::Sized(const memory::Message& message) {
  Form& form = form_;
  const auto state = message.wParam == 1   ? WindowState::Minimized
                     : message.wParam == 2 ? WindowState::Maximized
                                           : WindowState::Normal;
  toolkit_.AtBorder([&] { form.UserResizes(form.Width(), form.Height(), state); });
}

}  // namespace vantrel::forms::headless
