// The real Windows behind the platform's interfaces. The adapters forward and decide nothing; they
// live as long as the object made here.
#ifndef VANTREL_PLATFORM_WIN32_WIN32PLATFORM_H_
#define VANTREL_PLATFORM_WIN32_WIN32PLATFORM_H_

#include <memory>

#include "platform/Platform.h"

namespace vantrel::platform::win32 {

class Win32Platform {
 public:
  virtual ~Win32Platform() = default;

  virtual platform::Platform Platform() = 0;
};

// A claim of the program's name as a running instance is held until the object dies.
std::unique_ptr<Win32Platform> MakeWin32Platform();

}  // namespace vantrel::platform::win32

#endif  // VANTREL_PLATFORM_WIN32_WIN32PLATFORM_H_
