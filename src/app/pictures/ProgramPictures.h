// The program's own pictures, as the real windows take them.
#ifndef VANTREL_APP_PICTURES_PROGRAMPICTURES_H_
#define VANTREL_APP_PICTURES_PROGRAMPICTURES_H_

#include "forms/win32/Win32Toolkit.h"

namespace vantrel::app {

// Every image list with its strips, and the reader of a strip's bytes.
forms::win32::Pictures ProgramPictures();

}  // namespace vantrel::app

#endif  // VANTREL_APP_PICTURES_PROGRAMPICTURES_H_
