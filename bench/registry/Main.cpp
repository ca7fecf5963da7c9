// Measures the list of plug-ins on the real registry with 300 helper objects, and the tick, beside
// the bare calls that they come to, in one run and in turn. The windows are the ones without a
// screen.
#include <windows.h>

#include <cstdio>
#include <string>

#include "Report.h"
#include "e2e/system/RealProgram.h"
#include "iemaintenance/Attach.h"
#include "iemaintenance/PluginInventory.h"
#include "statistics/RefreshCounters.h"
#include "windows/FrmFrameIEPlugin.h"

namespace vantrel::bench {
namespace {

constexpr int Helpers = 300;
constexpr int Ticks = 100;  // a measure of them, for the clock
constexpr int Runs = 15;
constexpr const char* CountersKey = "Software\\Qorvel Softwares\\Block Log";
constexpr const char* Counters[] = {"Popup", "DHTML", "WebDialog", "BannerAds", "Flash"};
const std::string HelpersKey = iemaintenance::HelperObjectsKey;
const std::string BrowserKey = "SOFTWARE\\Microsoft\\Internet Explorer\\";

std::string Id(int number) {
  char id[40];
  wsprintfA(id, "{00000000-0000-0000-0000-%012d}", number);
  return id;
}
std::string ClassKey(int number) { return "CLSID\\" + Id(number); }

void Plant() {
  for (int number = 0; number < Helpers; ++number) {
    HKEY key = nullptr;
    RegCreateKeyA(HKEY_LOCAL_MACHINE, (HelpersKey + Id(number)).c_str(), &key);
    RegCloseKey(key);
    RegSetValueA(HKEY_CLASSES_ROOT, ClassKey(number).c_str(), REG_SZ, "A helper", 8);
  }
  HKEY key = nullptr;
  RegCreateKeyA(HKEY_CURRENT_USER, CountersKey, &key);
  for (const char* counter : Counters) {
    const DWORD count = 7;
    RegSetValueExA(key, counter, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&count), sizeof count);
  }
  RegCloseKey(key);
}

void ReadBare(HKEY root, const std::string& subkey, const char* name) {
  HKEY key = nullptr;
  char buffer[1024]{};
  DWORD length = sizeof buffer;
  DWORD type = 0;
  if (RegOpenKeyExA(root, subkey.c_str(), 0, KEY_ALL_ACCESS, &key) == ERROR_SUCCESS) {
    RegQueryValueExA(key, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer), &length);
  }
  RegCloseKey(key);
}

template <class Take>
int WalkBare(HKEY root, const std::string& subkey, Take take) {
  HKEY key = nullptr;
  if (RegOpenKeyA(root, subkey.c_str(), &key) != ERROR_SUCCESS) return 0;
  char name[255];
  DWORD index = 0;
  for (; RegEnumKeyA(key, index, name, sizeof name) == ERROR_SUCCESS; ++index) take(name);
  RegCloseKey(key);
  return static_cast<int>(index);
}

int ListBare() {
  const int walked = WalkBare(HKEY_LOCAL_MACHINE, HelpersKey, [](const char* name) {
    ReadBare(HKEY_CLASSES_ROOT, std::string("CLSID\\") + name, "");
  });
  ReadBare(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\IE Setup\\Setup", "Path");
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, (BrowserKey + "Toolbar\\").c_str(), 0, 0, &key) ==
      ERROR_SUCCESS) {
    char name[260];
    DWORD length = sizeof name;
    RegEnumValueA(key, 0, name, &length, nullptr, nullptr, nullptr, nullptr);
    RegCloseKey(key);
  }
  WalkBare(HKEY_CURRENT_USER, BrowserKey + "MenuExt\\", [](const char*) {});
  WalkBare(HKEY_LOCAL_MACHINE, BrowserKey + "Extensions\\", [](const char* name) {
    ReadBare(HKEY_LOCAL_MACHINE, BrowserKey + "Extensions\\" + name, "ButtonText");
  });
  return walked;
}

template <class Act>
double Milliseconds(Act act) {
  LARGE_INTEGER frequency{};
  LARGE_INTEGER start{};
  LARGE_INTEGER end{};
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&start);
  act();
  QueryPerformanceCounter(&end);
  return static_cast<double>(end.QuadPart - start.QuadPart) * 1000 /
         static_cast<double>(frequency.QuadPart);
}

// Both ways in turn.
template <class Ours, class Bare>
void Compare(const char* what, const char* mark, Ours ours, Bare bare) {
  Times times;
  Times bareTimes;
  for (int run = 0; run < Runs; ++run) {
    times.push_back(Milliseconds(ours));
    bareTimes.push_back(Milliseconds(bare));
  }
  PrintRow(what, Median(times), "ms", mark, {"bare registry calls", Median(bareTimes)});
}

void TickBare() {
  ReadBare(HKEY_CURRENT_USER, CountersKey, Counters[0]);
  for (const char* counter : Counters) ReadBare(HKEY_CURRENT_USER, CountersKey, counter);
}

template <class Act>
void Repeat(Act act) {
  for (int tick = 0; tick < Ticks; ++tick) act();
}

int Run() {
  Plant();
  e2e::RealProgram copy;
  iemaintenance::AttachIEMaintenance(copy.program);
  int walked = 0;
  Compare(
      "list of plug-ins with 300 helper objects", "x1.3",
      [&] { iemaintenance::LoadPluginList(copy.program); }, [&] { walked = ListBare(); });
  Compare(
      "100 ticks", "x1.1", [&] { Repeat([&] { statistics::RefreshCounters(copy.program); }); },
      [] { Repeat(TickBare); });
  const forms::ListView& list = copy.program.windows.FrmFrameIEPlugin->lstBHO;
  return list.Count() >= Helpers && walked >= Helpers ? 0 : 1;
}

}  // namespace
}  // namespace vantrel::bench

int main() { return vantrel::bench::Run(); }
