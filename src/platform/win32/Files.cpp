#include "platform/Files.h"

#include <windows.h>

#include <algorithm>

#include "platform/win32/Adapters.h"
#include "platform/win32/Handle.h"

namespace vantrel::platform::win32 {
namespace {

std::int32_t LastError() { return static_cast<std::int32_t>(GetLastError()); }

// What an existing file has to be opened with to be replaced: without its own attributes a
// hidden one is refused.
DWORD AttributesToKeep(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return FILE_ATTRIBUTE_NORMAL;
  const DWORD kept = attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  return kept == 0 ? FILE_ATTRIBUTE_NORMAL : kept;
}

std::int32_t WriteAll(HANDLE file, const std::string& content) {
  std::size_t done = 0;
  while (done < content.size()) {
    const DWORD chunk = static_cast<DWORD>(std::min<std::size_t>(content.size() - done, 1U << 24));
    DWORD written = 0;
    if (!WriteFile(file, content.data() + done, chunk, &written, nullptr)) return LastError();
    if (written == 0) return ERROR_DISK_FULL;
    done += written;
  }
  return ErrorSuccess;
}

class FilesAdapter : public Files {
 public:
  bool FileExists(const std::string& path) override {
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  }

  std::int32_t WriteTextFile(const std::string& path, const std::string& content) override {
    const FileHandle file(CreateFileA(path.c_str(), GENERIC_WRITE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS,
                                      AttributesToKeep(path), nullptr));
    return file.Valid() ? WriteAll(file.Get(), content) : LastError();
  }
};

}  // namespace

std::unique_ptr<Files> MakeFiles() { return std::make_unique<FilesAdapter>(); }

}  // namespace vantrel::platform::win32
