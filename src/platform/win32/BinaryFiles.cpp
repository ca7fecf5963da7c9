#include "platform/BinaryFiles.h"

#include <windows.h>

#include <algorithm>

#include "platform/win32/Adapters.h"
#include "platform/win32/Handle.h"

namespace vantrel::platform::win32 {
namespace {

constexpr std::size_t LargestTransfer = 1U << 24;

HANDLE SystemHandle(OpenFileHandle file) { return reinterpret_cast<HANDLE>(file); }

OVERLAPPED PlaceOf(std::uint64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return place;
}

// Whether the file lies under its name itself; a device has no such information.
bool IsFileItself(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION opened{};
  return GetFileInformationByHandle(file, &opened) &&
         (opened.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

class BinaryFilesAdapter : public BinaryFiles {
 public:
  std::int32_t OpenFile(const std::string& path, FileAccess access,
                        OpenFileHandle& opened) override {
    const DWORD rights = access == FileAccess::Read ? GENERIC_READ : (GENERIC_READ | GENERIC_WRITE);
    const bool noLink = access == FileAccess::ReadWriteNoLink;
    // What is looked at and written is what this call opened, whatever takes its name meanwhile.
    const HANDLE file = CreateFileA(
        path.c_str(), rights, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
        OPEN_EXISTING, noLink ? FILE_FLAG_OPEN_REPARSE_POINT : FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return LastError();
    if (noLink && !IsFileItself(file)) {
      CloseFile(reinterpret_cast<OpenFileHandle>(file));
      return ErrorAccessDenied;
    }
    opened = reinterpret_cast<OpenFileHandle>(file);
    return ErrorSuccess;
  }

  std::uint64_t FileLength(OpenFileHandle file) override {
    LARGE_INTEGER length{};
    return file != 0 && GetFileSizeEx(SystemHandle(file), &length)
               ? static_cast<std::uint64_t>(length.QuadPart)
               : 0;
  }

  std::int32_t ReadAt(OpenFileHandle file, std::uint64_t offset, std::span<char> buffer,
                      std::size_t& count) override {
    count = 0;
    while (count < buffer.size()) {
      OVERLAPPED place = PlaceOf(offset + count);
      const auto chunk = static_cast<DWORD>(std::min(buffer.size() - count, LargestTransfer));
      DWORD read = 0;
      if (!ReadFile(SystemHandle(file), buffer.data() + count, chunk, &read, &place)) {
        const std::int32_t code = LastError();
        return code == ERROR_HANDLE_EOF ? ErrorSuccess : code;
      }
      if (read == 0) return ErrorSuccess;
      count += read;
    }
    return ErrorSuccess;
  }

  std::int32_t WriteAt(OpenFileHandle file, std::uint64_t offset, std::string_view bytes) override {
    std::size_t done = 0;
    while (done < bytes.size()) {
      OVERLAPPED place = PlaceOf(offset + done);
      const auto chunk = static_cast<DWORD>(std::min(bytes.size() - done, LargestTransfer));
      DWORD written = 0;
      if (!WriteFile(SystemHandle(file), bytes.data() + done, chunk, &written, &place)) {
        return LastError();
      }
      if (written == 0) return ERROR_DISK_FULL;
      done += written;
    }
    return ErrorSuccess;
  }

  void CloseFile(OpenFileHandle file) override {
    const FileHandle closing(file == 0 ? INVALID_HANDLE_VALUE : SystemHandle(file));
  }
};

}  // namespace

std::unique_ptr<BinaryFiles> MakeBinaryFiles() { return std::make_unique<BinaryFilesAdapter>(); }

}  // namespace vantrel::platform::win32
