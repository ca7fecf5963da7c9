#include "cleaning/CleaningSizes.h"

#include "cleaning/Cookies.h"
#include "cleaning/FolderSize.h"
#include "fileutil/bmdlCookies.h"
#include "text/ErrorTrap.h"
#include "text/Strings.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::cleaning {
namespace {

using program::Program;
using windows::FrmFrameHistory;

std::string SpecialFolder(Program& program, int number) {
  return ExistingFolder(program.platform.folders, fileutil::GetSpecialFolder(program, number));
}

void ShowSize(Program& program, forms::Label& label, const std::string& folder) {
  label.SetCaption(InKilobytes(program, FolderSize(program.platform.folders, folder)));
  label.SetToolTipText(folder);
}

// All look-ups stand before the first caption, so a missing folder changes no label.
void ScanFolders(Program& program) {
  const std::string internet = SpecialFolder(program, fileutil::CSIDL_INTERNET_CACHE);
  const std::string recent = SpecialFolder(program, fileutil::CSIDL_RECENT);
  const std::string history = SpecialFolder(program, fileutil::CSIDL_HISTORY);
  // The temporary files beside the history are meant, not the system's own.
  const std::string temporary =
      ExistingFolder(program.platform.folders, ParentFolder(history) + "/Temp");
  FrmFrameHistory& panel = *program.windows.FrmFrameHistory;
  ShowSize(program, panel.lbltif, internet);
  ShowSize(program, panel.lblRecent, recent);
  ShowSize(program, panel.lblhistory, history);
  ShowSize(program, panel.lblotf, temporary);
}

}  // namespace

std::string InKilobytes(Program& program, std::uint64_t bytes) {
  constexpr double BytesPerKilobyte = 1024;
  return text::GroupedNumber(static_cast<double>(bytes) / BytesPerKilobyte,
                             program.platform.system.ThousandsSeparator()) +
         " Kbs";
}

void ShowCacheSizes(Program& program) {
  text::ErrorTrap trap;
  trap([&program] { ScanFolders(program); });
}

void ShowIECookies(Program& program) {
  FrmFrameHistory& panel = *program.windows.FrmFrameHistory;
  std::string& folder = program.CookiesFolder;
  text::ErrorTrap trap;
  trap([&] { folder = SpecialFolder(program, fileutil::CSIDL_COOKIES); });
  if (!folder.empty()) {
    trap([&] {
      const std::uint64_t size = FolderSize(program.platform.folders, folder);
      panel.lblcookies.SetCaption(InKilobytes(program, size) + " of files");
    });
    trap([&] { panel.txtcookies.SetText(folder); });
  }
  trap([&] { panel.urls.Clear(); });
  trap([&] { EnumCookies(program, panel.txtcookies.Text()); });
}

void RefreshCleanPanel(Program& program) {
  FrmFrameHistory& panel = *program.windows.FrmFrameHistory;
  panel.SetMousePointer(forms::PointerHourglass);
  program.DoEvents();
  ShowCacheSizes(program);
  program.DoEvents();
  ShowIECookies(program);
  program.DoEvents();
  panel.SetMousePointer(forms::PointerDefault);
}

void lblRefresh_Click(Program& program) {
  forms::Label& status = program.windows.FrmFrameHistory->lblcleaningstatus;
  RefreshCleanPanel(program);
  program.DoEvents();
  status.SetCaption("Initializing please wait...");
  program.DoEvents();
  RefreshCleanPanel(program);
  program.DoEvents();
  status.SetCaption("Ready to clean");
  program.DoEvents();
}

}  // namespace vantrel::cleaning
