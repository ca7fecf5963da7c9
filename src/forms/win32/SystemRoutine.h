// Routines of system libraries that few runs need: the library is loaded, by its full path, when
// the routine is first asked for, so that the start does not pay for it.
#ifndef VANTREL_FORMS_WIN32_SYSTEMROUTINE_H_
#define VANTREL_FORMS_WIN32_SYSTEMROUTINE_H_

#include <windows.h>

namespace vantrel::forms::win32 {

// nullptr where this Windows has no such library or routine. The library stays loaded.
FARPROC FindSystemRoutine(const char* library, const char* name);

// The routine under its documented type.
template <class Routine>
Routine* SystemRoutine(const char* library, const char* name) {
  return reinterpret_cast<Routine*>(reinterpret_cast<void*>(FindSystemRoutine(library, name)));
}

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_SYSTEMROUTINE_H_
