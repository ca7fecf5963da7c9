// The check boxes of list rows, as pictures of a list's states: 1 clear, 2 ticked.
#ifndef VANTREL_FORMS_WIN32_CHECKMARKS_H_
#define VANTREL_FORMS_WIN32_CHECKMARKS_H_

#include "forms/win32/WindowSystem.h"

namespace vantrel::forms::win32 {

ImagesHandle MakeCheckMarks(const WindowSystem& system);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_CHECKMARKS_H_
