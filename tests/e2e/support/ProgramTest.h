// The fixture of all end-to-end cases: no copy runs, and the registry is as on a machine where the
// program has never been, with a browser that the gate lets in.
#ifndef VANTREL_TESTS_E2E_SUPPORT_PROGRAMTEST_H_
#define VANTREL_TESTS_E2E_SUPPORT_PROGRAMTEST_H_

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/RegistryView.h"
#include "support/Running.h"

namespace vantrel::e2e {

inline constexpr const char* RootKey = "Software\\Qorvel Softwares";
inline constexpr const char* BlockSettings = "Software\\Qorvel Softwares\\Block Settings";
inline constexpr const char* Settings = "Software\\Qorvel Softwares\\Settings";
inline constexpr const char* BlockLog = "Software\\Qorvel Softwares\\Block Log";
inline constexpr const char* EngineKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper "
    "Objects\\{911C4A8E-0F75-4B83-BEB9-02BDDF29D11E}";
inline constexpr const char* BrowserKey = "SOFTWARE\\Microsoft\\Internet Explorer";
inline constexpr const char* ToolbarKey = "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar";
inline constexpr const char* ToolbarId = "{28BC2EC4-5EAD-45E1-9F9F-82CD5E293601}";

class ProgramTest : public testing::Test {
 protected:
  void SetUp() override {
    EndAllCopies();
    DeleteTree(HKEY_CURRENT_USER, RootKey);
    DeleteTree(HKEY_LOCAL_MACHINE, EngineKey);
    CreateKey(HKEY_LOCAL_MACHINE, ToolbarKey);
    DeleteValue(HKEY_LOCAL_MACHINE, ToolbarKey, ToolbarId);
    Write(HKEY_LOCAL_MACHINE, BrowserKey, "Version", Text("6.0.2900.2180"));
    // What the box of the script debugger changes at every start.
    Write(HKEY_CURRENT_USER, "Software\\Microsoft\\Internet Explorer\\Main",
          "Disable Script Debugger", Text("yes"));
  }
  void TearDown() override { EndAllCopies(); }

  // The folder of the staged program.
  static std::string ProgramFolder() {
    const std::string path = ExecutablePath();
    return path.substr(0, path.find_last_of('\\'));
  }

  static std::uint32_t Number(const std::string& key, const std::string& name) {
    const auto value = Read(HKEY_CURRENT_USER, key, name);
    if (!value || value->type != REG_DWORD || value->data.size() != 4) return 0xFFFFFFFF;
    std::uint32_t number = 0;
    memcpy(&number, value->data.data(), 4);
    return number;
  }
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_PROGRAMTEST_H_
