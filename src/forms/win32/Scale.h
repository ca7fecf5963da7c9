// Twips to pixels and back by the screen's dots per inch. Edges are rounded, not sizes, so that
// what meets in twips meets on the screen.
#ifndef VANTREL_FORMS_WIN32_SCALE_H_
#define VANTREL_FORMS_WIN32_SCALE_H_

#include <windows.h>

#include "forms/Design.h"

namespace vantrel::forms::win32 {

class Scale {
 public:
  static constexpr int DesignDpi = 96;
  static constexpr int TwipsPerInch = 1440;

  explicit Scale(int dpi) : dpi_(dpi) {}
  // That of the screen.
  static Scale OfScreen();

  int Dpi() const { return dpi_; }
  int Pixels(int twips) const { return MulDiv(twips, dpi_, TwipsPerInch); }
  int Twips(int pixels) const { return MulDiv(pixels, TwipsPerInch, dpi_); }
  double TwipsPerPixel() const { return static_cast<double>(TwipsPerInch) / dpi_; }
  // A length given in pixels at 96 dots per inch.
  int Scaled(int pixels) const { return MulDiv(pixels, dpi_, DesignDpi); }

  RECT Rectangle(const Place& place) const {
    return {Pixels(place.Left), Pixels(place.Top), Pixels(place.Left + place.Width),
            Pixels(place.Top + place.Height)};
  }

 private:
  int dpi_;
};

inline int WidthOf(const RECT& area) { return area.right - area.left; }
inline int HeightOf(const RECT& area) { return area.bottom - area.top; }

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_SCALE_H_
