#include "forms/win32/Colors.h"

namespace vantrel::forms::win32 {

bool Colors::Refresh() {
  ColorScheme::SystemColors system{};
  for (std::size_t index = 0; index < system.size(); ++index) {
    system[index] = GetSysColor(static_cast<int>(index));
  }
  const ColorScheme now(system, highContrast_());
  if (now == scheme_) return false;
  scheme_ = now;
  brushes_.clear();
  return true;
}

HBRUSH Colors::BrushOf(Color color) const {
  Brush& brush = brushes_[Of(color)];
  if (!brush.Valid()) brush = Brush(CreateSolidBrush(Of(color)));
  return brush.Get();
}

}  // namespace vantrel::forms::win32
