#include "forms/win32/FormWindow.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "forms/Controls.h"
#include "forms/UserControl.h"
#include "forms/win32/AwaitedPeer.h"
#include "forms/win32/ControlWindow.h"
#include "forms/win32/FormLayout.h"
#include "forms/win32/HandleOf.h"
#include "forms/win32/Keyboard.h"
#include "forms/win32/Painting.h"
#include "forms/win32/SystemRoutine.h"
#include "forms/win32/TimerPeer.h"
#include "forms/win32/WindowMaker.h"

namespace vantrel::forms::win32 {
namespace {

class Peer final : public FormPeer {
 public:
  explicit Peer(std::shared_ptr<FormWindow> window) : window_(std::move(window)) {}
  ~Peer() override { window_->Close(); }

  void Changed(Aspect aspect) override {
    const std::shared_ptr<FormWindow> window = window_;
    if (window->Alive()) window->Changed(aspect);
  }
  void SetFocus() override { ::SetFocus(window_->Handle()); }
  forms::Handle WindowHandle() const override {
    return reinterpret_cast<forms::Handle>(window_->Handle());
  }
  void RunModal() override {
    const std::shared_ptr<FormWindow> window = window_;
    window->RunModal();
  }
  void PopupMenu(Menu& menu) override {
    const std::shared_ptr<FormWindow> window = window_;
    window->PopupMenu(menu);
  }
  forms::Handle IconHandle() const override {
    return reinterpret_cast<forms::Handle>(window_->Icon());
  }
  void Activate() override { window_->Activate(); }

 private:
  std::shared_ptr<FormWindow> window_;
};

// Since Windows 8.1, with the new resolution in both halves of the first parameter.
constexpr UINT MessageDpiChanged = 0x02E0;
// What Windows lets users choose, 100 to 500 percent.
constexpr int LowestDpi = 96;
constexpr int HighestDpi = 480;

// The actions of WM_SETTINGCHANGE behind which texts are drawn otherwise.
constexpr UINT FontActions[] = {SPI_SETNONCLIENTMETRICS, SPI_SETFONTSMOOTHING,
                                SPI_SETFONTSMOOTHINGTYPE};

// The resolution that a window is drawn for: that of its screen, where Windows knows several.
int DpiOf(HWND window, int otherwise) {
  auto* const ask = SystemRoutine<UINT WINAPI(HWND)>("user32.dll", "GetDpiForWindow");
  const UINT dpi = ask != nullptr ? ask(window) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : otherwise;
}

// A program with higher rights than the shell hears from it only what it lets in.
void LetIn(HWND window, UINT message) {
  constexpr DWORD Allow = 1;
  auto* const change = SystemRoutine<BOOL WINAPI(HWND, UINT, DWORD, void*)>(
      "user32.dll", "ChangeWindowMessageFilterEx");
  if (change != nullptr) change(window, message, Allow, nullptr);
}

bool IsVisibleItself(HWND window) { return (GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0; }

// Windows sends a new scheme to top-level windows only; common controls need it, too.
BOOL CALLBACK PassSchemeOn(HWND child, LPARAM) {
  SendMessageA(child, WM_SYSCOLORCHANGE, 0, 0);
  return TRUE;
}

}  // namespace

std::unique_ptr<FormPeer> MakeFormWindow(WindowSystem& system, Form& form) {
  auto window = std::make_shared<FormWindow>(system, form);
  window->CreateHidden();
  return std::make_unique<Peer>(std::move(window));
}

MouseState MouseStateOf(WPARAM keys, LPARAM position, double twipsPerPixel) {
  MouseState mouse;
  if ((keys & MK_LBUTTON) != 0) mouse.Button |= 1;
  if ((keys & MK_RBUTTON) != 0) mouse.Button |= 2;
  if ((keys & MK_MBUTTON) != 0) mouse.Button |= 4;
  if ((keys & MK_SHIFT) != 0) mouse.Shift |= 1;
  if ((keys & MK_CONTROL) != 0) mouse.Shift |= 2;
  if (GetKeyState(VK_MENU) < 0) mouse.Shift |= 4;
  mouse.X = static_cast<float>(static_cast<short>(LOWORD(position)) * twipsPerPixel);
  mouse.Y = static_cast<float>(static_cast<short>(HIWORD(position)) * twipsPerPixel);
  return mouse;
}

HWND FormWindow::DialogOwner() const {
  for (const Form* form : System().LoadedForms()) {
    if (form->Designed().Frame == Border::Sizable) return HandleOf(*form);
  }
  return nullptr;
}

WindowShape FormWindow::Shape() const {
  WindowShape shape;
  shape.Text = form_.Caption();
  shape.Style = WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
  shape.ExtendedStyle = WS_EX_CONTROLPARENT;
  shape.Area =
      System().Pixels.Rectangle({form_.Left(), form_.Top(), form_.Width(), form_.Height()});
  if (IsMain()) {
    shape.Style |= WS_OVERLAPPEDWINDOW;
  } else if (IsPanel()) {
    // Not even for a moment a top-level window: a taskbar would give it a button then, and keep it.
    shape.Style |= WS_CHILD;
    shape.Parent = HWND_MESSAGE;
  } else {
    shape.Style |= WS_POPUP | WS_CAPTION | WS_SYSMENU;
    shape.ExtendedStyle |= WS_EX_DLGMODALFRAME;
    shape.Parent = DialogOwner();
    AdjustWindowRectEx(&shape.Area, shape.Style, FALSE, shape.ExtendedStyle);
  }
  return shape;
}

void FormWindow::CreateHidden() {
  Create(Shape(), form_.Name());
  if (!Alive()) throw text::RuntimeError(text::ErrorNumber::OutOfMemory);
  tips_.SetOwner(Handle());
  if (IsMain()) LetIn(Handle(), System().TaskbarCreatedMessage);
  if (IsMain()) ShowOwnDpi();
  AwaitControls();
}

// That of the screen which the window was made on.
void FormWindow::ShowOwnDpi() {
  const int known = System().Pixels.Dpi();
  const int dpi = DpiOf(Handle(), known);
  if (dpi == known) return;
  System().Renew(dpi);
  // Not one of the toolkit's loaded windows yet.
  ShowScale();
}

// A timer needs no window but the form's.
void FormWindow::AwaitControls() {
  int identifier = 0;
  for (Control* control : form_.Controls()) {
    ++identifier;
    if (auto* timer = dynamic_cast<Timer*>(control)) {
      timer->AttachPeer(MakeTimerPeer(*timer, Handle(), identifier));
    } else {
      control->AttachPeer(std::make_unique<AwaitedPeer>(*this, *control));
    }
  }
  System().Await(*this);
}

void FormWindow::MakeControls() {
  if (!Alive() || std::exchange(made_, true)) return;
  if (!IsPanel()) menus_.PutInto(Handle());
  int identifier = 0;
  for (Control* control : form_.Controls())
    MakeControlWindow(System(), *control, Handle(), ++identifier);
  SinkContainers(form_);
  LayOut();
}

void FormWindow::PaintSurface(HDC context, const RECT& area) {
  FillArea(context, area, System().Palette.Of(form_.BackColor()));
}

void FormWindow::Changed(Aspect aspect) {
  switch (aspect) {
    case Aspect::Text:
      SetWindowTextA(Handle(), form_.Caption().c_str());
      return;
    case Aspect::Visible:
      return ShowVisible();
    case Aspect::Place:
      return ShowPlace();
    case Aspect::State:
      return ShowState();
    default:
      return;
  }
}

int FormWindow::ShowCommand() const {
  if (!IsMain()) return SW_SHOWNA;
  switch (form_.WindowState()) {
    case WindowState::Minimized:
      return SW_SHOWMINIMIZED;
    case WindowState::Maximized:
      return SW_SHOWMAXIMIZED;
    default:
      return SW_SHOWNORMAL;
  }
}

void FormWindow::ShowVisible() {
  if (!form_.Visible()) {
    EndModal();
    LeaveFocus();
    ShowWindow(Handle(), SW_HIDE);
    return;
  }
  MakeControls();
  if (IsPanel()) return ShowPanel();
  if (!std::exchange(placed_, true)) Center();
  GoBehindDialog();
  ShowWindow(Handle(), ShowCommand());
  // A process that was started hidden has its first window hidden, whatever it asks for.
  if (form_.Visible() && !IsVisibleItself(Handle())) ShowWindow(Handle(), ShowCommand());
  PaintAtOnce();
}

// Windows would erase each control by itself first; so each is erased with its paint.
void FormWindow::ShowPanel() const {
  SetWindowPos(
      Handle(), nullptr, 0, 0, 0, 0,
      SWP_SHOWWINDOW | SWP_NOREDRAW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  RedrawWindow(Handle(), nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// Shown while a dialog keeps the other windows from being used, it takes no input either.
void FormWindow::GoBehindDialog() const {
  for (const Form* form : System().LoadedForms()) {
    const auto dialog = form->Modal() ? System().FindForm(HandleOf(*form)) : nullptr;
    if (dialog != nullptr && dialog.get() != this) dialog->modality_.Cover(Handle());
  }
}

// All of it before the next message, so that no half-painted window is ever seen.
void FormWindow::PaintAtOnce() const {
  RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// In the middle of the main window, or of the screen's work area.
void FormWindow::Center() {
  if (IsPanel() || form_.Left() != -1) return;
  RECT around{};
  const HWND owner = GetWindow(Handle(), GW_OWNER);
  if (owner == nullptr || !IsWindowVisible(owner) || IsIconic(owner) ||
      !GetWindowRect(owner, &around)) {
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &around, 0);
  }
  RECT own{};
  GetWindowRect(Handle(), &own);
  const int left = around.left + (WidthOf(around) - WidthOf(own)) / 2;
  const int top = around.top + (HeightOf(around) - HeightOf(own)) / 2;
  SetWindowPos(Handle(), nullptr, std::max(left, 0), std::max(top, 0), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// What of the window the model's size is: a dialog's inside, else all of it.
RECT FormWindow::Measured() const {
  if (!IsMain() && !IsPanel()) return ClientArea(Handle());
  RECT area{};
  GetWindowRect(Handle(), &area);
  return area;
}

void FormWindow::ShowPlace() {
  const RECT wanted = System().Pixels.Rectangle({0, 0, form_.Width(), form_.Height()});
  const RECT shown = Measured();
  const int wider = wanted.right - WidthOf(shown);
  const int higher = wanted.bottom - HeightOf(shown);
  if (wider == 0 && higher == 0) return;
  RECT whole{};
  GetWindowRect(Handle(), &whole);
  SetWindowPos(Handle(), nullptr, 0, 0, WidthOf(whole) + wider, HeightOf(whole) + higher,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::ShowState() {
  // A hidden window takes its state when it is shown.
  if (form_.Visible() && IsMain()) ShowWindow(Handle(), ShowCommand());
}

// A box or a modal dialog stays in front of what is shown behind it, and a menu that is open ends:
// whoever shows a window from outside finds one that answers.
void FormWindow::Activate() {
  if (IsPanel()) return;
  EndMenu();
  const HWND dialog = DialogInFront(System());
  SetForegroundWindow(dialog != nullptr ? dialog : Handle());
  if (dialog != nullptr && dialog != Handle()) return;
  // A window that was hidden in between may come back without the focus.
  if (!IsIconic(Handle()) && !IsChild(Handle(), GetFocus())) RestoreFocus();
}

void FormWindow::PopupMenu(Menu& menu) {
  const int chosen = MenuBar::PopUp(GetAncestor(Handle(), GA_ROOT), menu);
  System().ThrowIfEnding();
  Form& owner = menu.Owner();
  System().Raise([&] {
    if (Menu* entry = chosen != 0 ? owner.FindMenu(chosen) : nullptr) entry->UserClick();
  });
  System().ThrowIfEnding();
}

void FormWindow::RunModal() {
  modality_.Begin(System(), *this);
  System().RunWhile([this] { return modality_.Holds() && Alive(); });
  EndModal();
  System().ThrowIfEnding();
}

void FormWindow::Close() {
  EndModal();
  LeaveFocus();
  Destroy();
}

void FormWindow::EndModal() {
  if (!modality_.End() || !Alive()) return;
  // The loop that waits for it looks again.
  PostMessageA(Handle(), WM_NULL, 0, 0);
  // Windows activates the owner of a dialog that goes, but not a hidden one.
  const HWND owner = GetWindow(Handle(), GW_OWNER);
  if (GetActiveWindow() == Handle() && !IsWindowVisible(owner)) ActivateOther();
}

void FormWindow::ActivateOther() const {
  const auto& forms = System().LoadedForms();
  const auto other = std::find_if(forms.rbegin(), forms.rend(), [this](const Form* form) {
    return form != &form_ && form->Host() == nullptr && form->Visible();
  });
  if (other != forms.rend()) SetForegroundWindow(HandleOf(**other));
}

void FormWindow::LayOut() {
  if (IsMain() && made_ && Alive()) win32::LayOut(form_, Handle(), System().Pixels);
}

// Windows stops the frame there, whichever of its handles is dragged; a frame that the Resize
// handler enlarges afterwards would grow to the right, whichever side was dragged.
void FormWindow::Limit(MINMAXINFO& limits) const {
  if (IsZoomed(Handle())) return;
  const Size& smallest = form_.Designed().Smallest;
  POINT& track = limits.ptMinTrackSize;
  track.x = std::max<LONG>(track.x, System().Pixels.Pixels(smallest.Width));
  track.y = std::max<LONG>(track.y, System().Pixels.Pixels(smallest.Height));
}

void FormWindow::Resized(WPARAM kind) {
  if (IsPanel()) return;
  if (kind != SIZE_MINIMIZED) LayOut();
  const WindowState state = kind == SIZE_MINIMIZED   ? WindowState::Minimized
                            : kind == SIZE_MAXIMIZED ? WindowState::Maximized
                                                     : WindowState::Normal;
  const RECT area = Measured();
  const Scale& scale = System().Pixels;
  // A size that rounds to the same pixels is the same size.
  const auto twips = [&](int pixels, int known) {
    return scale.Pixels(known) == pixels ? known : scale.Twips(pixels);
  };
  const int width = twips(WidthOf(area), form_.Width());
  const int height = twips(HeightOf(area), form_.Height());
  System().Raise([&] { form_.UserResizes(width, height, state); });
}

void FormWindow::ShowScheme() {
  if (!Alive() || IsPanel()) return;
  EnumChildWindows(Handle(), PassSchemeOn, 0);
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// The main window keeps the size and the middle that it has, a panel its place in the main window,
// a dialog its inside.
void FormWindow::ShowScale() {
  const RECT wanted =
      System().Pixels.Rectangle({form_.Left(), form_.Top(), form_.Width(), form_.Height()});
  const int width = WidthOf(wanted);
  const int height = HeightOf(wanted);
  constexpr UINT Flags = SWP_NOZORDER | SWP_NOACTIVATE;
  if (IsPanel()) {
    SetWindowPos(Handle(), nullptr, wanted.left, wanted.top, width, height, Flags);
  } else if (!IsMain()) {
    ShowPlace();
  } else if (!IsZoomed(Handle()) && !IsIconic(Handle())) {
    const Place now = PlaceOf(Handle());
    SetWindowPos(Handle(), nullptr, now.Left + (now.Width - width) / 2,
                 now.Top + (now.Height - height) / 2, width, height, Flags);
  }
}

void FormWindow::Renew() {
  if (!Alive()) return;
  ShowScale();
  for (const Control* control : form_.Controls()) {
    if (!made_) break;
    const auto window = std::dynamic_pointer_cast<ControlWindow>(System().Find(HandleOf(*control)));
    // A timer and the face of another control have no window of their own.
    if (window != nullptr && &window->Model() == control) window->Renew();
    if (!Alive()) return;
  }
  LayOut();
  RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// The whole program has the main window's scale: a dialog, which lies before it, only keeps its
// inside from being cut off by a frame of another width.
void FormWindow::DpiChanged(int dpi, LPARAM suggested) {
  if (IsPanel() || dpi < LowestDpi || dpi > HighestDpi) return;
  if (!IsMain()) return ShowPlace();
  System().Renew(dpi);
  RECT area{};
  // The address may be anything: another program may have sent the message.
  const bool readable = ReadProcessMemory(GetCurrentProcess(), reinterpret_cast<void*>(suggested),
                                          &area, sizeof area, nullptr) != FALSE;
  if (readable && Alive() && !IsZoomed(Handle()) && !IsIconic(Handle())) {
    SetWindowPos(Handle(), nullptr, area.left, area.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  if (Alive()) KeepReachable(Handle());
}

void FormWindow::SettingChanged(UINT action) {
  const auto is = [action](UINT other) { return action == other; };
  if (IsMain() && std::any_of(std::begin(FontActions), std::end(FontActions), is)) {
    System().Renew(System().Pixels.Dpi());
  }
  if (Alive() && action == SPI_SETWORKAREA && !IsPanel()) KeepReachable(Handle());
}

// What Windows reports to top-level windows. It is followed and still handled as by default.
bool FormWindow::IsChangeOfScreen(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
      System().RefreshColors();
      ShowScheme();
      return true;
    case WM_SETTINGCHANGE:
      System().RefreshColors();
      SettingChanged(static_cast<UINT>(first));
      return true;
    case WM_FONTCHANGE:
      if (IsMain()) System().Renew(System().Pixels.Dpi());
      return true;
    case WM_DISPLAYCHANGE:
      if (!IsPanel()) KeepReachable(Handle());
      return true;
    case MessageDpiChanged:
      DpiChanged(LOWORD(first), second);
      return true;
    default:
      return false;
  }
}

LRESULT FormWindow::Closing(UINT message, WPARAM first) {
  if (message == WM_QUERYENDSESSION) return TRUE;
  if (message == WM_CLOSE) {
    // A panel has no close box: only a foreign program can ask it.
    if (IsPanel()) return 0;
    System().Raise([this] { form_.Unload(UnloadByCloseBox); });
  } else if (first != 0 && IsMain()) {
    System().Raise([this] { form_.Unload(UnloadBySystem); });
  }
  return 0;
}

// What reaches the form's model as an event of its own.
bool FormWindow::IsEvent(UINT message, WPARAM first, LPARAM second) {
  if (message == System().TaskbarCreatedMessage && IsMain()) {
    System().Raise([this] { System().TaskbarCreated(); });
    return true;
  }
  switch (message) {
    case WM_COMMAND:
      if (second != 0) return false;
      System().Raise([&] {
        if (Menu* entry = form_.FindMenu(LOWORD(first))) entry->UserClick();
      });
      return true;
    case WM_SIZE:
      Resized(first);
      return true;
    case WM_MOUSEMOVE: {
      const double unit = form_.ScaleMode() == ScaleMode::Pixels ? 1 : System().TwipsPerPixelX();
      const MouseState mouse = MouseStateOf(first, second, unit);
      System().Raise([&] { form_.MouseMove(mouse.Button, mouse.Shift, mouse.X, mouse.Y); });
      return true;
    }
    case WM_TIMER:
      TimerFires(System(), form_, static_cast<int>(first));
      return true;
    default:
      return false;
  }
}

// Windows itself hides a dialog with its minimised owner, and shows it again with it.
bool FormWindow::GoesWithOwner() const {
  const HWND owner = GetWindow(Handle(), GW_OWNER);
  return owner != nullptr && IsIconic(owner);
}

// A dialog that nobody sees must not keep the others from being used, and they are to be ready when
// Windows looks for the next window.
void FormWindow::AboutToMove(const WINDOWPOS& change) {
  const bool hides = (change.flags & SWP_HIDEWINDOW) != 0;
  if (hides && form_.Visible() && !GoesWithOwner()) EndModal();
}

// What another program has done to the window is so for the model as well.
void FormWindow::Moved(const WINDOWPOS& change) {
  if ((change.flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)) == 0) return;
  const bool visible = IsVisibleItself(Handle());
  if (visible == form_.Visible() || (!visible && GoesWithOwner())) return;
  if (visible && !std::exchange(placed_, true)) Center();
  System().Raise([&] { form_.UserShows(visible); });
}

LRESULT FormWindow::TakeCaption(WPARAM first, LPARAM second) {
  const LRESULT answer = Window::OnMessage(WM_SETTEXT, first, second);
  const auto* text = reinterpret_cast<const char*>(second);
  if (Alive()) System().Raise([&] { form_.SetCaption(text != nullptr ? text : ""); });
  return answer;
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM first, LPARAM second) {
  if (IsEvent(message, first, second) || IsFocusMove(message, first, second)) return 0;
  if (Alive() && IsChangeOfScreen(message, first, second) && Alive()) {
    return Window::OnMessage(message, first, second);
  }
  if (!Alive()) return 0;
  switch (message) {
    case WM_CLOSE:
    case WM_QUERYENDSESSION:
    case WM_ENDSESSION:
      return Closing(message, first);
    case WM_GETMINMAXINFO:
      if (second != 0) Limit(*reinterpret_cast<MINMAXINFO*>(second));
      return 0;
    case WM_NOTIFY:
      if (second != 0 && tips_.Shows(*reinterpret_cast<const NMHDR*>(second))) return TRUE;
      break;
    case WM_INITMENUPOPUP:
      menus_.Opens(reinterpret_cast<HMENU>(first));
      break;
    case WM_SETCURSOR:
      if (LOWORD(second) == HTCLIENT && System().ShowPointer(form_.MousePointer())) return TRUE;
      break;
    case WM_WINDOWPOSCHANGING:
      if (second != 0) AboutToMove(*reinterpret_cast<const WINDOWPOS*>(second));
      break;
    case WM_WINDOWPOSCHANGED: {
      const LRESULT answer = Window::OnMessage(message, first, second);
      if (Alive() && second != 0) Moved(*reinterpret_cast<const WINDOWPOS*>(second));
      return answer;
    }
    case WM_SETTEXT:
      return TakeCaption(first, second);
    default:
      break;
  }
  return Window::OnMessage(message, first, second);
}

}  // namespace vantrel::forms::win32
