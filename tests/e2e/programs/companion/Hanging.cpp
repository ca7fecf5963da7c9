// A library whose entries do not come back until a test lets them.
#include <windows.h>

namespace {

HRESULT Wait() {
  constexpr DWORD longestTest = 60000;
  HANDLE go = CreateEventA(nullptr, TRUE, FALSE, "VantrelHangingCompanion");
  WaitForSingleObject(go, longestTest);
  CloseHandle(go);
  return S_OK;
}

}  // namespace

extern "C" __declspec(dllexport) HRESULT __stdcall DllRegisterServer() { return Wait(); }
extern "C" __declspec(dllexport) HRESULT __stdcall DllUnregisterServer() { return Wait(); }
