// The tool tips of one window's controls, each placed so that the controls around it can be
// reached.
#ifndef VANTREL_FORMS_WIN32_TOOLTIPS_H_
#define VANTREL_FORMS_WIN32_TOOLTIPS_H_

#include <windows.h>

#include <set>
#include <string>

#include "forms/win32/Scale.h"

namespace vantrel::forms::win32 {

class ToolTips {
 public:
  ToolTips() = default;
  ToolTips(const ToolTips&) = delete;
  ToolTips& operator=(const ToolTips&) = delete;
  ~ToolTips();

  // Sets the tip of a control's window under the owner; the empty text takes it away.
  void SetOwner(HWND owner) { owner_ = owner; }
  void Set(HWND control, const std::string& text, const Scale& scale);
  // Takes the notice that a tip is about to show; false if it is none of these.
  bool Shows(const NMHDR& notice) const;

 private:
  void MakeWindow();

  HWND owner_ = nullptr;
  HWND tips_ = nullptr;
  std::set<HWND> controls_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_TOOLTIPS_H_
