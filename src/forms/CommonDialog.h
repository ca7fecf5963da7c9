// The system's file dialogs as a component of a window. It shows nothing by itself, and no window
// here opens one: it is on the designs that bear one.
#ifndef VANTREL_FORMS_COMMONDIALOG_H_
#define VANTREL_FORMS_COMMONDIALOG_H_

#include <string>
#include <utility>

#include "forms/Form.h"

namespace vantrel::forms {

class CommonDialog {
 public:
  CommonDialog(Form& form, std::string name) : form_(form), name_(std::move(name)) {}

  const std::string& Name() const { return name_; }
  std::string QualifiedName() const { return form_.Name() + "." + name_; }

 private:
  Form& form_;
  std::string name_;
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_COMMONDIALOG_H_
