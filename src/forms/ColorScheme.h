// How the palette's colours come out under the user's scheme. Where the user has chosen high
// contrast or a dark scheme, the program's own colours are replaced by those of the scheme; this is
// the one place for that.
#ifndef VANTREL_FORMS_COLORSCHEME_H_
#define VANTREL_FORMS_COLORSCHEME_H_

#include <array>
#include <cstddef>

#include "forms/Palette.h"

namespace vantrel::forms {

class ColorScheme {
 public:
  static constexpr std::size_t Size = 31;
  // The system colours by their index.
  using SystemColors = std::array<Color, Size>;

  // Black on black, until there is a scheme.
  ColorScheme() = default;
  ColorScheme(const SystemColors& system, bool highContrast);

  // Whether the scheme's colours replace the program's own.
  bool Contrast() const { return contrast_; }
  // A colour of the screen, 0x00BBGGRR. An index that the scheme lacks is black.
  Color Of(Color color) const;
  // The colour of text on a ground: as wanted, or what of the scheme can be read there.
  Color TextOn(Color text, Color ground) const;

  bool operator==(const ColorScheme&) const = default;

 private:
  Color Screen(Color color) const;

  SystemColors system_{};
  bool contrast_ = false;
};

// The contrast of two colours of the screen, from 1 to 21.
double ContrastBetween(Color one, Color other);

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_COLORSCHEME_H_
