// Measures the list of plug-ins on the real registry with 300 helper objects, beside the bare calls
// that it comes to, in one run and in turn. The windows are the ones without a screen.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "forms/headless/Toolkit.h"
#include "iemaintenance/Attach.h"
#include "iemaintenance/PluginInventory.h"
#include "platform/memory/World.h"
#include "platform/win32/Win32Platform.h"
#include "program/Program.h"
#include "windows/FrmFrameIEPlugin.h"

namespace vantrel::bench {
namespace {

constexpr int Helpers = 300;
constexpr int Runs = 15;
const std::string HelpersKey = iemaintenance::HelperObjectsKey;
const std::string BrowserKey = "SOFTWARE\\Microsoft\\Internet Explorer\\";

std::string Id(int number) {
  char id[40];
  wsprintfA(id, "{00000000-0000-0000-0000-%012d}", number);
  return id;
}
std::string ClassKey(int number) { return "CLSID\\" + Id(number); }

class Planted {
 public:
  Planted() {
    for (int number = 0; number < Helpers; ++number) {
      HKEY key = nullptr;
      RegCreateKeyA(HKEY_LOCAL_MACHINE, (HelpersKey + Id(number)).c_str(), &key);
      RegCloseKey(key);
      RegSetValueA(HKEY_CLASSES_ROOT, ClassKey(number).c_str(), REG_SZ, "A helper", 8);
    }
  }
  ~Planted() {
    for (int number = 0; number < Helpers; ++number) {
      RegDeleteKeyA(HKEY_LOCAL_MACHINE, (HelpersKey + Id(number)).c_str());
      RegDeleteKeyA(HKEY_CLASSES_ROOT, ClassKey(number).c_str());
    }
  }
  Planted(const Planted&) = delete;
  Planted& operator=(const Planted&) = delete;
};

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

double Median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

int Run() {
  const Planted planted;
  const auto windows = platform::win32::MakeWin32Platform();
  platform::memory::World world;
  forms::headless::Toolkit toolkit(world.desktop, world.clock, 1);
  program::Program program(windows->Platform(), toolkit);
  iemaintenance::AttachIEMaintenance(program);
  forms::ListView& list = program.windows.FrmFrameIEPlugin->lstBHO;
  std::vector<double> own;
  std::vector<double> bare;
  int walked = 0;
  for (int run = 0; run < Runs; ++run) {
    own.push_back(Milliseconds([&] { iemaintenance::LoadPluginList(program); }));
    bare.push_back(Milliseconds([&] { walked = ListBare(); }));
  }
  std::printf("list of %d helper objects: %.2f ms, bare calls %.2f ms, ratio %.2f, wanted <= 1.3\n",
              walked, Median(own), Median(bare), Median(own) / Median(bare));
  return list.Count() >= Helpers && walked >= Helpers ? 0 : 1;
}

}  // namespace
}  // namespace vantrel::bench

int main() { return vantrel::bench::Run(); }
