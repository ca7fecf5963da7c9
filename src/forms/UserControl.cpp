#include "forms/UserControl.h"

#include "forms/ControlVisitor.h"

namespace vantrel::forms {

void UserControl::Accept(ControlVisitor& visitor) { visitor.Visit(*this); }

}  // namespace vantrel::forms
