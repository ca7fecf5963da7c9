#include "Inside.h"

#include <cstring>
#include <stdexcept>

#include "inside/Protocol.h"
#include "support/Wait.h"

namespace vantrel::e2e {
namespace {

// In every process the system's library lies at the same address.
void LoadThere(HANDLE process, const char* path) {
  const SIZE_T size = std::strlen(path) + 1;
  void* text = VirtualAllocEx(process, nullptr, size, MEM_COMMIT, PAGE_READWRITE);
  WriteProcessMemory(process, text, path, size, nullptr);
  const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32"), "LoadLibraryA")));
  const HANDLE thread = CreateRemoteThread(process, nullptr, 0, load, text, 0, nullptr);
  WaitForSingleObject(thread, DefaultBound);
  CloseHandle(thread);
  VirtualFreeEx(process, text, 0, MEM_RELEASE);
}

HWND FindIn(DWORD processId) {
  HWND found = nullptr;
  while ((found = FindWindowExA(HWND_MESSAGE, found, nullptr, inside::WindowName)) != nullptr) {
    DWORD owner = 0;
    GetWindowThreadProcessId(found, &owner);
    if (owner == processId) return found;
  }
  return nullptr;
}

}  // namespace

Inside::Inside(HANDLE process)
    : mapping_(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                  sizeof(inside::Memory), inside::MemoryName)) {
  LoadThere(process, VANTREL_LOOK_INSIDE);
  if (!WaitFor([&] { return (window_ = FindIn(GetProcessId(process))) != nullptr; })) {
    throw std::runtime_error("the library " VANTREL_LOOK_INSIDE " does not answer");
  }
}

Inside::~Inside() { CloseHandle(mapping_); }

LOGFONTA Inside::FontOf(HWND control) const {
  DWORD_PTR answer = 0;
  SendMessageTimeoutA(window_, inside::AskFont, reinterpret_cast<WPARAM>(control), 0, SMTO_BLOCK,
                      DefaultBound, &answer);
  LOGFONTA font{};
  const auto* memory = static_cast<inside::Memory*>(
      MapViewOfFile(mapping_, FILE_MAP_READ, 0, 0, sizeof(inside::Memory)));
  if (memory != nullptr) font = memory->Font;
  UnmapViewOfFile(memory);
  return font;
}

void Inside::Choose(inside::Scheme scheme) const {
  DWORD_PTR answer = 0;
  SendMessageTimeoutA(window_, inside::AskScheme, static_cast<WPARAM>(scheme), 0, SMTO_BLOCK,
                      DefaultBound, &answer);
}

}  // namespace vantrel::e2e
