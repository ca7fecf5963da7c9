// The whole program on the in-memory Windows: a machine with a browser that the gate lets in, and
// copies of the program on it, with every component's behaviour attached.
#ifndef VANTREL_TESTS_SUPPORT_PROGRAMFIXTURE_H_
#define VANTREL_TESTS_SUPPORT_PROGRAMFIXTURE_H_

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "forms/headless/Toolkit.h"
#include "forms/headless/User.h"
#include "platform/memory/Process.h"
#include "platform/memory/RegistryEditor.h"
#include "platform/memory/World.h"
#include "program/Program.h"
#include "support/ExpectedSettings.h"

namespace vantrel::test {

inline constexpr const char* RootKey = "Software\\Qorvel Softwares";
inline constexpr const char* BlockSettings = "Software\\Qorvel Softwares\\Block Settings";
inline constexpr const char* Settings = "Software\\Qorvel Softwares\\Settings";
inline constexpr const char* BlockLog = "Software\\Qorvel Softwares\\Block Log";
inline constexpr const char* EngineKey =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper "
    "Objects\\{911C4A8E-0F75-4B83-BEB9-02BDDF29D11E}";
inline constexpr const char* ToolbarKey = "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar";
inline constexpr const char* ToolbarId = "{28BC2EC4-5EAD-45E1-9F9F-82CD5E293601}";
inline constexpr const char* ToolbarClassKey = "CLSID\\{28BC2EC4-5EAD-45E1-9F9F-82CD5E293601}";
inline constexpr const char* BrowserSetupKey = "Software\\Microsoft\\IE Setup\\Setup";
inline constexpr const char* BrowserKey = "SOFTWARE\\Microsoft\\Internet Explorer";
inline constexpr const char* BrowserFolder = "C:\\Program Files\\Internet Explorer";
inline constexpr const char* PluginFolder = "C:\\Program Files\\Internet Explorer\\PLUGINS";
inline constexpr const char* ScriptKey = "Software\\Microsoft\\Internet Explorer\\Main";

// What a machine has before the program comes to it.
inline void FillMachine(platform::memory::World& world) {
  using namespace platform;
  world.registry.SetString(HKeyLocalMachine, BrowserKey, "Version", "6.0.2900.2180");
  world.registry.SetString(HKeyLocalMachine, BrowserSetupKey, "Path", BrowserFolder);
  world.files.MakeFolder(PluginFolder);
  world.registry.SetString(HKeyCurrentUser, ScriptKey, "Disable Script Debugger", "yes");
  world.registry.MakeKey(HKeyLocalMachine, ToolbarKey);
  world.registry.MakeKey(HKeyClassesRoot, ToolbarClassKey);
  world.registry.SetDword(HKeyLocalMachine, "SYSTEM\\CurrentControlSet\\Services\\Messenger",
                          "Start", 4);
  world.registry.MakeKey(
      HKeyCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\0");
  world.registry.SetString(HKeyClassesRoot, "http\\shell\\open\\command", "",
                           "\"C:\\Program Files\\Browser\\browser.exe\" -nohome");
  world.programs.Register("C:\\Program Files\\Browser\\browser.exe", {});
  platform::memory::InstallRegistryEditor(world);
  world.files.MakeFolder("C:\\Program Files\\Vantrel\\Settings");
}

// The settings tree as a first run leaves it.
inline void StoreFirstRun(platform::memory::World& world) {
  for (const ExpectedSetting& setting : ExpectedSettings) {
    const std::string key = std::string(RootKey) + "\\" + setting.Key;
    if (const int* number = std::get_if<int>(&setting.FirstRun)) {
      world.registry.SetDword(platform::HKeyCurrentUser, key, setting.Name,
                              static_cast<std::uint32_t>(*number));
    }
    if (const char* const* text = std::get_if<const char*>(&setting.FirstRun)) {
      world.registry.SetString(platform::HKeyCurrentUser, key, setting.Name, *text);
    }
  }
}

// One running copy in a world.
struct Copy {
  explicit Copy(platform::memory::World& world, const std::string& commandLine = "",
                const std::string& executable = platform::memory::Process::DefaultExecutable)
      : process(world, executable, commandLine),
        toolkit(world.desktop, world.clock, process.Id()),
        program(process.Platform(), toolkit),
        user(toolkit) {
    process.EndThread = [this] { toolkit.End(); };
    process.Trace().Start();
  }

  program::Windows& Windows() { return program.windows; }

  platform::memory::Process process;
  forms::headless::Toolkit toolkit;
  program::Program program;
  forms::headless::User user;
};

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_PROGRAMFIXTURE_H_
