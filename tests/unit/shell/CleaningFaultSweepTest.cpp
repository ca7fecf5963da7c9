// The acts of the Clean panel, run once for every call that they make of Windows, with that one
// call failing: each ends with its fixed texts, and the next one does its work.
#include <gmock/gmock.h>

#include <utility>

#include "fileutil/bmdlCookies.h"
#include "shell/Navigation.h"
#include "unit/shell/FaultSweep.h"
#include "windows/FrmFrameHistory.h"
#include "windows/frmMain.h"

namespace vantrel::shell {
namespace {

using test::Machine;
using test::Sweep;
using testing::Each;
using testing::IsEmpty;
using windows::FrmFrameHistory;

constexpr const char* AppPaths = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
constexpr const char* TypedUrls = "Software\\Microsoft\\Internet Explorer\\TypedURLs";
constexpr const char* OperasFile = "C:\\Opera\\profile\\cookies4.dat";
constexpr const char* Jar = "C:\\User\\Data\\Mozilla\\p\\cookies.txt";

FrmFrameHistory& Panel(Machine& machine) { return *machine.copy->Windows().FrmFrameHistory; }

// A started program that shows the panel, and something to clean in each place.
void OpenCleanPanel(Machine& machine) {
  auto& world = machine.world;
  const std::pair<int, const char*> folders[] = {
      {fileutil::CSIDL_INTERNET_CACHE, "C:\\User\\Internet"},
      {fileutil::CSIDL_RECENT, "C:\\User\\Recent"},
      {fileutil::CSIDL_HISTORY, "C:\\User\\History"},
      {fileutil::CSIDL_COOKIES, "C:\\User\\Cookies"},
      {fileutil::CSIDL_APPDATA, "C:\\User\\Data"}};
  for (const auto& [number, path] : folders) world.specialFolders[number] = path;
  for (const char* file :
       {"C:\\User\\Internet\\a", "C:\\User\\Internet\\Content.IE5\\index.dat",
        "C:\\User\\Recent\\a", "C:\\User\\History\\a", "C:\\User\\History\\sub\\b",
        "C:\\User\\Temp\\a", "C:\\User\\Cookies\\a", OperasFile}) {
    world.files.Put(file, std::string(2000, 'x'));
  }
  world.files.SetReadOnly("C:\\User\\Temp\\a", true);
  world.files.MakeLink("C:\\User\\Temp\\link", "C:\\Opera");
  world.files.Put(Jar, ".a.example\tTRUE\t/\tFALSE\t0\ta\tb\r\n");
  world.registry.SetString(platform::HKeyCurrentUser, TypedUrls, "url1", "trace");
  for (const auto& [name, path] :
       {std::pair{"Netscp.exe", "C:\\Netscape"}, std::pair{"Opera.exe", "C:\\Opera"}}) {
    world.registry.SetString(platform::HKeyLocalMachine, std::string(AppPaths) + name, "Path",
                             path);
  }
  machine.MakeStarted();
  CaseClean(machine.copy->program);
}
void OpenScannedPanel(Machine& machine) {
  OpenCleanPanel(machine);
  EXPECT_TRUE(machine.copy->user.Click(Panel(machine).lblRefresh));
}

std::vector<std::string> Captions(Machine& machine) {
  const FrmFrameHistory& panel = Panel(machine);
  return {panel.lblhistory.Caption(), panel.lbltif.Caption(), panel.lblRecent.Caption(),
          panel.lblotf.Caption()};
}

// What holds behind every act: nothing hangs in its middle, no file number is taken.
void ExpectAtRest(Machine& machine) {
  EXPECT_THAT(machine.BoxTexts(*machine.copy), IsEmpty());
  EXPECT_EQ(Panel(machine).MousePointer(), 0);
  EXPECT_FALSE(Panel(machine).pbarCache.Visible());
  EXPECT_EQ(machine.copy->program.fileNumbers.FreeFile(), 1);
}

// The next acts do their work: a refresh, two runs and a delete leave nothing.
void ExpectCleanPanelUsable(Machine& machine) {
  machine.copy->process.Faults().Clear();
  auto& user = machine.copy->user;
  FrmFrameHistory& panel = Panel(machine);
  EXPECT_TRUE(user.Click(panel.lblRefresh));
  EXPECT_EQ(panel.lblcleaningstatus.Caption(), "Ready to clean");
  EXPECT_TRUE(user.Click(panel.CmdDeleteCache));
  EXPECT_THAT(Captions(machine), Each("0 Kbs"));
  panel.optIE.SetValue(true);
  EXPECT_TRUE(user.Click(panel.cmddeleteCookies));
  EXPECT_EQ(panel.lblcookies.Caption(), "0 Kbs of files");
  for (const char* folder : {"C:\\User\\Internet", "C:\\User\\Recent", "C:\\User\\History",
                             "C:\\User\\Temp", "C:\\User\\Cookies"}) {
    EXPECT_THAT(machine.world.files.List(folder), IsEmpty()) << folder;
  }
  EXPECT_TRUE(machine.world.registry.HasKey(platform::HKeyCurrentUser, TypedUrls));
  EXPECT_FALSE(
      machine.world.registry.GetString(platform::HKeyCurrentUser, TypedUrls, "url1").has_value());
  ExpectAtRest(machine);
}

TEST(CleaningFaultSweep, Scan) {
  Sweep(
      "Clean: scan", OpenCleanPanel,
      [](Machine& machine) { EXPECT_TRUE(machine.copy->user.Click(Panel(machine).lblRefresh)); },
      [](Machine& machine) {
        EXPECT_EQ(Panel(machine).lblcleaningstatus.Caption(), "Ready to clean");
        // Of the two scans one has gone well.
        EXPECT_THAT(Captions(machine), Each(testing::HasSubstr(" Kbs")));
        ExpectAtRest(machine);
        ExpectCleanPanelUsable(machine);
      });
}

TEST(CleaningFaultSweep, Clean) {
  Sweep(
      "Clean: clean", OpenScannedPanel,
      [](Machine& machine) {
        EXPECT_TRUE(machine.copy->user.Click(Panel(machine).CmdDeleteCache));
      },
      [](Machine& machine) {
        EXPECT_EQ(Panel(machine).lblcleaningstatus.Caption(), "Done");
        EXPECT_EQ(machine.copy->Windows().frmMain->sbStatusBar.Panels()[0].Text,
                  "Status: Some Required system files may not be deleted");
        EXPECT_EQ(machine.world.files.Read(OperasFile), std::string(2000, 'x'));
        ExpectAtRest(machine);
        ExpectCleanPanelUsable(machine);
      });
}

constexpr std::pair<const char*, forms::OptionButton FrmFrameHistory::*> Options[] = {
    {"Internet Explorer's", &FrmFrameHistory::optIE},
    {"Netscape's", &FrmFrameHistory::optNetscape},
    {"Opera's", &FrmFrameHistory::optOpera}};

TEST(CleaningFaultSweep, EachCookieOption) {
  for (const auto& [browser, option] : Options) {
    Sweep(
        std::string("Cookies: list ") + browser,
        [option = option](Machine& machine) {
          OpenScannedPanel(machine);
          // A click on the option that is set would be none.
          if (option == &FrmFrameHistory::optIE) Panel(machine).optOpera.SetValue(true);
        },
        [option = option](Machine& machine) {
          EXPECT_TRUE(machine.copy->user.Click(Panel(machine).*option));
        },
        [](Machine& machine) {
          ExpectAtRest(machine);
          ExpectCleanPanelUsable(machine);
        });
  }
}

TEST(CleaningFaultSweep, DeleteOfCookies) {
  for (const auto& [browser, option] : Options) {
    Sweep(
        std::string("Cookies: delete ") + browser,
        [option = option](Machine& machine) {
          OpenScannedPanel(machine);
          (Panel(machine).*option).SetValue(true);
        },
        [](Machine& machine) {
          EXPECT_TRUE(machine.copy->user.Click(Panel(machine).cmddeleteCookies));
        },
        [option = option](Machine& machine) {
          EXPECT_TRUE((Panel(machine).*option).Value());
          EXPECT_EQ(Panel(machine).txtcookies.Text().empty(), false);
          ExpectAtRest(machine);
          ExpectCleanPanelUsable(machine);
        });
  }
}

}  // namespace
}  // namespace vantrel::shell
