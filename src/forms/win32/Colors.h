// The palette's colours on this screen, as the user's scheme was when it was last looked at, and
// the brushes of them.
#ifndef VANTREL_FORMS_WIN32_COLORS_H_
#define VANTREL_FORMS_WIN32_COLORS_H_

#include <windows.h>

#include <functional>
#include <map>
#include <utility>

#include "forms/ColorScheme.h"
#include "forms/win32/Handles.h"

namespace vantrel::forms::win32 {

class Colors {
 public:
  // `highContrast` says whether the user has chosen high contrast.
  explicit Colors(std::function<bool()> highContrast) : highContrast_(std::move(highContrast)) {
    Refresh();
  }

  // Takes the user's scheme as it is now; false if it is the same. Until the next time all is
  // painted in that one: a paint between a change of colours and the message that reports it would
  // mix the two.
  bool Refresh();
  // Whether the scheme's colours replace the program's own.
  bool Contrast() const { return scheme_.Contrast(); }

  COLORREF Of(Color color) const { return scheme_.Of(color); }
  // The colour of text on a ground: as wanted, or what of the scheme can be read there.
  COLORREF TextOn(Color text, Color ground) const { return scheme_.TextOn(text, ground); }
  // A brush that lives until the next Refresh that finds another scheme.
  HBRUSH BrushOf(Color color) const;

 private:
  std::function<bool()> highContrast_;
  ColorScheme scheme_;
  mutable std::map<COLORREF, Brush> brushes_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_COLORS_H_
