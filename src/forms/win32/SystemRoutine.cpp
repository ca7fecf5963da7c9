#include "forms/win32/SystemRoutine.h"

#include <string>

namespace vantrel::forms::win32 {

FARPROC FindSystemRoutine(const char* library, const char* name) {
  std::string path(MAX_PATH, '\0');
  const UINT length = GetSystemDirectoryA(path.data(), MAX_PATH);
  if (length == 0 || length >= MAX_PATH) return nullptr;
  path.resize(length);
  path.append("\\").append(library);
  const HMODULE module = LoadLibraryA(path.c_str());
  return module != nullptr ? GetProcAddress(module, name) : nullptr;
}

}  // namespace vantrel::forms::win32
