#include "cleaning/CacheCleaner.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <variant>

#include "cleaning/CleaningSizes.h"
#include "cleaning/CleaningTarget.h"
#include "cleaning/Scramble.h"
#include "cleaning/WipeFolder.h"
#include "settings/bmdlReg.h"
#include "windows/frmMain.h"

namespace vantrel::cleaning {
namespace {

using program::Program;
using windows::FrmFrameHistory;

// What a box selects: the folder that a label's tool tip names, with a file of it that is tried
// once more by name; lists in the registry; the Recycle Bin.
struct FolderTarget {
  forms::Label FrmFrameHistory::*Shown;
  const char* IndexFile = nullptr;
};
struct ListTarget {
  std::span<const char* const> Keys;
};
struct BinTarget {};

struct Target {
  forms::CheckBox FrmFrameHistory::*Box;
  std::variant<FolderTarget, ListTarget, BinTarget> Cleans;
};

constexpr const char* TypedUrls[] = {"Software\\Microsoft\\Internet Explorer\\TypedURLs"};
constexpr const char* RunLists[] = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RunMRU"};
constexpr const char* FindLists[] = {"Software\\Microsoft\\Search Assistant\\ACMru\\5603",
                                     "Software\\Microsoft\\Search Assistant\\ACMru\\5001",
                                     "Software\\Microsoft\\Search Assistant\\ACMru\\5604",
                                     "Software\\Microsoft\\Search Assistant\\ACMru\\5647"};
constexpr const char* DocumentLists[] = {
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RecentDocs",
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\LastVisitedMRU",
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\OpenSaveMRU"};

// In the order of cleaning.
constexpr Target Targets[] = {
    {&FrmFrameHistory::chkCacheHistory, FolderTarget{&FrmFrameHistory::lblhistory}},
    {&FrmFrameHistory::chkCacheInternet,
     FolderTarget{&FrmFrameHistory::lbltif, "\\Content.IE5\\index.dat"}},
    {&FrmFrameHistory::chkCacheRecent, FolderTarget{&FrmFrameHistory::lblRecent}},
    {&FrmFrameHistory::chkCacheHURL, ListTarget{TypedUrls}},
    {&FrmFrameHistory::chkCachetemp, FolderTarget{&FrmFrameHistory::lblotf}},
    {&FrmFrameHistory::chkWindowsRunHistory, ListTarget{RunLists}},
    {&FrmFrameHistory::chkWindowsFindHistory, ListTarget{FindLists}},
    {&FrmFrameHistory::chkWindowsRecDoc, ListTarget{DocumentLists}},
    {&FrmFrameHistory::chkWindowsRB, BinTarget{}},
};
static_assert(std::size(Targets) == 9);

struct Cleaner {
  Program& program;
  FrmFrameHistory& panel;

  void operator()(const FolderTarget& target) const {
    const std::string path = (panel.*target.Shown).ToolTipText();
    if (!program.platform.folders.FolderExists(path)) return;
    panel.pbarCache.SetVisible(true);
    panel.pbarCache.SetValue(0);
    panel.pbarCache.SetMax(100);
    WipeFolder(program, path);
    if (target.IndexFile != nullptr) CleanIndex(path, path + target.IndexFile);
    panel.pbarCache.SetValue(panel.pbarCache.Max());
    panel.pbarCache.SetVisible(false);
  }

  // The index of another folder, to which a link leads, is none of this one.
  void CleanIndex(const std::string& top, const std::string& index) const {
    if (!IsReachedWithoutLink(program.platform.folders, top, FolderAbove(index))) return;
    ScrambleAndKill(program, index);
  }

  // The key is left empty; one with subkeys keeps its values, since the system does not delete it.
  void operator()(const ListTarget& target) const {
    platform::Registry& registry = program.platform.registry;
    for (const char* key : target.Keys) {
      settings::DeleteRegistryKey(registry, platform::HKeyCurrentUser, key);
      settings::CreateRegistryKey(registry, platform::HKeyCurrentUser, key);
    }
  }

  void operator()(const BinTarget&) const {
    std::int32_t result = 0;
    EmptyBin(program, panel.hWnd(), result);
  }
};

}  // namespace

void CmdDeleteCache_Click(Program& program) {
  FrmFrameHistory& panel = *program.windows.FrmFrameHistory;
  panel.SetMousePointer(forms::PointerHourglass);
  panel.lblcleaningstatus.SetCaption("Deleting please wait...");
  for (const Target& target : Targets) {
    if ((panel.*target.Box).Value() == forms::Checked) {
      std::visit(Cleaner{program, panel}, target.Cleans);
    }
  }
  ShowCacheSizes(program);
  panel.SetMousePointer(forms::PointerDefault);
  panel.lblcleaningstatus.SetCaption("Done");
  // A standing remark, shown whatever was removed.
  program.windows.frmMain->sbStatusBar.SetPanelText(
      1, "Status: Some Required system files may not be deleted");
}

void UpdateDeleteButton(Program& program) {
  FrmFrameHistory& panel = *program.windows.FrmFrameHistory;
  panel.CmdDeleteCache.SetEnabled(std::any_of(
      std::begin(Targets), std::end(Targets),
      [&panel](const Target& target) { return (panel.*target.Box).Value() != forms::Unchecked; }));
}

void EmptyBin(Program& program, platform::WindowHandle owner, std::int32_t& result) {
  platform::Shell& shell = program.platform.shell;
  shell.SHEmptyRecycleBinA(owner, "", platform::SherbNoConfirmation);
  shell.SHUpdateRecycleBinIcon();
  result = 0;
}

void AttachCacheCleaner(Program& program, FrmFrameHistory& form) {
  form.CmdDeleteCache.Click = [&program] { CmdDeleteCache_Click(program); };
  for (const Target& target : Targets) {
    (form.*target.Box).Click = [&program] { UpdateDeleteButton(program); };
  }
  form.lblRefresh.Click = [&program] { lblRefresh_Click(program); };
}

}  // namespace vantrel::cleaning
