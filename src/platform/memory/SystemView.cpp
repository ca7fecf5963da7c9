#include "platform/memory/SystemView.h"

#include <algorithm>

#include "text/Strings.h"

namespace vantrel::platform::memory {

// The sizes of the record's short and long form; any other is refused.
std::int32_t SystemView::GetVersionExA(VersionRecord& record) {
  if (record.size != 148 && record.size != 156) return 0;
  const std::uint32_t size = record.size;
  record = world_.version;
  record.size = size;
  return 1;
}

bool SystemView::PreviousInstanceRuns() {
  if (!previous_) previous_ = Claim();
  return *previous_;
}

std::string SystemView::ShortDate() {
  const LocalTime now = world_.clock.LocalNow();
  return std::to_string(now.month) + '/' + std::to_string(now.day) + '/' + std::to_string(now.year);
}

std::string SystemView::ShortTime() {
  constexpr int Noon = 12;
  const LocalTime now = world_.clock.LocalNow();
  const int hour = now.hour % Noon == 0 ? Noon : now.hour % Noon;
  const std::string minute = std::to_string(now.minute);
  return std::to_string(hour) + (minute.size() < 2 ? ":0" : ":") + minute +
         (now.hour < Noon ? " AM" : " PM");
}

bool SystemView::Claim() {
  const std::string name = text::UpperCase(self_.name);
  world_.claims.insert({name, self_.id});
  return std::any_of(world_.claims.begin(), world_.claims.end(), [&](const auto& claim) {
    return claim.first == name && claim.second != self_.id;
  });
}

}  // namespace vantrel::platform::memory
