#include "statistics/BlockLog.h"

#include <optional>
#include <string>

#include "settings/Schema.h"
#include "settings/bmdlReg.h"
#include "text/Numbers.h"
#include "windows/FrmFrameGraph.h"
#include "windows/FrmFrameMain.h"

namespace vantrel::statistics {
namespace {

using program::Program;

std::string ReadCounter(Program& program, const char* name) {
  return settings::ReadRegistryValue(program.platform.registry, platform::HKeyCurrentUser,
                                     settings::BlockLogKey, name);
}

// Only the first counter is looked at.
bool BlockLogExists(Program& program) {
  return !ReadCounter(program, Counters.front().ValueName).empty();
}

void FillBoxes(Program& program) {
  for (const Counter& counter : Counters) {
    const std::string count = ReadCounter(program, counter.ValueName);
    ((*program.windows.FrmFrameGraph).*counter.Box).SetText(count);
  }
}

// The total shown, nothing if there was nothing to read.
std::optional<std::int16_t> ReadAndShow(Program& program) {
  if (!BlockLogExists(program)) return std::nullopt;
  FillBoxes(program);
  return ShowTotal(program);
}

void ZeroAndShow(Program& program) {
  for (const Counter& counter : Counters) {
    settings::WriteRegistryValue(program.platform.registry, platform::HKeyCurrentUser,
                                 settings::BlockLogKey, counter.ValueName, 0, platform::RegDword);
  }
  // The displays are meant to show the boxes, not the zeros just written.
  ShowTotal(program);
}

}  // namespace

void GetBlockLog(Program& program) { ReadAndShow(program); }

void ReadBlockLogAtStart(Program& program) {
  if (const auto total = ReadAndShow(program)) program.TotalBlocked = *total;
}

void FrmFrameLog::GetBlockLog(Program& program) {
  if (!BlockLogExists(program)) ZeroAndShow(program);
}

void ClearBlockLog(Program& program) {
  if (BlockLogExists(program)) ZeroAndShow(program);
}

std::int16_t TotalOfBoxes(Program& program) {
  std::int32_t sum = 0;
  for (const Counter& counter : Counters) {
    sum += text::CInt(((*program.windows.FrmFrameGraph).*counter.Box).Text());
  }
  return static_cast<std::int16_t>(sum);
}

std::int16_t ShowTotal(Program& program) {
  const std::int16_t total = TotalOfBoxes(program);
  const std::string digits = std::to_string(total);
  program.windows.FrmFrameGraph->lbltotallog.SetCaption("Total: " + digits + " Ads blocked.");
  program.windows.FrmFrameMain->lblno.SetCaption(digits);
  return total;
}

}  // namespace vantrel::statistics
