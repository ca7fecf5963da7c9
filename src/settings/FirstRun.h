// What a start makes sure of before it loads the settings: the tree exists.
#ifndef VANTREL_SETTINGS_FIRSTRUN_H_
#define VANTREL_SETTINGS_FIRSTRUN_H_

#include "program/Program.h"

namespace vantrel::settings {

// Creates the tree's root, and fills each key whose one tested value is missing with its first-run
// values, the block settings from the controls' present states. Error 5 if a tested value has no
// bytes.
void CheckAndCreateRegitry(program::Program& program);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_FIRSTRUN_H_
