// Texts one behind the other in one block of memory, for what there are very many of: a short text
// takes one byte more than its characters.
#ifndef VANTREL_FORMS_PACKEDTEXTS_H_
#define VANTREL_FORMS_PACKEDTEXTS_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace vantrel::forms {

class PackedTexts {
 public:
  void Append(std::string_view text);
  // The text at the 0-based place, at which there must be one; valid until the next change.
  std::string_view At(std::size_t place) const;
  void Set(std::size_t place, std::string_view text);

 private:
  // From the text at the place on.
  std::string_view From(std::size_t place) const;

  std::string bytes_;  // each text behind its length in groups of seven bits, the lowest first
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_PACKEDTEXTS_H_
