#include "engine/Options.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>
#include <variant>

namespace vantrel::engine {

const char* const Usage =
    "usage: engine-double [OPTION...]\n"
    "Stands in for the blocking engine: waits for its entry in the registry, then counts.\n"
    "\n"
    "  --rate N                  blocks a second, 1 to 10000 (default 5)\n"
    "  --seconds N               ends after N seconds at the latest (default 3600)\n"
    "  --total N                 ends after N blocks\n"
    "  --once                    counts each blocked kind once, on each site, and ends\n"
    "  --site NAME               the page's site, for the allow list; may be given again\n"
    "  --limit N                 holds each counter at N (default 32767, the highest shown)\n"
    "  --obey-gdisabled yes|no   rests while GDisabled is 1 (default no)\n"
    "  --verbose                 tells each block\n"
    "  --help                    prints this\n"
    "\n"
    "Ends with 0 if the entry was there, with 1 if it never came, with 2 on a bad argument.\n";

namespace {

struct NumberOption {
  std::uint32_t Options::*target;
  std::uint32_t lowest;
  std::uint32_t highest;
};
struct SwitchOption {
  bool Options::*target;
};
struct YesNoOption {
  bool Options::*target;
};
struct ListOption {
  std::vector<std::string> Options::*target;
};

struct OptionRow {
  std::string_view name;
  std::variant<NumberOption, SwitchOption, YesNoOption, ListOption> kind;
};

constexpr std::uint32_t Highest = 0xFFFFFFFF;

constexpr std::array<OptionRow, 9> Rows = {{
    {"--rate", NumberOption{&Options::rate, 1, 10000}},
    {"--seconds", NumberOption{&Options::seconds, 1, 1000000}},
    {"--total", NumberOption{&Options::total, 1, Highest}},
    {"--limit", NumberOption{&Options::limit, 1, Highest}},
    {"--once", SwitchOption{&Options::once}},
    {"--verbose", SwitchOption{&Options::verbose}},
    {"--help", SwitchOption{&Options::help}},
    {"--obey-gdisabled", YesNoOption{&Options::obeyDisabled}},
    {"--site", ListOption{&Options::sites}},
}};

const OptionRow* FindRow(std::string_view name) {
  for (const OptionRow& row : Rows) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

std::optional<std::uint32_t> Number(const std::string& text, const NumberOption& option) {
  std::uint32_t number = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  const bool whole = result.ec == std::errc() && result.ptr == end;
  if (!whole || number < option.lowest || number > option.highest) return std::nullopt;
  return number;
}

// Each stores the argument's value; false if it is no value of the option.
bool Store(Options& options, const NumberOption& option, const std::string& value) {
  const auto number = Number(value, option);
  if (number) options.*option.target = *number;
  return number.has_value();
}

bool Store(Options& options, const SwitchOption& option, const std::string&) {
  return options.*option.target = true;
}

bool Store(Options& options, const YesNoOption& option, const std::string& value) {
  options.*option.target = value == "yes";
  return value == "yes" || value == "no";
}

bool Store(Options& options, const ListOption& option, const std::string& value) {
  (options.*option.target).push_back(value);
  return !value.empty();
}

bool TakesValue(const OptionRow& row) { return !std::holds_alternative<SwitchOption>(row.kind); }

}  // namespace

ParsedOptions ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    const std::string& name = arguments[index];
    const OptionRow* row = FindRow(name);
    if (row == nullptr) return {{}, "unknown argument '" + name + "'"};
    std::string value;
    if (TakesValue(*row)) {
      if (index + 1 == arguments.size()) return {{}, name + " needs a value"};
      value = arguments[++index];
    }
    const bool stored =
        std::visit([&](const auto& kind) { return Store(options, kind, value); }, row->kind);
    if (!stored) return {{}, "'" + value + "' is no value of " + name};
  }
  return {options, {}};
}

}  // namespace vantrel::engine
