// A font belongs to the process that made it: this library is loaded into the program's process and
// answers there what a control's font is.
#include <windows.h>

#include "Protocol.h"

namespace {

namespace inside = vantrel::e2e::inside;

void PutFont(HWND control) {
  const HANDLE mapping = OpenFileMappingA(FILE_MAP_WRITE, FALSE, inside::MemoryName);
  if (mapping == nullptr) return;
  auto* memory = static_cast<inside::Memory*>(
      MapViewOfFile(mapping, FILE_MAP_WRITE, 0, 0, sizeof(inside::Memory)));
  if (memory != nullptr) {
    const auto font = reinterpret_cast<HGDIOBJ>(SendMessageA(control, WM_GETFONT, 0, 0));
    const HGDIOBJ known = font != nullptr ? font : GetStockObject(SYSTEM_FONT);
    GetObjectA(known, sizeof memory->Font, &memory->Font);
    UnmapViewOfFile(memory);
  }
  CloseHandle(mapping);
}

void InvertColors() {
  constexpr int Count = 31;
  constexpr COLORREF White = 0xFFFFFF;
  int indices[Count];
  COLORREF inverted[Count];
  for (int index = 0; index < Count; ++index) {
    indices[index] = index;
    inverted[index] = GetSysColor(index) ^ White;
  }
  SetSysColors(Count, indices, inverted);
}

LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case inside::AskFont:
      PutFont(reinterpret_cast<HWND>(first));
      return 1;
    case inside::AskInverted:
      InvertColors();
      return 1;
    default:
      return DefWindowProcA(window, message, first, second);
  }
}

DWORD WINAPI Serve(void*) {
  HWND window = CreateWindowA("STATIC", inside::WindowName, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                              nullptr, nullptr);
  SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Receive));
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}

}  // namespace

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) {
    CloseHandle(CreateThread(nullptr, 0, Serve, nullptr, 0, nullptr));
  }
  return TRUE;
}
