// Binds this component's behaviour to its panel.
#ifndef VANTREL_CLEANING_ATTACH_H_
#define VANTREL_CLEANING_ATTACH_H_

#include "program/Program.h"

namespace vantrel::cleaning {

void AttachCleaning(program::Program& program);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_ATTACH_H_
