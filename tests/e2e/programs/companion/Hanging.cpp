// A library whose registration does not come back until a test lets it.
#include <windows.h>

extern "C" __declspec(dllexport) HRESULT __stdcall DllRegisterServer() {
  constexpr DWORD longestTest = 60000;
  HANDLE go = CreateEventA(nullptr, TRUE, FALSE, "VantrelHangingCompanion");
  WaitForSingleObject(go, longestTest);
  CloseHandle(go);
  return S_OK;
}
