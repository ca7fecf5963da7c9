#include "forms/win32/WindowSystem.h"

#include <commctrl.h>

#include <utility>

#include "forms/win32/FormWindow.h"
#include "forms/win32/HandleOf.h"
#include "forms/win32/Keyboard.h"
#include "forms/win32/Window.h"

namespace vantrel::forms::win32 {
namespace {

// The process paints at the screen's own resolution; Windows XP knows no other way.
int DeclareDpiAware() {
  using Declare = BOOL(WINAPI*)();
  const HMODULE user = GetModuleHandleA("user32.dll");
  const auto declare = reinterpret_cast<Declare>(
      reinterpret_cast<void*>(GetProcAddress(user, "SetProcessDPIAware")));
  if (declare != nullptr) declare();
  return Scale::OfScreen().Dpi();
}

void LoadCommonControls() {
  INITCOMMONCONTROLSEX wanted{sizeof wanted, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
  // Before version 6 there are no standard classes to ask for.
  if (!InitCommonControlsEx(&wanted)) {
    wanted.dwICC = ICC_WIN95_CLASSES;
    InitCommonControlsEx(&wanted);
  }
}

}  // namespace

WindowSystem::WindowSystem(win32::Pictures pictures, std::function<bool()> highContrast)
    : Pixels(DeclareDpiAware()),
      Palette(std::move(highContrast)),
      Typefaces(Pixels),
      Images(std::move(pictures), Pixels),
      TaskbarCreatedMessage(RegisterWindowMessageA("TaskbarCreated")) {
  LoadCommonControls();
  Window::RegisterClass(Images.ProgramIcon(true), Images.ProgramIcon(false));
}

std::unique_ptr<FormPeer> WindowSystem::MakeWindow(Form& form) {
  return MakeFormWindow(*this, form);
}

void WindowSystem::RunMessageLoop() {
  RunWhile([] { return true; });
}

void WindowSystem::RunWhile(const std::function<bool()>& goesOn) {
  MSG message;
  while (!Ending() && goesOn()) {
    MakeAwaited();
    const BOOL received = GetMessageA(&message, nullptr, 0, 0);
    if (received <= 0) {
      // WM_QUIT: the outer loops are to end as well.
      if (received == 0) PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Dispatch(message);
  }
}

void WindowSystem::PumpMessages() {
  MSG message;
  while (!Ending() && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    Dispatch(message);
  }
}

void WindowSystem::Dispatch(MSG& message) {
  // A key may raise several events, on windows that the first of them discards.
  const EventScope scope(*this);
  if (HandleKey(*this, message)) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

void WindowSystem::Raise(const std::function<void()>& event) noexcept {
  AtBorder(event);
  if (!Ending() || quitPosted_) return;
  // Boxes of Windows' own run loops that only this ends, and menus one that swallows it.
  quitPosted_ = true;
  EndMenu();
  PostQuitMessage(0);
}

std::shared_ptr<Window> WindowSystem::Find(HWND window) const {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : found->second->shared_from_this();
}

std::shared_ptr<FormWindow> WindowSystem::FindForm(HWND window) const {
  return std::dynamic_pointer_cast<FormWindow>(Find(window));
}

std::shared_ptr<FormWindow> WindowSystem::FormAround(HWND control) const {
  for (HWND window = control; window != nullptr; window = GetAncestor(window, GA_PARENT)) {
    if (auto form = FindForm(window)) return form;
  }
  return nullptr;
}

void WindowSystem::Add(HWND window, Window& object) { windows_[window] = &object; }

void WindowSystem::Remove(HWND window) { windows_.erase(window); }

void WindowSystem::Await(FormWindow& form) { awaited_.push_back(form.weak_from_this()); }

void WindowSystem::MakeAwaited() {
  // Making may load further forms.
  while (!awaited_.empty()) {
    for (const std::weak_ptr<Window>& awaited : std::exchange(awaited_, {})) {
      const auto form = std::dynamic_pointer_cast<FormWindow>(awaited.lock());
      if (form != nullptr) form->MakeControls();
    }
  }
}

// Those of now: what they are told may load or unload some.
std::vector<std::shared_ptr<FormWindow>> WindowSystem::FormWindows() const {
  std::vector<std::shared_ptr<FormWindow>> windows;
  for (const Form* form : LoadedForms()) {
    if (auto window = FindForm(HandleOf(*form))) windows.push_back(std::move(window));
  }
  return windows;
}

void WindowSystem::RefreshColors() {
  if (!Palette.Refresh()) return;
  for (const auto& window : FormWindows()) window->ShowScheme();
}

void WindowSystem::Renew(int dpi) {
  Pixels = Scale(dpi);
  // What the windows show still goes when they all show the new.
  const Fonts fonts = std::exchange(Typefaces, Fonts(Pixels));
  const ImageStrips::Lists lists = Images.Rescale(Pixels);
  for (const auto& window : FormWindows()) window->Renew();
}

bool WindowSystem::ShowPointer(int pointer) const {
  const int shown = ScreenPointer() != PointerDefault ? ScreenPointer() : pointer;
  if (shown == PointerDefault) return false;
  SetCursor(LoadCursorA(nullptr, shown == PointerHourglass ? IDC_WAIT : IDC_HAND));
  return true;
}

void WindowSystem::RefreshPointer() const {
  POINT mouse{};
  GetCursorPos(&mouse);
  const HWND under = WindowFromPoint(mouse);
  if (Find(under) == nullptr) return;
  const auto part = SendMessageA(under, WM_NCHITTEST, 0, MAKELPARAM(mouse.x, mouse.y));
  SendMessageA(under, WM_SETCURSOR, reinterpret_cast<WPARAM>(under),
               MAKELPARAM(part, WM_MOUSEMOVE));
}

std::unique_ptr<Win32Toolkit> MakeWin32Toolkit(Pictures pictures,
                                               std::function<bool()> highContrast) {
  return std::make_unique<WindowSystem>(std::move(pictures), std::move(highContrast));
}

}  // namespace vantrel::forms::win32
