#include "forms/win32/ControlWindow.h"

#include <utility>

#include "forms/Form.h"
#include "forms/win32/FormWindow.h"
#include "forms/win32/HandleOf.h"
#include "forms/win32/Painting.h"
#include "forms/win32/SpokenObject.h"

namespace vantrel::forms::win32 {
namespace {

class Peer final : public ControlPeer {
 public:
  explicit Peer(std::shared_ptr<ControlWindow> window) : window_(std::move(window)) {}
  ~Peer() override { window_->Destroy(); }

  void Changed(Aspect aspect) override {
    // What is shown may lead to events that end this very peer.
    const std::shared_ptr<ControlWindow> window = window_;
    if (window->Alive()) window->Changed(aspect);
  }
  void SetFocus() override { window_->TakeFocus(); }
  forms::Handle WindowHandle() const override {
    return reinterpret_cast<forms::Handle>(window_->Handle());
  }

 private:
  std::shared_ptr<ControlWindow> window_;
};

struct MouseMessage {
  UINT Message;
  MouseEvent Control::*Event;
  int Button;  // 0: those that are held
};

constexpr MouseMessage MouseMessages[] = {
    {WM_MOUSEMOVE, &Control::MouseMove, 0},     {WM_LBUTTONDOWN, &Control::MouseDown, 1},
    {WM_LBUTTONDBLCLK, &Control::MouseDown, 1}, {WM_RBUTTONDOWN, &Control::MouseDown, 2},
    {WM_MBUTTONDOWN, &Control::MouseDown, 4},   {WM_LBUTTONUP, &Control::MouseUp, 1},
    {WM_RBUTTONUP, &Control::MouseUp, 2},       {WM_MBUTTONUP, &Control::MouseUp, 4},
};

}  // namespace

std::unique_ptr<ControlPeer> MakePeer(std::shared_ptr<ControlWindow> window) {
  return std::make_unique<Peer>(std::move(window));
}

RECT ControlWindow::Area() const { return System().Pixels.Rectangle(control_.At()); }

void ControlWindow::CreateUnder(HWND parent, int identifier) {
  WindowShape shape = Shape();
  shape.Style |= WS_CHILD | WS_CLIPSIBLINGS;
  if (control_.Visible()) shape.Style |= WS_VISIBLE;
  if (!control_.Enabled()) shape.Style |= WS_DISABLED;
  if (control_.IsTabStop()) shape.Style |= WS_TABSTOP;
  shape.Area = Area();
  shape.Parent = parent;
  shape.Identifier = identifier;
  Create(shape, control_.QualifiedName());
  if (!Alive()) return;
  Tell(WM_SETFONT, reinterpret_cast<WPARAM>(TextFont()), FALSE);
  Prepare();
}

void ControlWindow::ShowTip() {
  tipped_ = true;
  if (const auto form = System().FormAround(Handle())) {
    form->Tips().Set(Handle(), TipText(), System().Pixels);
  }
}

HFONT ControlWindow::TextFont() const { return System().Typefaces.Of(control_.TextFont()); }

LRESULT ControlWindow::Tell(UINT message, WPARAM first, LPARAM second) {
  if (!Alive()) return 0;
  ++telling_;
  const LRESULT answer = SendMessageA(Handle(), message, first, second);
  --telling_;
  return answer;
}

void ControlWindow::Changed(Aspect aspect) {
  switch (aspect) {
    case Aspect::Text:
      return ShowText();
    case Aspect::Visible:
      return ShowVisible();
    case Aspect::Enabled:
      if (!control_.Enabled()) GiveFocusAway();
      EnableWindow(Handle(), control_.Enabled());
      return Invalidate();
    case Aspect::Place: {
      const RECT area = Area();
      SetWindowPos(Handle(), nullptr, area.left, area.top, WidthOf(area), HeightOf(area),
                   SWP_NOZORDER | SWP_NOACTIVATE);
      return;
    }
    case Aspect::ToolTip:
      if (tipped_) ShowTip();
      return;
    case Aspect::Font:
      Tell(WM_SETFONT, reinterpret_cast<WPARAM>(TextFont()), TRUE);
      return Invalidate();
    case Aspect::Pointer:
      return System().RefreshPointer();
    default:
      return Invalidate();
  }
}

void ControlWindow::Renew() {
  for (const Aspect aspect : {Aspect::Font, Aspect::Place}) {
    if (Alive()) Changed(aspect);
  }
  if (Alive()) Rescale();
}

std::string ControlWindow::ShownText() const {
  std::string text(static_cast<std::size_t>(SendMessageA(Handle(), WM_GETTEXTLENGTH, 0, 0)) + 1,
                   '\0');
  const LRESULT copied =
      SendMessageA(Handle(), WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(copied));
  return text;
}

void ControlWindow::ShowText() {
  const std::string text = control_.WindowText().substr(0, LongestShown);
  if (ShownText() == text) return;
  Tell(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
  if (Alive()) Invalidate();
}

void ControlWindow::ShowVisible() {
  if (!control_.Visible()) GiveFocusAway();
  ShowWindow(Handle(), control_.Visible() ? SW_SHOWNA : SW_HIDE);
}

// A window that goes with the focus in it would leave the keyboard dead.
void ControlWindow::GiveFocusAway() {
  const HWND focus = GetFocus();
  if (focus == nullptr || (focus != Handle() && !IsChild(Handle(), focus))) return;
  const HWND root = GetAncestor(Handle(), GA_ROOT);
  const auto form = System().FindForm(root);
  Control* next = form != nullptr ? form->NextStop(&control_, false) : nullptr;
  const auto handle = next != nullptr ? HandleOf(*next) : nullptr;
  ::SetFocus(handle != nullptr && handle != Handle() ? handle : root);
}

// A window behind a box or a modal dialog would become active with its control's focus.
void ControlWindow::TakeFocus() const {
  if (!Alive() || GetFocus() == Handle() || IsChild(Handle(), GetFocus())) return;
  const HWND root = GetAncestor(Handle(), GA_ROOT);
  const HWND dialog = DialogInFront(System());
  const auto behind = dialog != nullptr && dialog != root ? System().FindForm(root) : nullptr;
  if (behind != nullptr) {
    behind->FocusLater(Handle());
  } else {
    ::SetFocus(Handle());
  }
}

void ControlWindow::PaintSurface(HDC context, const RECT&) { PaintBehind(context); }

Color ControlWindow::GroundColor() const {
  const std::shared_ptr<Window> parent = ParentWindow();
  return parent != nullptr ? parent->GroundColor() : palette::PanelBack;
}

Color ControlWindow::InputGround() const {
  return control_.BackColor() == palette::PanelBack ? palette::Window : control_.BackColor();
}

HBRUSH ControlWindow::OnInputColor(HDC context) {
  const Color ground = InputGround();
  const Color text = control_.Enabled() ? control_.ForeColor() : palette::GrayText;
  SetTextColor(context, System().Palette.TextOn(text, ground));
  SetBkColor(context, System().Palette.Of(ground));
  return System().Palette.BrushOf(ground);
}

HBRUSH ControlWindow::OnColor(HDC context) {
  const Color ground = GroundColor();
  SetTextColor(context, System().Palette.TextOn(control_.ForeColor(), ground));
  SetBkColor(context, System().Palette.Of(ground));
  return System().Palette.BrushOf(ground);
}

bool ControlWindow::HasMouse(LPARAM position) const {
  const RECT area = ClientArea(Handle());
  return PtInRect(&area, {static_cast<short>(LOWORD(position)),
                          static_cast<short>(HIWORD(position))}) != FALSE;
}

// The focus may lead to a box, and be kept by the control that had it.
ControlWindow::PressState ControlWindow::FocusByPress() const {
  const LONG time = GetMessageTime();
  ::SetFocus(Handle());
  if (!Alive() || GetFocus() != Handle()) return PressState::Refused;
  // Messages were received meanwhile, that of the release among them unless the button is down.
  const bool letGo = GetMessageTime() != time && GetKeyState(VK_LBUTTON) >= 0;
  return letGo ? PressState::LetGo : PressState::Held;
}

LRESULT ControlWindow::Press(WPARAM keys, LPARAM position) {
  const PressState state = FocusByPress();
  if (state == PressState::Refused) return 0;
  if (state == PressState::LetGo) PostMessageA(Handle(), WM_LBUTTONUP, 0, position);
  return ControlWindow::OnMessage(WM_LBUTTONDOWN, keys, position);
}

// Whether the press is a click already.
bool ControlWindow::BeginPress(bool takesFocus) {
  const PressState state = takesFocus ? FocusByPress() : PressState::Held;
  if (state == PressState::Held) {
    SetCapture(Handle());
    pressed_ = true;
  }
  return state == PressState::LetGo;
}

// Whether it is a click.
bool ControlWindow::EndPress(LPARAM position) {
  if (!std::exchange(pressed_, false)) return false;
  ReleaseCapture();
  return Alive() && HasMouse(position);
}

LRESULT ControlWindow::FollowButton(UINT message, WPARAM first, LPARAM second, bool takesFocus,
                                    const std::function<void()>& click) {
  // Before the events, whose handlers may take the mouse away.
  bool clicked = message == WM_LBUTTONUP && EndPress(second);
  const LRESULT answer = ControlWindow::OnMessage(message, first, second);
  if (Alive() && message != WM_LBUTTONUP) clicked = BeginPress(takesFocus);
  if (Alive() && clicked) Raise(click);
  return answer;
}

void ControlWindow::RaiseMouse(UINT message, WPARAM keys, LPARAM position) {
  for (const MouseMessage& row : MouseMessages) {
    if (row.Message != message) continue;
    Control& target = MouseTarget();
    if (!target.Enabled()) return;
    const MouseState mouse = MouseStateOf(keys, position, System().TwipsPerPixelX());
    const int button = row.Button != 0 ? row.Button : mouse.Button;
    Raise([&] { (target.*row.Event)(button, mouse.Shift, mouse.X, mouse.Y); });
    return;
  }
}

// The model may want the focus to stay where it was; it goes back then.
bool ControlWindow::TakesFocusFromModel() {
  bool taken = true;
  Raise([&] { taken = System().UserMovesFocus(&control_); });
  if (!Alive()) return taken;
  if (taken) {
    // A box that came and went may have left the screen's focus elsewhere.
    TakeFocus();
    return true;
  }
  const Control* keeper = System().Focus();
  if (keeper != nullptr && keeper->Peer() != nullptr) keeper->Peer()->SetFocus();
  return false;
}

// The text is copied: a handler may let messages through.
void ControlWindow::AssignText(const char* text) {
  Raise(
      [this, copy = std::string(text != nullptr ? text : "")] { control_.AssignWindowText(copy); });
}

LRESULT ControlWindow::SpokenAnswer(WPARAM first) {
  return AnswerSpokenObject(std::static_pointer_cast<ControlWindow>(shared_from_this()), first);
}

LRESULT ControlWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_SETTEXT:
      if (IsTelling()) break;
      AssignText(reinterpret_cast<const char*>(second));
      return TRUE;
    case WM_CLOSE:
      // From a foreign program: nothing that a control could close by itself.
      return 0;
    case WM_SETCURSOR:
      if (LOWORD(second) == HTCLIENT && System().ShowPointer(Pointer())) return TRUE;
      break;
    case WM_SETFOCUS:
      if (control_.IsTabStop() && !TakesFocusFromModel()) return 0;
      break;
    case WM_SIZE:
      // What Windows keeps of the old picture, gradient and aligned text do not continue.
      Invalidate();
      break;
    case WM_CAPTURECHANGED:
      pressed_ = false;
      break;
    case WM_GETOBJECT:
      // The object's number has 32 bits, whatever the width of the parameter.
      if (static_cast<LONG>(second) == OBJID_CLIENT && IsSpokenByName()) {
        if (const LRESULT answer = SpokenAnswer(first); answer != 0) return answer;
      }
      break;
    case WM_MOUSEMOVE:
      if (!tipped_) ShowTip();
      RaiseMouse(message, first, second);
      break;
    default:
      if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONDBLCLK) {
        RaiseMouse(message, first, second);
      }
      break;
  }
  return Alive() ? Window::OnMessage(message, first, second) : 0;
}

void ControlWindow::DrawOwnBorder() {
  const WindowContext context(Handle(), Extent::WithFrame);
  RECT area{};
  GetWindowRect(Handle(), &area);
  OffsetRect(&area, -area.left, -area.top);
  // An empty list has nothing else to show that it has the focus.
  const bool focused = GetFocus() == Handle();
  const Color line = focused ? palette::Highlight : palette::FrameLine;
  FrameRect(context.Get(), &area, System().Palette.BrushOf(line));
}

}  // namespace vantrel::forms::win32
