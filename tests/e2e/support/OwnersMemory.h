// Memory in another process, for messages that point to what they ask for.
#ifndef VANTREL_TESTS_E2E_SUPPORT_OWNERSMEMORY_H_
#define VANTREL_TESTS_E2E_SUPPORT_OWNERSMEMORY_H_

#include <windows.h>

namespace vantrel::e2e {

class OwnersMemory {
 public:
  OwnersMemory(HANDLE process, SIZE_T size)
      : process_(process),
        address_(VirtualAllocEx(process, nullptr, size, MEM_COMMIT, PAGE_READWRITE)) {}
  OwnersMemory(const OwnersMemory&) = delete;
  OwnersMemory& operator=(const OwnersMemory&) = delete;
  ~OwnersMemory() { VirtualFreeEx(process_, address_, 0, MEM_RELEASE); }

  // As the parameter of a message.
  LPARAM Address() const { return reinterpret_cast<LPARAM>(address_); }
  void Write(const void* data, SIZE_T size) const {
    WriteProcessMemory(process_, address_, data, size, nullptr);
  }
  void ReadInto(void* data, SIZE_T size) const {
    ReadProcessMemory(process_, address_, data, size, nullptr);
  }

 private:
  HANDLE process_;
  void* address_;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_OWNERSMEMORY_H_
