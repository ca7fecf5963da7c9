// A library whose entries refuse what they are asked for.
#include <windows.h>

extern "C" __declspec(dllexport) HRESULT __stdcall DllRegisterServer() { return E_FAIL; }
extern "C" __declspec(dllexport) HRESULT __stdcall DllUnregisterServer() { return E_FAIL; }
