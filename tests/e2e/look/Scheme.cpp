#include "Scheme.h"

namespace vantrel::e2e {

InvertedScheme::InvertedScheme() {
  constexpr COLORREF White = 0xFFFFFF;
  std::array<COLORREF, Count> inverted{};
  for (int index = 0; index < Count; ++index) {
    const auto at = static_cast<std::size_t>(index);
    indices_[at] = index;
    before_[at] = GetSysColor(index);
    inverted[at] = before_[at] ^ White;
  }
  SetSysColors(Count, indices_.data(), inverted.data());
}

InvertedScheme::~InvertedScheme() { SetSysColors(Count, indices_.data(), before_.data()); }

}  // namespace vantrel::e2e
