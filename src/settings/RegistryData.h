// What a caller of the registry layer writes.
#ifndef VANTREL_SETTINGS_REGISTRYDATA_H_
#define VANTREL_SETTINGS_REGISTRYDATA_H_

#include <cstdint>
#include <string>
#include <variant>

namespace vantrel::settings {

// A text or a number; the type asked for decides what is stored.
using RegistryData = std::variant<std::string, std::int32_t>;

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_REGISTRYDATA_H_
