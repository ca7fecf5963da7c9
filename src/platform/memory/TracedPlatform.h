// The platform with every call counted, traced and open to planned failures: one decorator a family
// over the family's interface, which passes each call through the process's gate. What lies below
// knows of neither; it may be the in-memory Windows or any other.
//
// A new operation is one override in its family's decorator (TracedPlatform.cpp) and its name in
// CallNames.h. A new family is a class derived from Traced<Family> there and a line in Decorators.
#ifndef VANTREL_PLATFORM_MEMORY_TRACEDPLATFORM_H_
#define VANTREL_PLATFORM_MEMORY_TRACEDPLATFORM_H_

#include <functional>
#include <memory>
#include <string>

#include "platform/Platform.h"
#include "platform/memory/CallGate.h"

namespace vantrel::platform::memory {

// What the trace calls a handle; empty, it shows the number. Asked only while a trace records.
struct HandleNames {
  std::function<std::string(KeyHandle)> key;        // the key's path from the root on
  std::function<std::string(WindowHandle)> window;  // the control's name
  std::function<std::string(ModuleHandle)> module;  // the library's path
  std::function<std::string(EntryAddress)> entry;   // the entry's name
};

class TracedPlatform {
 public:
  TracedPlatform(const platform::Platform& next, CallGate& gate, HandleNames names);
  ~TracedPlatform();

  platform::Platform Platform() const;

 private:
  struct Decorators;

  HandleNames names_;
  std::unique_ptr<Decorators> decorators_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_TRACEDPLATFORM_H_
