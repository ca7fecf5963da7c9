// What a process asks about itself, the system it runs on, its formats and its clock.
#ifndef VANTREL_PLATFORM_SYSTEM_H_
#define VANTREL_PLATFORM_SYSTEM_H_

#include <cstdint>
#include <string>

namespace vantrel::platform {

// The version record; `size` is its size field, 156 for the form in use.
struct VersionRecord {
  std::uint32_t size = 0;
  std::uint32_t majorVersion = 0;
  std::uint32_t minorVersion = 0;
  std::uint32_t buildNumber = 0;
  std::uint32_t platformId = 0;
};

class System {
 public:
  virtual ~System() = default;

  // Fills the record; 1 for success.
  virtual std::int32_t GetVersionExA(VersionRecord& record) = 0;

  // The command line behind the program's own path, with the blanks before it removed, as one
  // unparsed text of any length and bytes.
  virtual std::string CommandLineTail() = 0;

  // The folder of the executable as the system gives it, without a trailing backslash unless it is
  // a drive's root; the executable's name without folder and extension.
  virtual std::string ProgramFolder() = 0;
  virtual std::string ProgramName() = 0;

  // Whether another copy of this program runs in this session. The first call claims the name for
  // this process, so a later copy sees it.
  virtual bool PreviousInstanceRuns() = 0;

  // Windows' own folder, without a trailing backslash.
  virtual std::string WindowsFolder() = 0;

  // The user's separator of thousands; may be empty.
  virtual std::string ThousandsSeparator() = 0;

  // Today's date and the time of the day in the user's short formats.
  virtual std::string ShortDate() = 0;
  virtual std::string ShortTime() = 0;

  // Whether the user has chosen a high-contrast scheme of colours, now.
  virtual bool HighContrast() = 0;

  // Milliseconds since the system was started, modulo 2^32.
  virtual std::uint32_t GetTickCount() = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_SYSTEM_H_
