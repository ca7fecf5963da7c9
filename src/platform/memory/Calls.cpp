#include "platform/memory/Calls.h"

#include "platform/memory/CallNames.h"
#include "platform/memory/Misuse.h"

namespace vantrel::platform::memory {
namespace {

std::string NameOf(const std::string& line) { return line.substr(0, line.find(' ')); }

std::optional<std::int32_t> CodeOf(const std::map<std::size_t, std::int32_t>& failing,
                                   std::size_t number) {
  const auto found = failing.find(number);
  return found == failing.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

void Trace::Add(const std::string& line) {
  if (records_) lines_.push_back(line);
}

const std::vector<std::string>& Trace::Lines() const {
  Require(records_, "a trace is read that was not started");
  return lines_;
}

std::vector<std::string> Trace::LinesOf(const std::string& name) const {
  std::vector<std::string> found;
  for (const std::string& line : Lines()) {
    if (NameOf(line) == name) found.push_back(line);
  }
  return found;
}

std::vector<std::string> Trace::Names() const {
  std::vector<std::string> names;
  for (const std::string& line : Lines()) names.push_back(NameOf(line));
  return names;
}

FaultPlan::FaultPlan() {
  for (const std::string_view name : CallNames) names_[name];
}

FaultPlan::OneName& FaultPlan::Of(std::string_view name) {
  const auto found = names_.find(name);
  if (found == names_.end()) Misuse("no call is named " + std::string(name));
  return found->second;
}

void FaultPlan::FailNthCall(std::size_t n, std::int32_t errorCode) {
  Require(n > 0, "calls count from 1");
  failing_[calls_ + n] = errorCode;
}

void FaultPlan::FailCall(std::string_view name, std::size_t n, std::int32_t errorCode) {
  Require(n > 0, "calls count from 1");
  OneName& of = Of(name);
  of.failing[of.calls + n] = errorCode;
}

void FaultPlan::FailEvery(std::string_view name, std::int32_t errorCode) {
  Of(name).failingEvery = errorCode;
}

void FaultPlan::Clear() {
  failing_.clear();
  entriesBeforeFailure_ = 0;
  for (auto& [name, of] : names_) {
    of.failing.clear();
    of.failingEvery.reset();
  }
}

// The plan for the n-th call of all goes before that for the n-th of the name.
std::optional<std::int32_t> FaultPlan::Count(std::string_view name) {
  OneName& of = Of(name);
  std::optional<std::int32_t> code = CodeOf(failing_, ++calls_);
  const std::optional<std::int32_t> named = CodeOf(of.failing, ++of.calls);
  if (!code) code = named ? named : of.failingEvery;
  failed_ += code ? 1 : 0;
  return code;
}

}  // namespace vantrel::platform::memory
