// What a process of the in-memory Windows learns about itself and the system.
#ifndef VANTREL_PLATFORM_MEMORY_SYSTEMVIEW_H_
#define VANTREL_PLATFORM_MEMORY_SYSTEMVIEW_H_

#include <optional>

#include "platform/System.h"
#include "platform/memory/ProcessIdentity.h"
#include "platform/memory/World.h"

namespace vantrel::platform::memory {

class SystemView : public System {
 public:
  SystemView(World& world, const ProcessIdentity& self) : world_(world), self_(self) {}

  std::int32_t GetVersionExA(VersionRecord& record) override;
  std::string CommandLineTail() override { return self_.commandLineTail; }
  std::string ProgramFolder() override { return self_.folder; }
  std::string ProgramName() override { return self_.name; }
  bool PreviousInstanceRuns() override;
  std::string WindowsFolder() override { return "C:\\WINDOWS"; }
  std::string ThousandsSeparator() override { return world_.thousandsSeparator; }
  // As in the United States of America.
  std::string ShortDate() override;
  std::string ShortTime() override;
  bool HighContrast() override { return world_.highContrast; }
  std::uint32_t GetTickCount() override { return static_cast<std::uint32_t>(world_.clock.Now()); }

 private:
  bool Claim();

  World& world_;
  const ProcessIdentity& self_;
  std::optional<bool> previous_;  // absent until asked
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_SYSTEMVIEW_H_
