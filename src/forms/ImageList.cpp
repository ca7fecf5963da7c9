#include "forms/ImageList.h"

#include <algorithm>
#include <utility>

#include "forms/ControlVisitor.h"
#include "forms/Form.h"
#include "text/Strings.h"

namespace vantrel::forms {

ImageList::ImageList(Form& form, std::string name, int count)
    : form_(form), name_(std::move(name)), count_(count) {}

ImageList::ImageList(Form& form, std::string name, std::vector<std::string> keys)
    : form_(form),
      name_(std::move(name)),
      count_(static_cast<int>(keys.size())),
      keys_(std::move(keys)) {}

std::string ImageList::QualifiedName() const { return form_.Name() + "." + name_; }

int ImageList::NumberOf(const std::string& key) const {
  const auto found = std::find_if(keys_.begin(), keys_.end(), [&key](const std::string& candidate) {
    return text::EqualIgnoringCase(candidate, key);
  });
  return found == keys_.end() ? 0 : static_cast<int>(found - keys_.begin()) + 1;
}

void Image::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

void Image::SetPicture(const ImageList& list, int number) {
  if (number < 1 || number > list.Count()) {
    throw text::RuntimeError(text::ErrorNumber::ElementNotFound);
  }
  if (list_ == &list && number_ == number) return;
  list_ = &list;
  number_ = number;
  Changed(Aspect::Picture);
}

void Image::SetPicture(const ImageList& list, const std::string& key) {
  SetPicture(list, list.NumberOf(key));
}

}  // namespace vantrel::forms
