// Names that compare without regard to case: ASCII letters fold, every other byte stands for
// itself.
#ifndef VANTREL_PLATFORM_MEMORY_FOLD_H_
#define VANTREL_PLATFORM_MEMORY_FOLD_H_

#include <string>
#include <string_view>

namespace vantrel::platform::memory {

// In capitals, as the system orders names.
inline std::string Fold(std::string_view name) {
  std::string folded(name);
  for (char& c : folded) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return folded;
}

inline bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && Fold(a) == Fold(b);
}

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_FOLD_H_
