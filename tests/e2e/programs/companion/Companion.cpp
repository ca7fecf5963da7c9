// A stand-in for a companion library: it registers itself under the ProgID that the build gives it,
// as a COM server does, and differs from a real one by its class.
#include <windows.h>

#include <string>

namespace {

const std::string Key = COMPANION_PROGID;
const std::string ClassKey = Key + "\\Clsid";
constexpr char Class[] = "{00000000-0000-0000-0000-0000000C0DE5}";

}  // namespace

extern "C" __declspec(dllexport) HRESULT __stdcall DllRegisterServer() {
  HKEY key = nullptr;
  if (RegCreateKeyA(HKEY_CLASSES_ROOT, ClassKey.c_str(), &key) != ERROR_SUCCESS) return E_FAIL;
  const LSTATUS status =
      RegSetValueExA(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(Class), sizeof Class);
  RegCloseKey(key);
  return status == ERROR_SUCCESS ? S_OK : E_FAIL;
}

extern "C" __declspec(dllexport) HRESULT __stdcall DllUnregisterServer() {
  RegDeleteKeyA(HKEY_CLASSES_ROOT, ClassKey.c_str());
  RegDeleteKeyA(HKEY_CLASSES_ROOT, Key.c_str());
  return S_OK;
}
