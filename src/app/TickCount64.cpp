// The compiler's thread library imports GetTickCount64, which the system has since Vista: with that
// import the program would not even be loaded by Windows XP. The linker finds the import here
// instead, and leaves the system's out.
#include <windows.h>

namespace {

// Milliseconds since the system's start; on Windows XP they begin anew after 49.7 days.
ULONGLONG WINAPI TickCount64() {
  using Function = ULONGLONG(WINAPI*)();
  const FARPROC found = GetProcAddress(GetModuleHandleA("kernel32.dll"), "GetTickCount64");
  if (found == nullptr) return GetTickCount();
  return reinterpret_cast<Function>(reinterpret_cast<void*>(found))();
}

}  // namespace

#ifdef _WIN64
#define IMPORT_NAME "__imp_GetTickCount64"
#else
#define IMPORT_NAME "__imp__GetTickCount64@0"
#endif

extern "C" {
extern ULONGLONG(WINAPI* const ImportedTickCount64)() asm(IMPORT_NAME);
ULONGLONG(WINAPI* const ImportedTickCount64)() = &TickCount64;
}
