#include "shell/CheckAndRepair.h"

#include <array>
#include <cstddef>
#include <string>

#include "launch/bmdlRegUnReg.h"
#include "settings/bmdlReg.h"
#include "text/ErrorTrap.h"

namespace vantrel::shell {
namespace {

using program::Program;

// A key under HKEY_CLASSES_ROOT whose default value is looked at, and the library that writes it.
struct KeyRow {
  const char* key;
  const char* file;  // in the program folder; nullptr: an empty text is looked at and left alone
};

constexpr KeyRow Keys[] = {
    {"GBHelper.HelperBHO\\Clsid\\", "\\GBHelper.dll"},
    {"Grimbolt.Toolbar\\Clsid\\", "\\GBToolbar.dll"},
    {"TypeLib\\{CF9D9B76-EC4B-470D-99DC-AEC6F36A9261}\\1.0\\0\\win32\\", nullptr},
    {"TypeLib\\{3181A65A-CC39-4CDE-A4DF-2E889E6F1AF1}\\1.51\\0\\win32", nullptr},
    {"TypeLib\\{C88FCAC2-DE90-11D3-9876-8517F6B99C68}\\1.6\\0\\win32", nullptr},
};

using Texts = std::array<std::string, std::size(Keys)>;

// A value that cannot even be read counts as an empty text.
Texts ReadAll(Program& program) {
  Texts texts;
  text::ErrorTrap trap;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    trap([&] {
      texts[i] = settings::ReadRegistryValue(program.platform.registry, platform::HKeyClassesRoot,
                                             Keys[i].key, "");
    });
  }
  return texts;
}

}  // namespace

void CheckAndRepair(Program& program) {
  const Texts texts = ReadAll(program);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (!texts[i].empty() || Keys[i].file == nullptr) continue;
    launch::RegisterDll(program.platform.modules, program.PathOf(Keys[i].file));
  }
  program.MsgBox("Repaired Successfully!", platform::StyleInformation);
}

}  // namespace vantrel::shell
