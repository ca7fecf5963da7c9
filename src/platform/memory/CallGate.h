// Where every call of one process passes on its way into the in-memory Windows: it counts the call,
// lets the plan fail it, and writes the traces. Arguments become text only while a trace records.
#ifndef VANTREL_PLATFORM_MEMORY_CALLGATE_H_
#define VANTREL_PLATFORM_MEMORY_CALLGATE_H_

#include <concepts>
#include <string>
#include <string_view>

#include "platform/memory/Calls.h"

namespace vantrel::platform::memory {

// In each function `act` makes the call, and `shown` are the arguments as the trace shows them, in
// this order: a std::string in double quotes, a literal bare, a number in decimal, and what has a
// member Text() as that says. An argument without text leaves no blank.
class CallGate {
 public:
  explicit CallGate(Trace& shared) : shared_(shared) {}

  FaultPlan faults;
  Trace trace;  // this process's calls alone

  // A call with a result: `onFault` turns the planned code into what the call gives when it fails.
  // The line is written when the call ends.
  template <typename Act, typename OnFault, typename... Shown>
  auto Run(std::string_view name, Act act, OnFault onFault, const Shown&... shown)
      -> decltype(act()) {
    using Result = decltype(act());
    const auto fault = faults.Count(name);
    if (!Records()) return fault ? Result(onFault(*fault)) : act();
    // Before the call, which may close what its arguments name.
    const std::string line = Line(name, shown...);
    Result result = fault ? Result(onFault(*fault)) : act();
    Add(line + " -> " + Show(result));
    return result;
  }

  // A call that gives an error code.
  template <typename Act, typename... Shown>
  std::int32_t Code(std::string_view name, Act act, const Shown&... shown) {
    return Run(
        name, act, [](std::int32_t code) { return code; }, shown...);
  }

  // A call that gives false, 0 or no handle when it fails.
  template <typename Act, typename... Shown>
  auto Value(std::string_view name, Act act, const Shown&... shown) -> decltype(act()) {
    return Run(
        name, act, [](std::int32_t) { return decltype(act()){}; }, shown...);
  }

  // A call that cannot fail.
  template <typename Act, typename... Shown>
  auto Sure(std::string_view name, Act act, const Shown&... shown) -> decltype(act()) {
    return Run(
        name, act, [&](std::int32_t) { return act(); }, shown...);
  }

  // A call without a result: a failing one has no effect. The line is written when it begins.
  template <typename Act, typename... Shown>
  void Void(std::string_view name, Act act, const Shown&... shown) {
    const bool fails = faults.Count(name).has_value();
    if (Records()) Add(Line(name, shown...));
    if (!fails) act();
  }

 private:
  static std::string Show(bool result) { return result ? "true" : "false"; }
  static std::string Show(const std::string& text) { return '"' + text + '"'; }
  static std::string Show(const char* text) { return text; }
  template <std::integral Number>
  static std::string Show(Number number) {
    return std::to_string(number);
  }
  template <typename Named>
  requires requires(const Named& named) { named.Text(); }
  static std::string Show(const Named& named) { return named.Text(); }

  template <typename... Shown>
  static std::string Line(std::string_view name, const Shown&... shown) {
    std::string line(name);
    (Append(line, Show(shown)), ...);
    return line;
  }
  static void Append(std::string& line, const std::string& text) {
    if (!text.empty()) line += ' ' + text;
  }

  bool Records() const { return trace.Records() || shared_.Records(); }
  void Add(const std::string& line) {
    trace.Add(line);
    shared_.Add(line);
  }

  Trace& shared_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_CALLGATE_H_
