// The start of programs by one process, over the world's programs.
#ifndef VANTREL_PLATFORM_MEMORY_PROCESSESVIEW_H_
#define VANTREL_PLATFORM_MEMORY_PROCESSESVIEW_H_

#include "platform/Processes.h"
#include "platform/memory/ProcessIdentity.h"
#include "platform/memory/Programs.h"

namespace vantrel::platform::memory {

class ProcessesView : public Processes {
 public:
  ProcessesView(Programs& programs, const ProcessIdentity& self)
      : programs_(programs), self_(self) {}

  std::int32_t CreateProcessA(const std::string& application, const std::string& commandLine,
                              int showCommand) override {
    return programs_.Start(self_.id, self_.folder, application.c_str(), commandLine.c_str(),
                           showCommand);
  }

 private:
  Programs& programs_;
  const ProcessIdentity& self_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_PROCESSESVIEW_H_
