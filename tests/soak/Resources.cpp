#include "Resources.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <vector>

// After windows.h.
#include <psapi.h>
#include <winternl.h>

namespace vantrel::e2e {
namespace {

// Wine counts neither of the two kinds of GetGuiResources: it answers 0 for a process with windows.

// An entry of the table of GDI objects, which Wine keeps in each process by itself.
struct GdiEntry {
  std::uint64_t object;
  std::uint32_t owner;
  std::uint16_t unique;
  std::uint8_t type;  // 0 for a free entry
  std::uint8_t flags;
  std::uint64_t user;
};
constexpr std::uintptr_t GdiTableInProcessBlock = sizeof(void*) == 8 ? 0xF8 : 0x94;
constexpr std::size_t GdiEntries = 0x10000;  // the table may be shorter

char* ReadPointer(HANDLE process, const char* from) {
  char* pointer = nullptr;
  ReadProcessMemory(process, from, &pointer, sizeof(pointer), nullptr);
  return pointer;
}

long WineGdiObjects(HANDLE process) {
  PROCESS_BASIC_INFORMATION basic{};
  NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof(basic), nullptr);
  const char* table = ReadPointer(
      process, reinterpret_cast<const char*>(basic.PebBaseAddress) + GdiTableInProcessBlock);
  MEMORY_BASIC_INFORMATION region{};
  if (table == nullptr || VirtualQueryEx(process, table, &region, sizeof(region)) == 0) return 0;
  std::vector<GdiEntry> entries(
      std::min<std::size_t>(GdiEntries, region.RegionSize / sizeof(GdiEntry)));
  ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(GdiEntry), nullptr);
  return static_cast<long>(std::count_if(entries.begin(), entries.end(),
                                         [](const GdiEntry& entry) { return entry.type != 0; }));
}

// Wine keeps one table of USER objects for the session. A free place in it is given away again
// before a new one is, and the high word of a handle counts how often its place was: menus are made
// until one has a new place, and the table is then as long as the number of that place.
long WineUserObjects() {
  constexpr std::uintptr_t FirstPlace = 0x20;
  constexpr std::size_t Places = 0x8000;
  std::vector<HMENU> menus;
  std::uintptr_t handle = 0;
  do {
    menus.push_back(CreateMenu());
    handle = reinterpret_cast<std::uintptr_t>(menus.back());
  } while (handle != 0 && HIWORD(handle) != 1 && menus.size() < Places);
  for (HMENU menu : menus) DestroyMenu(menu);
  const auto length = static_cast<long>((LOWORD(handle) - FirstPlace) / 2 + 1);
  return handle == 0 ? 0 : length - static_cast<long>(menus.size());
}

long KernelHandles(DWORD process) {
  std::vector<char> buffer(1 << 20);
  ULONG length = 0;
  if (NtQuerySystemInformation(SystemProcessInformation, buffer.data(),
                               static_cast<ULONG>(buffer.size()), &length) != 0) {
    return 0;
  }
  const char* row = buffer.data();
  for (;;) {
    const auto& information = *reinterpret_cast<const SYSTEM_PROCESS_INFORMATION*>(row);
    if (reinterpret_cast<std::uintptr_t>(information.UniqueProcessId) == process) {
      return static_cast<long>(information.HandleCount);
    }
    if (information.NextEntryOffset == 0) return 0;
    row += information.NextEntryOffset;
  }
}

long long PrivateBytes(HANDLE process) {
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof(counters);
  GetProcessMemoryInfo(process, &counters, sizeof(counters));
  return static_cast<long long>(counters.PagefileUsage);
}

}  // namespace

Resources ResourcesOf(HANDLE process) {
  Resources resources{static_cast<long>(GetGuiResources(process, GR_GDIOBJECTS)),
                      static_cast<long>(GetGuiResources(process, GR_USEROBJECTS)),
                      KernelHandles(GetProcessId(process)), PrivateBytes(process)};
  if (resources.Gdi == 0) resources.Gdi = WineGdiObjects(process);
  if (resources.User == 0) resources.User = WineUserObjects();
  if (resources.Gdi == 0 || resources.User == 0 || resources.Kernel == 0 ||
      resources.PrivateBytes == 0) {
    throw std::runtime_error("the system does not count: " + Show(resources));
  }
  return resources;
}

std::string Show(const Resources& resources) {
  return std::to_string(resources.Gdi) + " GDI, " + std::to_string(resources.User) + " USER, " +
         std::to_string(resources.Kernel) + " kernel, " +
         std::to_string(resources.PrivateBytes / 1024) + " KiB private";
}

}  // namespace vantrel::e2e
