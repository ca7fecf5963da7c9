#include "engine/win32/WindowsWorld.h"

#include <windows.h>

#include <array>
#include <cstdio>
#include <cstring>

namespace vantrel::engine {
namespace {

// An open key or file, closed at the end of its scope.
class OpenKey {
 public:
  OpenKey(Root root, const std::string& key, REGSAM access) {
    const HKEY from = root == Root::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    if (RegOpenKeyExA(from, key.c_str(), 0, access, &key_) != ERROR_SUCCESS) key_ = nullptr;
  }
  ~OpenKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }
  OpenKey(const OpenKey&) = delete;
  OpenKey& operator=(const OpenKey&) = delete;
  HKEY Get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

class OpenFile {
 public:
  // Others may read, write and delete the file meanwhile: nobody locks it.
  OpenFile(const std::string& path, DWORD access, DWORD disposition)
      : file_(CreateFileA(path.c_str(), access,
                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                          disposition, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  ~OpenFile() {
    if (IsOpen()) CloseHandle(file_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  bool IsOpen() const { return file_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return file_; }

 private:
  HANDLE file_;
};

std::optional<std::string> ReadValue(Root root, const std::string& key, const std::string& name,
                                     DWORD wanted) {
  const OpenKey open(root, key, KEY_QUERY_VALUE);
  std::array<char, 2048> buffer{};
  DWORD size = buffer.size();
  DWORD type = REG_NONE;
  if (open.Get() == nullptr ||
      RegQueryValueExA(open.Get(), name.c_str(), nullptr, &type,
                       reinterpret_cast<BYTE*>(buffer.data()), &size) != ERROR_SUCCESS ||
      type != wanted) {
    return std::nullopt;
  }
  return std::string(buffer.data(), size);
}

class WindowsWorld final : public World {
 public:
  std::optional<std::string> ReadText(Root root, const std::string& key,
                                      const std::string& name) override {
    auto text = ReadValue(root, key, name, REG_SZ);
    if (text && text->ends_with('\0')) text->pop_back();
    return text;
  }

  std::optional<std::uint32_t> ReadNumber(Root root, const std::string& key,
                                          const std::string& name) override {
    const auto bytes = ReadValue(root, key, name, REG_DWORD);
    std::uint32_t number = 0;
    if (!bytes || bytes->size() != sizeof number) return std::nullopt;
    std::memcpy(&number, bytes->data(), sizeof number);
    return number;
  }

  bool WriteNumber(const std::string& key, const std::string& name, std::uint32_t number) override {
    const OpenKey open(Root::CurrentUser, key, KEY_SET_VALUE);
    return open.Get() != nullptr &&
           RegSetValueExA(open.Get(), name.c_str(), 0, REG_DWORD,
                          reinterpret_cast<const BYTE*>(&number), sizeof number) == ERROR_SUCCESS;
  }

  std::optional<std::string> ReadFile(const std::string& path) override {
    const OpenFile file(path, GENERIC_READ, OPEN_EXISTING);
    if (!file.IsOpen()) return std::nullopt;
    std::string bytes;
    std::array<char, 4096> buffer{};
    DWORD count = 0;
    while (::ReadFile(file.Get(), buffer.data(), buffer.size(), &count, nullptr) && count > 0) {
      bytes.append(buffer.data(), count);
    }
    return bytes;
  }

  bool AppendToFile(const std::string& folder, const std::string& name,
                    const std::string& bytes) override {
    CreateDirectoryA(folder.c_str(), nullptr);
    const OpenFile file(folder + "\\" + name, FILE_APPEND_DATA, OPEN_ALWAYS);
    DWORD count = 0;
    return file.IsOpen() &&
           WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
  }

  std::string LocalTime() override {
    SYSTEMTIME now;
    GetLocalTime(&now);
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04u-%02u-%02u %02u:%02u:%02u", now.wYear, now.wMonth,
                  now.wDay, now.wHour, now.wMinute, now.wSecond);
    return text.data();
  }
};

}  // namespace

std::unique_ptr<World> MakeWindowsWorld() { return std::make_unique<WindowsWorld>(); }

}  // namespace vantrel::engine
