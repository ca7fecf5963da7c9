// The library that the contract's cases load; Subject.h says what its entries do.
#include <windows.h>

extern "C" __declspec(dllexport) HRESULT __stdcall DllRegisterServer() { return 7; }

extern "C" __declspec(dllexport) HRESULT __stdcall Hang() {
  constexpr DWORD longestCase = 30000;
  HANDLE letGo = OpenEventA(SYNCHRONIZE, FALSE, "VantrelContractLetGo");
  WaitForSingleObject(letGo, longestCase);
  CloseHandle(letGo);
  return 0;
}
