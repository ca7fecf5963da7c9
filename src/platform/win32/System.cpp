#include "platform/System.h"

#include <windows.h>

#include <array>

#include "platform/win32/Adapters.h"
#include "platform/win32/Handle.h"

namespace vantrel::platform::win32 {
namespace {

static_assert(sizeof(OSVERSIONINFOEXA) == 156);

// What a call that fills a buffer of any size has put there; empty if it failed.
template <typename Fill>
std::wstring WideText(Fill fill) {
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = fill(text.data(), static_cast<DWORD>(text.size()));
    if (length < text.size()) return text.substr(0, length);
    text.resize(text.size() * 2);
  }
}

// In the system code page; `lost` if a letter is not in it.
std::string Narrow(const std::wstring& wide, BOOL& lost) {
  const int length = static_cast<int>(wide.size());
  std::string text(wide.size() * 2, '\0');
  text.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), length, text.data(),
                          static_cast<int>(text.size()), nullptr, &lost)));
  return text;
}

// A path with letters that are not in the system code page goes by its short name, where the drive
// has one.
std::string ExecutablePath() {
  const std::wstring path = WideText(
      [](wchar_t* buffer, DWORD room) { return GetModuleFileNameW(nullptr, buffer, room); });
  BOOL lost = FALSE;
  std::string text = Narrow(path, lost);
  if (lost == FALSE) return text;
  const std::wstring brief = WideText(
      [&](wchar_t* buffer, DWORD room) { return GetShortPathNameW(path.c_str(), buffer, room); });
  return brief.empty() ? text : Narrow(brief, lost);
}

// What a call that fills a buffer has put there; empty if it failed.
template <typename Fill>
std::string Text(Fill fill) {
  std::array<char, 256> buffer{};
  return fill(buffer.data(), static_cast<int>(buffer.size())) > 0 ? buffer.data() : "";
}

class SystemAdapter : public System {
 public:
  std::int32_t GetVersionExA(VersionRecord& record) override {
    OSVERSIONINFOEXA version{};
    version.dwOSVersionInfoSize = record.size;
    const BOOL result = ::GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&version));
    record.majorVersion = version.dwMajorVersion;
    record.minorVersion = version.dwMinorVersion;
    record.buildNumber = version.dwBuildNumber;
    record.platformId = version.dwPlatformId;
    return result;
  }

  std::string CommandLineTail() override { return SplitCommandLine(GetCommandLineA()).tail; }

  std::string ProgramFolder() override {
    const std::string path = ExecutablePath();
    const std::size_t slash = path.rfind('\\');
    // A drive's root keeps its backslash.
    return path.substr(0, slash == 2 ? 3 : slash);
  }

  std::string ProgramName() override {
    const std::string path = ExecutablePath();
    const std::string file = path.substr(path.rfind('\\') + 1);
    return file.substr(0, file.rfind('.'));
  }

  bool PreviousInstanceRuns() override {
    if (!claim_.Valid()) Claim();
    return previous_;
  }

  std::string WindowsFolder() override {
    return Text([](char* buffer, int room) {
      return GetWindowsDirectoryA(buffer, static_cast<UINT>(room));
    });
  }
  std::string ThousandsSeparator() override {
    return Text([](char* buffer, int room) {
      return GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, buffer, room);
    });
  }
  std::string ShortDate() override {
    return Text([](char* buffer, int room) {
      return GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, buffer, room);
    });
  }
  std::string ShortTime() override {
    return Text([](char* buffer, int room) {
      return GetTimeFormatA(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, buffer, room);
    });
  }

  bool HighContrast() override {
    HIGHCONTRASTA chosen{};
    chosen.cbSize = sizeof chosen;
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof chosen, &chosen, 0) &&
           (chosen.dwFlags & HCF_HIGHCONTRASTON) != 0;
  }

  std::uint32_t GetTickCount() override { return ::GetTickCount(); }

 private:
  void Claim() {
    // In the session's own namespace; the system knows its name in this spelling alone.
    const std::string session = "Local\\";
    std::string instance = "Instance." + ProgramName();
    CharUpperBuffA(instance.data(), static_cast<DWORD>(instance.size()));
    const std::string name = session + instance;
    claim_.Reset(CreateMutexA(nullptr, FALSE, name.c_str()));
    // A mutex that may not be opened is another copy's, running with greater rights.
    const DWORD error = GetLastError();
    previous_ = error == ERROR_ALREADY_EXISTS || error == ERROR_ACCESS_DENIED;
  }

  KernelHandle claim_;
  bool previous_ = false;
};

}  // namespace

std::unique_ptr<System> MakeSystem() { return std::make_unique<SystemAdapter>(); }

}  // namespace vantrel::platform::win32
