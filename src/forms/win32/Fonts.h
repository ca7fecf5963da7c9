// The fonts of all windows, each made once at the screen's dots per inch.
#ifndef VANTREL_FORMS_WIN32_FONTS_H_
#define VANTREL_FORMS_WIN32_FONTS_H_

#include <map>
#include <string>
#include <tuple>

#include "forms/Design.h"
#include "forms/win32/Handles.h"
#include "forms/win32/Scale.h"

namespace vantrel::forms::win32 {

class Fonts {
 public:
  explicit Fonts(Scale scale) : scale_(scale) {}
  // Lives as long as this.
  HFONT Of(const Font& font);

 private:
  using Key = std::tuple<std::string, int, bool, bool>;

  Scale scale_;
  std::map<Key, FontHandle> fonts_;
};

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_FONTS_H_
