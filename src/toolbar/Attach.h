// Binds the toolbar's layout to its dialog.
#ifndef VANTREL_TOOLBAR_ATTACH_H_
#define VANTREL_TOOLBAR_ATTACH_H_

#include "program/Program.h"

namespace vantrel::toolbar {

// Binds the Customize Toolbar dialog's behaviour, whenever it is made.
void AttachToolbar(program::Program& program);

}  // namespace vantrel::toolbar

#endif  // VANTREL_TOOLBAR_ATTACH_H_
