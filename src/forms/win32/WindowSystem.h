// What the windows of one toolkit share: scale, colours, fonts, pictures, the list of windows by
// handle, and the loops that let messages through.
#ifndef VANTREL_FORMS_WIN32_WINDOWSYSTEM_H_
#define VANTREL_FORMS_WIN32_WINDOWSYSTEM_H_

#include <windows.h>

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "forms/win32/Colors.h"
#include "forms/win32/Fonts.h"
#include "forms/win32/ImageStrips.h"
#include "forms/win32/Painting.h"
#include "forms/win32/Scale.h"
#include "forms/win32/Win32Toolkit.h"

namespace vantrel::forms::win32 {

class FormWindow;
class Window;

class WindowSystem final : public Win32Toolkit {
 public:
  WindowSystem(Pictures pictures, std::function<bool()> highContrast);

  std::unique_ptr<FormPeer> MakeWindow(Form& form) override;
  double TwipsPerPixelX() const override { return Pixels.TwipsPerPixel(); }
  void RunMessageLoop() override;

  // Runs the loop until the condition fails or the program is ending.
  void RunWhile(const std::function<bool()>& goesOn);
  // Runs an event of the models; ends all message loops if it has ended the program.
  void Raise(const std::function<void()>& event) noexcept;

  // The window of the handle if it is one of this toolkit's, else nullptr.
  std::shared_ptr<Window> Find(HWND window) const;
  std::shared_ptr<FormWindow> FindForm(HWND window) const;
  // The form's window that a control's window lies in.
  std::shared_ptr<FormWindow> FormAround(HWND control) const;
  void Add(HWND window, Window& object);
  void Remove(HWND window);
  // The form's controls are to be made before the program waits for messages.
  void Await(FormWindow& form);

  // The user's scheme may have changed: if it has, every window shows it.
  void RefreshColors();
  // From here on every window is drawn for so many dots per inch, in fonts made anew.
  void Renew(int dpi);
  // Shows the pointer of the program or, without one, `pointer`; false to leave it to Windows.
  bool ShowPointer(int pointer) const;
  // Lets the window under the mouse show its pointer anew, if it is one of this toolkit's.
  void RefreshPointer() const;

  Scale Pixels;
  Colors Palette;
  Fonts Typefaces;
  ImageStrips Images;
  std::unique_ptr<BackBuffer> Buffer;  // of the paint that is to come
  bool Destroying = false;             // a window, and with it those below, by the toolkit itself
  const UINT TaskbarCreatedMessage;

 protected:
  void PumpMessages() override;
  void ScreenPointerChanged() override { RefreshPointer(); }

 private:
  void Dispatch(MSG& message);
  std::vector<std::shared_ptr<FormWindow>> FormWindows() const;
  void MakeAwaited();

  std::unordered_map<HWND, Window*> windows_;
  std::vector<std::weak_ptr<Window>> awaited_;
  bool quitPosted_ = false;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_WINDOWSYSTEM_H_
