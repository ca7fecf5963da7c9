// Pictures by 1-based number or by key. A list is named after its window ("frmMain.imgexplore");
// the screen's side finds the drawn strip under that name.
#ifndef VANTREL_FORMS_IMAGELIST_H_
#define VANTREL_FORMS_IMAGELIST_H_

#include <string>
#include <vector>

#include "forms/Control.h"

namespace vantrel::forms {

class ImageList {
 public:
  // So many images, known by number only.
  ImageList(Form& form, std::string name, int count);
  // One image a key, numbered in this order.
  ImageList(Form& form, std::string name, std::vector<std::string> keys);

  const std::string& Name() const { return name_; }
  std::string QualifiedName() const;
  int Count() const { return count_; }
  const std::vector<std::string>& Keys() const { return keys_; }
  // The 1-based number of the key, compared without regard to case; 0 if there is none.
  int NumberOf(const std::string& key) const;

 private:
  Form& form_;
  std::string name_;
  int count_;
  std::vector<std::string> keys_;
};

// A picture shown on a window, taken from an image list.
class Image : public Control {
 public:
  using Control::Control;
  void Accept(ControlVisitor& visitor) override;

  // nullptr and 0 while there is none.
  const ImageList* List() const { return list_; }
  int Number() const { return number_; }
  // Error 35601 for a number or key that the list does not have.
  void SetPicture(const ImageList& list, int number);
  void SetPicture(const ImageList& list, const std::string& key);

 private:
  const ImageList* list_ = nullptr;
  int number_ = 0;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_IMAGELIST_H_
