// The list of a folder's files.
#ifndef VANTREL_FORMS_WIN32_FILELISTWINDOW_H_
#define VANTREL_FORMS_WIN32_FILELISTWINDOW_H_

#include "forms/FileListBox.h"
#include "forms/win32/ControlWindow.h"

namespace vantrel::forms::win32 {

class FileListWindow final : public ControlWindow {
 public:
  FileListWindow(WindowSystem& system, FileListBox& list)
      : ControlWindow(system, list), list_(list) {}
  void Changed(Aspect aspect) override;
  void PaintSurface(HDC, const RECT&) override {}
  LRESULT OnCommand(WPARAM first, LPARAM second) override;
  HBRUSH OnColor(HDC context) override { return OnInputColor(context); }

 protected:
  WindowShape Shape() const override;
  void Prepare() override { Changed(Aspect::Items); }
  LRESULT OnMessage(UINT message, WPARAM first, LPARAM second) override;

 private:
  void Fill();

  FileListBox& list_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_FILELISTWINDOW_H_
