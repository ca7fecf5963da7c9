// Where every call of one process passes: it counts the call, lets the plan fail it, and writes
// the traces.
#ifndef VANTREL_PLATFORM_MEMORY_CALLGATE_H_
#define VANTREL_PLATFORM_MEMORY_CALLGATE_H_

#include <concepts>
#include <string>

#include "platform/memory/Calls.h"

namespace vantrel::platform::memory {

class CallGate {
 public:
  explicit CallGate(Trace& shared) : shared_(shared) {}

  FaultPlan faults;
  Trace trace;  // this process's calls alone

  // Runs a call that gives a number: `onFault` turns the planned error code into what the call
  // gives when it fails. The line is written when the call ends.
  template <typename Act, typename OnFault>
  auto Run(const std::string& name, const std::string& arguments, Act act, OnFault onFault)
      -> decltype(act()) {
    const auto fault = faults.Count(name);
    auto result = fault ? onFault(*fault) : act();
    Record(name, arguments + (arguments.empty() ? "-> " : " -> ") + Show(result));
    return result;
  }

  // A call that gives an error code.
  template <typename Act>
  std::int32_t RunCode(const std::string& name, const std::string& arguments, Act act) {
    return Run(name, arguments, act, [](std::int32_t code) { return code; });
  }

  // A call without a result: a failing one has no effect. The line is written when it begins.
  template <typename Act>
  void RunVoid(const std::string& name, const std::string& arguments, Act act) {
    const bool fails = faults.Count(name).has_value();
    Record(name, arguments);
    if (!fails) act();
  }

 private:
  static std::string Show(bool result) { return result ? "true" : "false"; }
  static std::string Show(const std::string& result) { return '"' + result + '"'; }
  template <std::integral Number>
  static std::string Show(Number result) {
    return std::to_string(result);
  }

  void Record(const std::string& name, const std::string& rest) {
    const std::string line = rest.empty() ? name : name + ' ' + rest;
    trace.Add(line);
    shared_.Add(line);
  }

  Trace& shared_;
};

// A text as a trace shows it, between double quotes.
inline std::string Quoted(const std::string& text) { return '"' + text + '"'; }
// "0x" and capital hexadecimal digits.
std::string Hex(std::uint64_t number);

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_CALLGATE_H_
