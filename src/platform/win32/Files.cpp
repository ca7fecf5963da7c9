#include "platform/Files.h"

#include <windows.h>

#include <algorithm>
#include <new>
#include <stdexcept>

#include "platform/win32/Adapters.h"
#include "platform/win32/Handle.h"

namespace vantrel::platform::win32 {
namespace {

// What an existing file has to be opened with to be replaced: without its own attributes a
// hidden one is refused.
DWORD AttributesToKeep(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return FILE_ATTRIBUTE_NORMAL;
  const DWORD kept = attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  return kept == 0 ? FILE_ATTRIBUTE_NORMAL : kept;
}

constexpr DWORD SharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE;
constexpr std::size_t LargestChunk = 1U << 24;

DWORD ChunkOf(std::size_t left) { return static_cast<DWORD>(std::min(left, LargestChunk)); }

std::int32_t WriteAll(HANDLE file, const std::string& content) {
  std::size_t done = 0;
  while (done < content.size()) {
    DWORD written = 0;
    if (!WriteFile(file, content.data() + done, ChunkOf(content.size() - done), &written, nullptr))
      return LastError();
    if (written == 0) return ERROR_DISK_FULL;
    done += written;
  }
  return ErrorSuccess;
}

// Writes at the end of an open file, and takes back what was written of it if not all could be.
std::int32_t Extend(HANDLE file, const std::string& content) {
  LARGE_INTEGER end{};
  if (!SetFilePointerEx(file, {}, &end, FILE_END)) return LastError();
  const std::int32_t code = WriteAll(file, content);
  if (code != ErrorSuccess && SetFilePointerEx(file, end, nullptr, FILE_BEGIN)) SetEndOfFile(file);
  return code;
}

// Reads up to the file's end, also where it has grown or shrunk since its length was asked for.
std::int32_t ReadAll(HANDLE file, std::string& content) {
  LARGE_INTEGER length{};
  if (!GetFileSizeEx(file, &length)) return LastError();
  std::size_t done = 0;
  for (;;) {
    // One byte more than is expected finds the end.
    content.resize(std::max(done, static_cast<std::size_t>(length.QuadPart)) + 1);
    DWORD got = 0;
    if (!ReadFile(file, content.data() + done, ChunkOf(content.size() - done), &got, nullptr))
      return LastError();
    if (got == 0) break;
    done += got;
  }
  content.resize(done);
  return ErrorSuccess;
}

std::int32_t ReadWithinMemory(HANDLE file, std::string& content) {
  try {
    return ReadAll(file, content);
  } catch (const std::bad_alloc&) {
    return ERROR_NOT_ENOUGH_MEMORY;
  } catch (const std::length_error&) {
    return ERROR_NOT_ENOUGH_MEMORY;
  }
}

class FilesAdapter : public Files {
 public:
  bool FileExists(const std::string& path) override {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  }

  std::int32_t FileLength(const std::string& path, std::uint64_t& length) override {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data)) return LastError();
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return ERROR_ACCESS_DENIED;
    length = std::uint64_t{data.nFileSizeHigh} << 32 | data.nFileSizeLow;
    return ErrorSuccess;
  }

  std::int32_t ReadTextFile(const std::string& path, std::string& content) override {
    content.clear();
    const FileHandle file(
        CreateFileA(path.c_str(), GENERIC_READ, SharedWithAll, nullptr, OPEN_EXISTING, 0, nullptr));
    const std::int32_t code = file.Valid() ? ReadWithinMemory(file.Get(), content) : LastError();
    if (code != ErrorSuccess) content = {};
    return code;
  }

  std::int32_t CreateTextFile(const std::string& path) override { return AppendTextFile(path, ""); }

  std::int32_t WriteTextFile(const std::string& path, const std::string& content) override {
    const FileHandle file(CreateFileA(path.c_str(), GENERIC_WRITE, SharedWithAll, nullptr,
                                      CREATE_ALWAYS, AttributesToKeep(path), nullptr));
    return file.Valid() ? Extend(file.Get(), content) : LastError();
  }

  std::int32_t AppendTextFile(const std::string& path, const std::string& content) override {
    const FileHandle file(CreateFileA(path.c_str(), GENERIC_WRITE, SharedWithAll, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file.Valid() ? Extend(file.Get(), content) : LastError();
  }
};

}  // namespace

std::unique_ptr<Files> MakeFiles() { return std::make_unique<FilesAdapter>(); }

}  // namespace vantrel::platform::win32
