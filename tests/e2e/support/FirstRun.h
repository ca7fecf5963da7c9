// What a first run leaves below the root of the settings, Start pressed.
#ifndef VANTREL_TESTS_E2E_SUPPORT_FIRSTRUN_H_
#define VANTREL_TESTS_E2E_SUPPORT_FIRSTRUN_H_

#include "support/RegistryView.h"

namespace vantrel::e2e {

Tree FirstRunTree();

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_FIRSTRUN_H_
