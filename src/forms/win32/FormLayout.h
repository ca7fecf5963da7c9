// Where the parts of a window go beyond their design: what stretches with a main window, and what
// lies below what.
#ifndef VANTREL_FORMS_WIN32_FORMLAYOUT_H_
#define VANTREL_FORMS_WIN32_FORMLAYOUT_H_

#include <windows.h>

#include "forms/Form.h"
#include "forms/win32/Scale.h"

namespace vantrel::forms::win32 {

// Fits a main window's bars, title and left column to its inside; all else stays where it is.
void LayOutMain(const Form& form, HWND window, const Scale& scale);

// Puts containers and pictures' grounds below the controls beside them, whatever the order of
// making, which is that of Tab.
void SinkContainers(const Form& form);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_FORMLAYOUT_H_
