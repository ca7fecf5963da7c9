// Turns the palette's colours into the screen's. Where the user has chosen high contrast or a dark
// scheme, the program's own colours are replaced by those of the scheme; this is the one place for
// that.
#ifndef VANTREL_FORMS_WIN32_COLORS_H_
#define VANTREL_FORMS_WIN32_COLORS_H_

#include <windows.h>

#include <array>
#include <map>

#include "forms/Palette.h"
#include "forms/win32/Handles.h"

namespace vantrel::forms::win32 {

class Colors {
 public:
  Colors() { Refresh(); }

  // Takes the user's scheme as it is now. Until the next time all is painted in that one: a paint
  // between a change of colours and the message that reports it would mix the two.
  void Refresh();
  // Whether the scheme's colours replace the program's own.
  bool Contrast() const { return contrast_; }

  COLORREF Of(Color color) const;
  // The colour of text on a ground: as wanted, or what of the scheme can be read there.
  COLORREF TextOn(Color text, Color ground) const;
  // A brush that lives until the next Refresh.
  HBRUSH BrushOf(Color color) const;

 private:
  static constexpr int SchemeSize = 31;

  COLORREF Screen(Color color) const;

  std::array<COLORREF, SchemeSize> scheme_{};
  bool contrast_ = false;
  mutable std::map<COLORREF, Brush> brushes_;
};

// The contrast of two colours, from 1 to 21.
double ContrastBetween(COLORREF one, COLORREF other);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_COLORS_H_
