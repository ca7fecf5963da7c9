#include "iemaintenance/PluginRemoval.h"

#include <algorithm>
#include <span>

#include "fileutil/NumberedFile.h"
#include "iemaintenance/PluginInventory.h"
#include "launch/bmdlRegUnReg.h"
#include "settings/bmdlReg.h"
#include "text/ErrorTrap.h"
#include "text/Strings.h"
#include "windows/FrmFrameIEPlugin.h"

namespace vantrel::iemaintenance {
namespace {

using program::Program;

constexpr const char* ToolbarKey = "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar";

void RemoveHelperObject(Program& program, const std::string& tag) {
  settings::DeleteRegistryKey(program.platform.registry, platform::HKeyLocalMachine,
                              HelperObjectsKey + tag);
}

void RemovePlugin(Program& program, const std::string& tag) {
  launch::UnregisterDll(program.platform.modules, tag);
  ShredFile(program, tag);
}

void RemoveToolbar(Program& program, const std::string& tag) {
  settings::DeleteRegistryValue(program.platform.registry, platform::HKeyLocalMachine, ToolbarKey,
                                tag);
}

void RemoveButton(Program& program, const std::string& tag) {
  settings::DeleteRegistryKey(program.platform.registry, platform::HKeyLocalMachine, tag);
}

void RemoveMenuExtension(Program& program, const std::string& tag) {
  settings::DeleteRegistryKey(program.platform.registry, platform::HKeyCurrentUser, tag);
}

// How rows of one type are removed. A name in lower case that contains one of the words protects
// its row.
struct Removal {
  const char* Type;
  std::span<const char* const> ProtectingWords;
  const char* Refusal;  // what stands before the name
  const char* Question;
  void (*Remove)(Program& program, const std::string& tag);
};

constexpr const char* HelperObjectWords[] = {"gbhelper"};
constexpr const char* PluginWords[] = {"grimbolt", "grim bolt"};
constexpr const char* ToolbarWords[] = {"grimbolt"};

// The refusal of a plug-in speaks of a BHO: this is meant.
constexpr Removal Removals[] = {
    {TypeBho, HelperObjectWords, "Selected BHO:", "Delete selected BHO:", RemoveHelperObject},
    {TypePlugins, PluginWords, "Selected BHO:", "Delete selected Plug-ins:", RemovePlugin},
    {TypeToolbar, ToolbarWords, "Selected Toolbar:", "Delete selected Toolbar:", RemoveToolbar},
    {TypeIEButton, {}, "", "Delete selected IEButton:", RemoveButton},
    {TypeMenuExt,
     {},
     "",
     "Delete selected Internet explorer Right Click Menu Extension:",
     RemoveMenuExtension},
};

bool IsProtected(const Removal& removal, const std::string& name) {
  const std::string lower = text::LowerCase(name);
  return std::any_of(removal.ProtectingWords.begin(), removal.ProtectingWords.end(),
                     [&lower](const char* word) { return lower.find(word) != std::string::npos; });
}

void RemoveRow(Program& program, const Removal& removal, const std::string& name,
               const std::string& tag) {
  if (IsProtected(removal, name)) {
    program.MsgBox(removal.Refusal + name + " is required by Vantrel to work properly",
                   platform::StyleInformation);
    return;
  }
  const int answer = program.MsgBox(removal.Question + name, platform::StyleInformationYesNo);
  if (answer == platform::AnswerYes) removal.Remove(program, tag);
}

// What is read of a row. It is a copy: messages run while a box is up, and may fill the list anew.
struct CheckedRow {
  std::string Type;
  std::string Name;
  std::string Tag;
};

void RemoveChecked(Program& program, const forms::ListItem& item) {
  const CheckedRow row{item.Sub(1).Text, item.Text(), item.Tag()};
  for (const Removal& removal : Removals) {
    if (row.Type == removal.Type) return RemoveRow(program, removal, row.Name, row.Tag);
  }
}

// Writes every block twice, the last one whole. A write that fails leaves the place where it is.
void Overwrite(fileutil::NumberedFile& file) {
  constexpr std::uint64_t BlockSize = 4096;
  const std::string letters(BlockSize, 'X');
  const std::string blanks(BlockSize, ' ');
  const std::uint64_t blocks = file.Length() / BlockSize + 1;
  std::uint64_t place = 0;
  text::ErrorTrap trap;
  for (std::uint64_t block = 0; block < blocks; ++block) {
    const std::uint64_t noted = place;
    for (const std::string* content : {&letters, &blanks}) {
      if (trap([&] { file.WriteAt(noted, *content); })) place = noted + BlockSize;
    }
  }
}

}  // namespace

void cmddeleteBHO_Click(Program& program) {
  windows::FrmFrameIEPlugin& panel = *program.windows.FrmFrameIEPlugin;
  const int rows = panel.lstBHO.Count();
  for (int row = 1; row <= rows; ++row) {
    const forms::ListItem& item = panel.lstBHO.Item(row);
    if (item.Checked()) RemoveChecked(program, item);
  }
  panel.cmdRefreshBHO.SetValue(true);
}

void ShredFile(Program& program, const std::string& path) {
  text::ErrorTrap trap;
  trap([&] {
    fileutil::NumberedFile file(program, path, platform::FileAccess::ReadWrite);
    Overwrite(file);
  });
  // Twice, as two ways of deleting: this is meant.
  program.platform.folders.DeleteFileA(path);
  program.platform.folders.DeleteFileA(path);
}

}  // namespace vantrel::iemaintenance
