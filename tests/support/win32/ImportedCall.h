// A call that a module makes of a system library, as its import table has it: a test that puts a
// function of its own there answers in the system's place.
#ifndef VANTREL_TESTS_SUPPORT_WIN32_IMPORTEDCALL_H_
#define VANTREL_TESTS_SUPPORT_WIN32_IMPORTEDCALL_H_

#include <windows.h>

#include <cstring>

namespace vantrel::tests {

// Where the module keeps the address of the function; nullptr if it imports none of that name.
inline ULONG_PTR* FindImport(HMODULE module, const char* name) {
  auto* const base = reinterpret_cast<BYTE*>(module);
  const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(
      base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
  const DWORD table =
      headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + table);
  for (; table != 0 && library->Name != 0; ++library) {
    const auto* names = reinterpret_cast<const ULONG_PTR*>(base + library->OriginalFirstThunk);
    auto* addresses = reinterpret_cast<ULONG_PTR*>(base + library->FirstThunk);
    for (; *names != 0; ++names, ++addresses) {
      if (IMAGE_SNAP_BY_ORDINAL(*names)) continue;
      const auto* import = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + *names);
      if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) return addresses;
    }
  }
  return nullptr;
}

// Puts the address there, also where the linker has the table write-protected.
inline bool WriteImport(ULONG_PTR* import, ULONG_PTR address) {
  DWORD before = 0;
  if (!VirtualProtect(import, sizeof *import, PAGE_READWRITE, &before)) return false;
  *import = address;
  VirtualProtect(import, sizeof *import, before, &before);
  return true;
}

// False if the module imports no such function.
template <class Function>
bool ReplaceImport(HMODULE module, const char* name, Function* function) {
  ULONG_PTR* const import = FindImport(module, name);
  return import != nullptr && WriteImport(import, reinterpret_cast<ULONG_PTR>(function));
}

}  // namespace vantrel::tests

#endif  // VANTREL_TESTS_SUPPORT_WIN32_IMPORTEDCALL_H_
