// The one owner of system handles: move-only, closes what it holds, converts to nothing by itself.
// One alias a kind; nobody else calls a closing function.
#ifndef VANTREL_PLATFORM_WIN32_HANDLE_H_
#define VANTREL_PLATFORM_WIN32_HANDLE_H_

#include <windows.h>

#include <utility>

namespace vantrel::platform::win32 {

// Traits: `Type`, `Invalid()` and `Close(Type)`.
template <typename Traits>
class Handle {
 public:
  using Type = typename Traits::Type;

  Handle() = default;
  explicit Handle(Type handle) : handle_(handle) {}
  Handle(Handle&& other) noexcept : handle_(other.Release()) {}
  Handle& operator=(Handle&& other) noexcept {
    if (this != &other) Reset(other.Release());
    return *this;
  }
  ~Handle() { Reset(); }

  bool Valid() const { return handle_ != Traits::Invalid(); }
  Type Get() const { return handle_; }
  Type Release() { return std::exchange(handle_, Traits::Invalid()); }

  // Closes the handle held and takes the new one. The last error is left as it was.
  void Reset(Type handle = Traits::Invalid()) {
    const Type old = std::exchange(handle_, handle);
    if (old == Traits::Invalid()) return;
    const DWORD error = GetLastError();
    Traits::Close(old);
    SetLastError(error);
  }

 private:
  Type handle_ = Traits::Invalid();
};

struct KernelTraits {
  using Type = HANDLE;
  static Type Invalid() { return nullptr; }
  static void Close(Type handle) { CloseHandle(handle); }
};

struct FileTraits {
  using Type = HANDLE;
  static Type Invalid() { return INVALID_HANDLE_VALUE; }
  static void Close(Type handle) { CloseHandle(handle); }
};

using KernelHandle = Handle<KernelTraits>;  // processes, threads, mutexes
using FileHandle = Handle<FileTraits>;

}  // namespace vantrel::platform::win32

#endif  // VANTREL_PLATFORM_WIN32_HANDLE_H_
