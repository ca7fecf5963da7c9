// The kinds of kernel handles that the adapters own.
#ifndef VANTREL_PLATFORM_WIN32_HANDLE_H_
#define VANTREL_PLATFORM_WIN32_HANDLE_H_

#include <windows.h>

#include <cstdint>

#include "text/Owned.h"

namespace vantrel::platform::win32 {

// The code of this thread's last failed call.
inline std::int32_t LastError() { return static_cast<std::int32_t>(GetLastError()); }

// Closing leaves the last error as it was: it is often asked for behind a handle's end.
inline void CloseKeepingError(HANDLE handle) {
  const DWORD error = GetLastError();
  CloseHandle(handle);
  SetLastError(error);
}

template <typename Traits>
using Handle = text::Owned<Traits>;

struct KernelTraits {
  using Type = HANDLE;
  static Type Invalid() { return nullptr; }
  static void Close(Type handle) { CloseKeepingError(handle); }
};

struct FileTraits {
  using Type = HANDLE;
  static Type Invalid() { return INVALID_HANDLE_VALUE; }
  static void Close(Type handle) { CloseKeepingError(handle); }
};

struct SearchTraits {
  using Type = HANDLE;
  static Type Invalid() { return INVALID_HANDLE_VALUE; }
  static void Close(Type handle) { FindClose(handle); }
};

using KernelHandle = Handle<KernelTraits>;  // processes, threads, mutexes
using FileHandle = Handle<FileTraits>;
using SearchHandle = Handle<SearchTraits>;  // listings of folders

}  // namespace vantrel::platform::win32

#endif  // VANTREL_PLATFORM_WIN32_HANDLE_H_
