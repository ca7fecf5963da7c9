// The program's pictures, as its windows take them.
#ifndef VANTREL_TESTS_E2E_TOOLKIT_PROGRAMPICTURES_H_
#define VANTREL_TESTS_E2E_TOOLKIT_PROGRAMPICTURES_H_

#include "forms/win32/Win32Toolkit.h"

namespace vantrel::tests {

forms::win32::Pictures ProgramPictures();

}  // namespace vantrel::tests

#endif  // VANTREL_TESTS_E2E_TOOLKIT_PROGRAMPICTURES_H_
