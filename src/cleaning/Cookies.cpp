#include "cleaning/Cookies.h"

#include <string_view>

#include "cleaning/CleaningSizes.h"
#include "cleaning/Scramble.h"
#include "cleaning/WipeFolder.h"
#include "fileutil/FileErrors.h"
#include "fileutil/FileSearch.h"
#include "fileutil/Listing.h"
#include "fileutil/bmdlCookies.h"
#include "settings/bmdlReg.h"
#include "text/ErrorTrap.h"
#include "text/Strings.h"

namespace vantrel::cleaning {
namespace {

using program::Program;
using windows::FrmFrameHistory;

FrmFrameHistory& Panel(Program& program) { return *program.windows.FrmFrameHistory; }

// Where a browser's own installation is noted; empty if it is not installed.
std::string ApplicationPath(Program& program, const std::string& executable) {
  return settings::ReadRegistryValue(
      program.platform.registry, platform::HKeyLocalMachine,
      "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\" + executable, "Path");
}

// The option's own click then shows Internet Explorer's cookies.
void FallBackToInternetExplorer(FrmFrameHistory& panel, const char* reason) {
  panel.lblcookies.SetCaption(reason);
  panel.optIE.SetValue(true);
}

void ShowFileLength(Program& program, const std::string& path) {
  std::uint64_t length = 0;
  fileutil::RaiseFileError(program.platform.files.FileLength(path, length));
  Panel(program).lblcookies.SetCaption(InKilobytes(program, length));
}

// The host stands in front of a tab, the flag TRUE and a tab, so that the first "/", which begins
// the path, stands 7 places behind its end. A line with the flag FALSE keeps a trailing tab: this
// is meant. Error 5 for a line without a "/".
std::string HostOf(std::string_view line) {
  constexpr std::size_t BehindHost = 7;
  const std::size_t slash = line.find('/');
  const std::size_t position = slash == std::string_view::npos ? 0 : slash + 1;
  if (position < BehindHost) throw text::RuntimeError(text::ErrorNumber::InvalidProcedureCall);
  return text::Trim(line.substr(0, position - BehindHost));
}

void ShowNetscapeCookies(Program& program) {
  FrmFrameHistory& panel = Panel(program);
  const std::string applicationData =
      fileutil::GetSpecialFolderSlash(program, fileutil::CSIDL_APPDATA);
  panel.txtcookies.SetText("");
  if (ApplicationPath(program, "Netscp.exe").empty()) {
    return FallBackToInternetExplorer(panel, "Netscape Browser not found ");
  }
  fileutil::FileSearchResult found;
  fileutil::SearchFiles(program, applicationData + "Mozilla", "cookies.txt",
                        platform::AttributeDirectory, platform::AttributeArchive, found);
  const std::string path = found.Path(1);
  panel.txtcookies.SetText(path);
  ReadNetscapeCookies(program, path);
  ShowFileLength(program, path);
}

void ListOperaCookies(Program& program) {
  FrmFrameHistory& panel = Panel(program);
  panel.urls.Clear();
  panel.txtcookies.SetText("");
  const std::string folder = ApplicationPath(program, "Opera.exe");
  if (folder.empty()) return FallBackToInternetExplorer(panel, "Opera Browser not found ");
  fileutil::FindLastFile(program, folder, "cookies*");
  const std::string path = panel.txtcookies.Text();
  if (text::Trim(path).empty()) {
    panel.lblcookies.SetCaption("No cookies file found");
    return;
  }
  panel.urls.Add("OP1", path, "op");
  ShowFileLength(program, path);
}

}  // namespace

void EnumCookies(Program& program, const std::string& folder) {
  forms::ListView& urls = Panel(program).urls;
  const std::string path = fileutil::WithBackslash(folder);
  const fileutil::Listing listing =
      fileutil::ListFiles(program.platform.folders, path + "*.*", platform::AttributeDirectory);
  if (listing.Entries.empty()) return;
  text::ErrorTrap trap;
  for (std::size_t index = 1; index < listing.Entries.size(); ++index) {
    program.DoEvents();
    const std::string& name = listing.Entries[index].Name;
    trap([&] { urls.Add(path + name, name, "ie"); });
  }
  program.DoEvents();
  trap([&] { urls.Select(urls.Count()); });
}

void ReadNetscapeCookies(Program& program, const std::string& path) {
  forms::ListView& urls = Panel(program).urls;
  urls.Clear();
  if (!program.platform.files.FileExists(path)) return;
  std::string content;
  fileutil::RaiseFileError(program.platform.files.ReadTextFile(path, content));
  constexpr std::size_t LongestThatIsNone = 3;
  int counter = 0;
  for (std::string_view rest = content; !rest.empty();) {
    const std::string_view line = text::TakeLine(rest);
    if (!line.starts_with('.') || line.size() <= LongestThatIsNone) continue;
    const std::string host = HostOf(line);
    ++counter;
    urls.Add("NC" + std::to_string(counter), host, "ns");
  }
}

void optNetscape_Click(Program& program) {
  text::ErrorTrap trap;
  trap([&program] { ShowNetscapeCookies(program); });
}

void ShowOperaCookies(Program& program) {
  text::ErrorTrap trap;
  trap([&program] { ListOperaCookies(program); });
  if (trap.Last() && trap.Last()->Number() == text::ErrorNumber::InvalidProcedureCall) {
    program.MsgBox("Cookies not found", platform::StyleCritical, "Zintrick");
  }
}

void cmddeleteCookies_Click(Program& program) {
  FrmFrameHistory& panel = Panel(program);
  const std::string target = panel.txtcookies.Text();
  if (panel.optIE.Value()) {
    if (program.platform.folders.FolderExists(target)) WipeFolder(program, target);
  } else if (panel.optNetscape.Value() || panel.optOpera.Value()) {
    ScrambleAndKill(program, target);
  }
  RefreshCleanPanel(program);
}

void AttachCookies(Program& program, FrmFrameHistory& form) {
  form.optIE.Click = [&program] { ShowIECookies(program); };
  form.optNetscape.Click = [&program] { optNetscape_Click(program); };
  form.optOpera.Click = [&program] { ShowOperaCookies(program); };
  form.cmddeleteCookies.Click = [&program] { cmddeleteCookies_Click(program); };
}

}  // namespace vantrel::cleaning
