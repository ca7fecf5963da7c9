// Brings up every window of the running copy in turn and has a picture taken of each: a line
// "shot NAME" or "shot NAME X Y WIDTH HEIGHT" asks for it, and a line of answer says it is taken.
#include <windows.h>

// After windows.h.
#include <commctrl.h>

#include <cstdio>
#include <string>

#include "Copy.h"
#include "Inside.h"
#include "support/Folders.h"
#include "support/RegistryView.h"
#include "support/Running.h"
#include "support/UserFolders.h"
#include "support/Wait.h"

namespace vantrel::e2e {
namespace {

constexpr const char* BlockLogKey = "Software\\Qorvel Softwares\\Block Log";

// Numbers worth a picture, for as long as the pictures are taken.
class SampleCounts {
 public:
  SampleCounts() {
    for (const auto& [name, count] : Samples) Put(name, count);
  }
  ~SampleCounts() {
    for (const auto& [name, count] : Samples) Put(name, 0);
  }
  SampleCounts(const SampleCounts&) = delete;
  SampleCounts& operator=(const SampleCounts&) = delete;

 private:
  struct Sample {
    const char* Name;
    std::uint32_t Count;
  };
  static constexpr Sample Samples[] = {
      {"Popup", 590}, {"DHTML", 454}, {"Webdialog", 255}, {"Bannerads", 663}, {"Flash", 901}};
  static void Put(const char* name, std::uint32_t count) {
    Write(HKEY_CURRENT_USER, BlockLogKey, name, Dword(count));
  }
};

// Sites worth a picture, for as long as the pictures are taken.
class SampleSites {
 public:
  SampleSites() : kept_(ReadFileBytes(Path())) {
    WriteFileBytes(Path(),
                   Line(1, "10000", "mybank.example") + Line(2, "11111", "intranet.example") +
                       Line(2, "10110", "dailynews.example") + Line(3, "00001", "games.example"));
  }
  ~SampleSites() { WriteFileBytes(Path(), kept_); }
  SampleSites(const SampleSites&) = delete;
  SampleSites& operator=(const SampleSites&) = delete;

 private:
  static std::string Path() {
    const std::string program = ExecutablePath();
    return program.substr(0, program.rfind('\\')) + "\\Settings\\AllowList.txt";
  }
  static std::string Line(int number, const std::string& flags, const std::string& name) {
    return "id =" + std::to_string(number) + ", Popup= " + flags[0] + " ,DHTML = " + flags[1] +
           ", WebDialog =" + flags[2] + " ,Banner = " + flags[3] + ", Flash = " + flags[4] + " , " +
           name + "\r\n";
  }

  const std::string kept_;
};

// A backup worth a picture, for as long as the pictures are taken.
class SampleBackup {
 public:
  SampleBackup() { PutFile(Path(), "Last backup date was: 11/21/2026\r\nAt time: 6:40 PM\r\n"); }
  ~SampleBackup() { DeleteFileA(Path().c_str()); }
  SampleBackup(const SampleBackup&) = delete;
  SampleBackup& operator=(const SampleBackup&) = delete;

 private:
  static std::string Path() {
    const std::string program = ExecutablePath();
    return program.substr(0, program.rfind('\\')) + "\\Settings\\IESettings\\IE Backup date.txt";
  }
};

// Plug-ins worth a picture, for as long as the pictures are taken; the engine has a class then, as
// one that is installed.
class SamplePlugins {
 public:
  SamplePlugins() {
    Write(HKEY_CLASSES_ROOT, EngineClass, "", Text("GBHelper Class"));
    for (const Helper& helper : HelperObjects) {
      CreateKey(HKEY_LOCAL_MACHINE, HelpersKey + std::string(helper.Id));
      Write(HKEY_CLASSES_ROOT, ClassKey(helper.Id), "", Text(helper.Name));
    }
    for (const char* name : MenuEntries) CreateKey(HKEY_CURRENT_USER, MenuKey + std::string(name));
    for (const Helper& button : Buttons) {
      Write(HKEY_LOCAL_MACHINE, ButtonsKey + std::string(button.Id), "ButtonText",
            Text(button.Name + std::string(1, '\0')));
    }
    for (const Helper& library : Libraries) {
      WriteFileBytes(Folder() + library.Id,
                     std::string("ProductName") + '\0' + library.Name + std::string(3, '\0'));
    }
  }
  ~SamplePlugins() {
    DeleteTree(HKEY_CLASSES_ROOT, EngineClass);
    for (const Helper& helper : HelperObjects) {
      DeleteTree(HKEY_LOCAL_MACHINE, HelpersKey + std::string(helper.Id));
      DeleteTree(HKEY_CLASSES_ROOT, ClassKey(helper.Id));
    }
    for (const char* name : MenuEntries) DeleteTree(HKEY_CURRENT_USER, MenuKey + std::string(name));
    for (const Helper& button : Buttons) {
      DeleteTree(HKEY_LOCAL_MACHINE, ButtonsKey + std::string(button.Id));
    }
    for (const Helper& library : Libraries) DeleteFileA((Folder() + library.Id).c_str());
  }
  SamplePlugins(const SamplePlugins&) = delete;
  SamplePlugins& operator=(const SamplePlugins&) = delete;

 private:
  struct Helper {
    const char* Id;
    const char* Name;
  };
  static constexpr Helper HelperObjects[] = {
      {"{0A1D5E60-11AA-4C7B-9E01-5D0C7B1A0001}", "Form Filler Helper"},
      {"{3C77B2D4-52F0-4E1C-8C55-9A7C6E2B0002}", "Shopping Companion"}};
  static constexpr Helper Libraries[] = {{"npview.dll", "Document Viewer"},
                                         {"npmusic.dll", "Music Box Player"}};
  static constexpr const char* MenuEntries[] = {"&Download with Collector", "&Translate this page"};
  static constexpr Helper Buttons[] = {{"{5F0E4A11-7C3D-47A2-B0E1-77D1C04A0003}", "Notes"},
                                       {"{8B2C9D53-0F6E-4D88-A5C4-13A9E5F20004}", "Research"}};
  static constexpr const char* HelpersKey =
      "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects\\";
  static constexpr const char* MenuKey = "SOFTWARE\\Microsoft\\Internet Explorer\\MenuExt\\";
  static constexpr const char* ButtonsKey = "SOFTWARE\\Microsoft\\Internet Explorer\\Extensions\\";
  static constexpr const char* EngineClass = "CLSID\\{911C4A8E-0F75-4B83-BEB9-02BDDF29D11E}";

  static std::string ClassKey(const char* id) { return std::string("CLSID\\") + id; }
  static std::string Folder() {
    const auto path = Read(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\IE Setup\\Setup", "Path");
    return std::string(path ? path->data.c_str() : "") + "\\PLUGINS\\";
  }
};

// A layout of which both lists of the dialog have something to show.
class SampleLayout {
 public:
  SampleLayout() { Put("1,2,3,5,7,4,9,12,13,6,17"); }
  ~SampleLayout() { Put("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19"); }
  SampleLayout(const SampleLayout&) = delete;
  SampleLayout& operator=(const SampleLayout&) = delete;

 private:
  static void Put(const char* list) {
    Write(HKEY_CURRENT_USER, "Software\\Qorvel Softwares\\Toolbar Settings", "Toolbar Settings",
          Text(list));
  }
};

// Traces worth a picture, in folders of the pictures' own: nothing else is cleaned.
class SampleTraces {
 public:
  SampleTraces() {
    for (int number = 0; number < 90; ++number) {
      PutFile(folders_.History + "\\visit" + std::to_string(number), std::string(60000, 'v'));
    }
    PutFile(folders_.Internet + "\\Content.IE5\\ABCD\\movie[1]", std::string(1234567, 'm'));
    PutFile(folders_.Recent + "\\letter.lnk", std::string(1800, 'l'));
    PutFile(folders_.Temporary + "\\setup.log", std::string(33000, 's'));
    for (const char* name : {"me@dailynews[1].txt", "me@mybank[2].txt", "me@shop[1].txt"}) {
      PutFile(folders_.Cookies + "\\" + name, std::string(700, 'c'));
    }
    PutFile(folders_.Data + "\\Mozilla\\Profiles\\default\\k3x1.slt\\cookies.txt",
            Line(".dailynews.example") + Line(".shop.example") + Line(".ads.example"));
    PutFile(folders_.Data + "\\Opera\\profile\\cookies4.dat", std::string(5000, 'o'));
    Install("Netscp.exe");
    Install("Opera.exe");
  }
  ~SampleTraces() {
    for (const char* name : {"Netscp.exe", "Opera.exe"}) {
      DeleteTree(HKEY_LOCAL_MACHINE, std::string(AppPaths) + name);
    }
  }
  SampleTraces(const SampleTraces&) = delete;
  SampleTraces& operator=(const SampleTraces&) = delete;

 private:
  static constexpr const char* AppPaths =
      "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

  static std::string Line(const std::string& host) {
    return host + "\tTRUE\t/\tFALSE\t0\ta\tb\r\n";
  }
  void Install(const char* name) const {
    Write(HKEY_LOCAL_MACHINE, std::string(AppPaths) + name, "Path",
          Text(folders_.Data + "\\Opera" + '\0'));
  }

  const UserFolders folders_;
};

// Ends the copy as its menu does and starts it anew; the chart is drawn at the start alone.
DWORD StartAnew(DWORD processId) {
  const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, processId);
  Copy(processId).Choose("MnuExit");
  const bool ended = WaitForSingleObject(process, DefaultBound) == WAIT_OBJECT_0;
  CloseHandle(process);
  if (!ended) return processId;
  std::string command = '"' + ExecutablePath() + '"';
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION started{};
  if (!CreateProcessA(ExecutablePath().c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      nullptr, &startup, &started)) {
    return 0;
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
  const Copy copy(started.dwProcessId);
  WaitFor([&] { return WindowTextOf(copy.Find("frmMain.cmdDummy")) == "Ready for command"; },
          30000);
  return started.dwProcessId;
}

void Answered() {
  char line[64];
  if (std::fgets(line, sizeof line, stdin) == nullptr) std::exit(1);
}

void Shoot(const std::string& name, HWND window) {
  const RECT area = OnScreen(window);
  std::printf("shot %s %ld %ld %ld %ld\n", name.c_str(), area.left, area.top,
              area.right - area.left, area.bottom - area.top);
  std::fflush(stdout);
  Answered();
}

void Missing(const char* name) {
  std::printf("%s does not show\n", name);
  std::fflush(stdout);
}

// A window of its own over the main window, by its class or name, and what ends it.
template <class Find>
void ShootWhenThere(const char* name, Find find) {
  HWND window = nullptr;
  if (!WaitFor([&] { return (window = find()) != nullptr && IsWindowVisible(window); }, 5000)) {
    Missing(name);
    return;
  }
  Shoot(name, window);
}

// The pictures are kept in the help and the README: none shows a path of the machine that takes
// them.
void SetPath(const Copy& copy, const char* box, const char* path) {
  SendMessageA(copy.Find(box), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path));
}

// The whole window, and the panel alone for the help pages.
void ShootPanels(const Copy& copy, HWND main) {
  for (const Screen& screen : Panels) {
    if (!copy.Open(screen)) Missing(screen.Panel);
    // Not before its panel has been shown: its window is made then.
    SetPath(copy, "FrmFrameIESettings.txtIESettings",
            "C:\\Program Files\\Vantrel\\Settings\\IESettings");
    copy.Settle();
    Shoot(screen.Name, main);
    Shoot(std::string("panel-") + screen.Name, copy.Find(screen.Panel));
  }
}

bool WaitForStatus(const Copy& copy, const char* text) {
  return WaitFor(
      [&] { return WindowTextOf(copy.Find("FrmFrameHistory.lblcleaningstatus")) == text; });
}

// The middle of a run: a modal window holds it, and is moved out of the picture.
void ShootRun(const Copy& copy, HWND panel) {
  for (const char* box : {"chkCacheHURL", "chkWindowsRunHistory", "chkWindowsFindHistory",
                          "chkWindowsRecDoc", "chkWindowsRB"}) {
    copy.Click(std::string("FrmFrameHistory.") + box);
  }
  PostMessageA(copy.Find("FrmFrameHistory.CmdDeleteCache"), BM_CLICK, 0, 0);
  constexpr LRESULT Middle = 40;
  WaitFor(
      [&] {
        return SendMessageA(copy.Find("FrmFrameHistory.pbarCache"), PBM_GETPOS, 0, 0) >= Middle;
      },
      5000);
  copy.Choose("submnuAbout");
  HWND dialog = nullptr;
  WaitFor([&] { return (dialog = copy.Find("FrmAbout")) != nullptr && IsWindowVisible(dialog); });
  SetWindowPos(dialog, nullptr, 1200, 980, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  copy.Settle();
  Shoot("clean-run", panel);
  PostMessageA(dialog, WM_CLOSE, 0, 0);
  if (!WaitForStatus(copy, "Done")) Missing("clean-done");
  copy.Settle();
  Shoot("clean-done", panel);
}

// The panel with its sizes, in the middle of a run and behind it, and each browser's cookies.
void ShootCleaning(const Copy& copy) {
  const SampleTraces traces;
  copy.Open(Panels[5]);
  HWND panel = copy.Find("FrmFrameHistory");
  SendMessageA(copy.Find("FrmFrameHistory.lblcleaningstatus"), WM_SETTEXT, 0,
               reinterpret_cast<LPARAM>("not yet"));
  copy.MouseClick("FrmFrameHistory.lblRefresh");
  if (!WaitForStatus(copy, "Ready to clean")) Missing("clean-sizes");
  SetPath(copy, "FrmFrameHistory.txtcookies", "C:\\Documents and Settings\\Me\\Cookies");
  copy.Settle();
  Shoot("clean-sizes", panel);
  for (const char* option : {"Netscape", "Opera"}) {
    copy.Click(std::string("FrmFrameHistory.opt") + option);
    copy.Settle();
    Shoot(std::string("clean-") + option, panel);
  }
  copy.Click("FrmFrameHistory.optIE");
  ShootRun(copy, panel);
}

void ShootHelp(const Copy& copy, HWND main) {
  // The Help frame lies under the Welcome panel, which this one hides.
  copy.Open(Panels[2]);
  copy.MouseClick("frmMain.LnkHelp");
  WaitFor([&] { return IsWindowVisible(copy.Find("frmMain.frahelp")) != FALSE; }, 5000);
  // Where no browser is to be had, a box says so.
  if (HWND box = copy.FindShown("#32770")) SendMessageA(box, WM_CLOSE, 0, 0);
  copy.Settle();
  Shoot("help", main);
}

// A row on its way, which is highlighted where it stands.
void MoveRow(const Copy& copy) {
  HWND list = copy.Find("frmcustom.lstvCurrent");
  RECT inside{};
  GetClientRect(list, &inside);
  const LPARAM middle = MAKELPARAM(inside.right / 2, inside.bottom / 2);
  PostMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, middle);
  PostMessageA(list, WM_LBUTTONUP, 0, middle);
  PostMessageA(copy.Find("frmcustom.cmdMDown"), BM_CLICK, 0, 0);
}

void ShootDialogs(const Copy& copy) {
  const SampleLayout layout;
  for (const auto& [name, entry, window] : {std::tuple{"toolbar", "submnuIEToolbar", "frmcustom"},
                                            std::tuple{"about", "submnuAbout", "FrmAbout"}}) {
    copy.Choose(entry);
    WaitFor([&, dialog = window] { return copy.Find(dialog) != nullptr; }, 5000);
    if (copy.Find("frmcustom") != nullptr) MoveRow(copy);
    ShootWhenThere(name, [&] { return copy.Find(window); });
    HWND shown = copy.Find(window);
    if (shown == nullptr) continue;
    PostMessageA(shown, WM_CLOSE, 0, 0);
    WaitFor([&, dialog = window] {
      HWND still = copy.Find(dialog);
      return still == nullptr || !IsWindowVisible(still);
    });
  }
}

void ShootMenus(const Copy& copy, HWND main) {
  const auto menu = [&] { return copy.FindShown("#32768"); };
  PostMessageA(main, WM_SYSCOMMAND, SC_KEYMENU, 'f');
  if (WaitFor([&] { return menu() != nullptr; }, 5000)) Shoot("menu", main);
  PostMessageA(main, WM_CANCELMODE, 0, 0);
  WaitFor([&] { return menu() == nullptr; }, 5000);
  SetCursorPos(OnScreen(main).left + 200, OnScreen(main).top + 200);
  // What the tray sends on a click with the right button.
  PostMessageA(copy.Find("FrmFrameMain"), WM_MOUSEMOVE, 1, WM_RBUTTONUP);
  ShootWhenThere("tray", menu);
  PostMessageA(main, WM_CANCELMODE, 0, 0);
  WaitFor([&] { return menu() == nullptr; }, 5000);
}

// Showing the browser's toolbar or not warns of a restart; twice, so that nothing has changed.
void ShootBox(const Copy& copy) {
  const auto box = [&] { return copy.FindShown("#32770"); };
  for (const bool picture : {true, false}) {
    PostMessageA(copy.Find("FrmFrameSettings.chkGShowToolbar"), BM_CLICK, 0, 0);
    if (!WaitFor([&] { return box() != nullptr; }, 5000)) return Missing("box");
    if (picture) Shoot("box", box());
    SendMessageA(box(), WM_CLOSE, 0, 0);
    WaitFor([&] { return box() == nullptr; }, 5000);
  }
}

void ShootHighContrast(const Copy& copy, HWND main) {
  const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, copy.ProcessId());
  const Inside inside(process);
  inside.Choose(inside::Scheme::HighContrastBlack);
  for (const Screen& screen : Panels) {
    copy.Open(screen);
    Shoot(std::string("contrast-") + screen.Name, main);
  }
  inside.Choose(inside::Scheme::HighContrastWhite);
  copy.Open(Panels[5]);
  Shoot("contrast-white", main);
  inside.Choose(inside::Scheme::Own);
  CloseHandle(process);
}

int TakeAll() {
  SeeRealPixels();
  const SampleCounts counts;
  const SampleSites sites;
  const SampleBackup backup;
  const SamplePlugins plugins;
  const Copy copy(StartAnew(RunningProcess()));
  HWND main = copy.Find("frmMain");
  if (main == nullptr) {
    std::printf("no copy runs\n");
    return 1;
  }
  ShootPanels(copy, main);
  ShootCleaning(copy);
  ShootHelp(copy, main);
  copy.Open(Panels[0]);
  ShootDialogs(copy);
  ShootMenus(copy, main);
  ShootBox(copy);
  ShootHighContrast(copy, main);
  copy.Open(Panels[0]);
  return 0;
}

}  // namespace
}  // namespace vantrel::e2e

int main() { return vantrel::e2e::TakeAll(); }
