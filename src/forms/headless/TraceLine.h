// A change as a line of the trace: "FrmFrameMain.cmdstart Enabled=False".
#ifndef VANTREL_FORMS_HEADLESS_TRACELINE_H_
#define VANTREL_FORMS_HEADLESS_TRACELINE_H_

#include <string>

#include "forms/Form.h"

namespace vantrel::forms::headless {

std::string TraceLine(Control& control, Aspect aspect);
std::string TraceLine(const Form& form, Aspect aspect);

}  // namespace vantrel::forms::headless

#endif  // VANTREL_FORMS_HEADLESS_TRACELINE_H_
