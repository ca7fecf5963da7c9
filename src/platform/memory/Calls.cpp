#include "platform/memory/Calls.h"

#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {
namespace {

std::string NameOf(const std::string& line) { return line.substr(0, line.find(' ')); }

}  // namespace

std::vector<std::string> Trace::LinesOf(const std::string& name) const {
  std::vector<std::string> found;
  for (const std::string& line : lines_) {
    if (NameOf(line) == name) found.push_back(line);
  }
  return found;
}

std::vector<std::string> Trace::Names() const {
  std::vector<std::string> names;
  for (const std::string& line : lines_) names.push_back(NameOf(line));
  return names;
}

void FaultPlan::FailNthCall(std::size_t n, std::int32_t errorCode) {
  Require(n > 0, "calls count from 1");
  failing_[calls_ + n] = errorCode;
}

void FaultPlan::FailCall(const std::string& name, std::size_t n, std::int32_t errorCode) {
  Require(n > 0, "calls count from 1");
  failingOf_[name][CallsOf(name) + n] = errorCode;
}

void FaultPlan::FailEvery(const std::string& name, std::int32_t errorCode) {
  failingEvery_[name] = errorCode;
}

void FaultPlan::Clear() {
  failing_.clear();
  failingOf_.clear();
  failingEvery_.clear();
}

std::size_t FaultPlan::CallsOf(const std::string& name) const {
  const auto found = callsOf_.find(name);
  return found == callsOf_.end() ? 0 : found->second;
}

std::optional<std::int32_t> FaultPlan::Count(const std::string& name) {
  const std::size_t number = ++calls_;
  const std::size_t numberOf = ++callsOf_[name];
  std::optional<std::int32_t> code;
  if (const auto every = failingEvery_.find(name); every != failingEvery_.end()) {
    code = every->second;
  }
  if (const auto named = failingOf_.find(name); named != failingOf_.end()) {
    const auto found = named->second.find(numberOf);
    if (found != named->second.end()) code = found->second;
  }
  if (const auto found = failing_.find(number); found != failing_.end()) code = found->second;
  failed_ += code.has_value() ? 1 : 0;
  return code;
}

}  // namespace vantrel::platform::memory
