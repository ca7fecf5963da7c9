// The registry as the system offers it: the calls that the program makes, by their own names, with
// plain integers and byte strings. It stores and returns exactly the bytes it is given; what they
// mean is the settings' business. Every call returns 0 for success or a system error code, never
// throws, and leaves its outputs alone on failure unless the call says otherwise. Key and value
// names compare without regard to case.
#ifndef VANTREL_PLATFORM_REGISTRY_H_
#define VANTREL_PLATFORM_REGISTRY_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/Handles.h"

namespace vantrel::platform {

inline constexpr KeyHandle HKeyClassesRoot = 0x80000000U;
inline constexpr KeyHandle HKeyCurrentUser = 0x80000001U;
inline constexpr KeyHandle HKeyLocalMachine = 0x80000002U;

inline constexpr std::uint32_t RegSz = 1;
inline constexpr std::uint32_t RegExpandSz = 2;
inline constexpr std::uint32_t RegBinary = 3;
inline constexpr std::uint32_t RegDword = 4;
inline constexpr std::uint32_t RegMultiSz = 7;

inline constexpr std::uint32_t KeyAllAccess = 0xF003F;
inline constexpr std::uint32_t KeyRead = 0x20019;
inline constexpr std::uint32_t KeyShortAccess = 0x3F;

class Registry {
 public:
  virtual ~Registry() = default;

  // Opens an existing key with the access mask. 2 if it does not exist, 5 if access is refused.
  // The caller closes `opened`.
  virtual std::int32_t RegOpenKeyExA(KeyHandle root, const std::string& subkey,
                                     std::uint32_t access, KeyHandle& opened) = 0;

  // The old form: opens with the system's default access (an empty subkey gives the root again).
  virtual std::int32_t RegOpenKeyA(KeyHandle root, const std::string& subkey,
                                   KeyHandle& opened) = 0;

  // Opens the key, creating it and its missing parents. `withSecurityRecord` passes a zeroed
  // security-attributes record rather than none. The caller closes `opened`.
  virtual std::int32_t RegCreateKeyExA(KeyHandle root, const std::string& subkey,
                                       std::uint32_t access, bool withSecurityRecord,
                                       KeyHandle& opened) = 0;

  // Copies a value's bytes into `buffer`. On entry `length` is the space in it, at most its size;
  // on return the value's byte length, also with 234 (the value is longer than that, the
  // buffer's content is then undefined). 2 if there is no such value. An empty name is the key's
  // default value.
  virtual std::int32_t RegQueryValueExA(KeyHandle key, const std::string& valueName,
                                        std::uint32_t& type, std::span<char> buffer,
                                        std::uint32_t& length) = 0;

  // Stores exactly these bytes under the type; no terminator is added.
  virtual std::int32_t RegSetValueExA(KeyHandle key, const std::string& valueName,
                                      std::uint32_t type, std::string_view data) = 0;

  // Deletes a key without subkeys: 2 if there is none, 5 if it has subkeys.
  virtual std::int32_t RegDeleteKeyA(KeyHandle root, const std::string& subkey) = 0;

  virtual std::int32_t RegDeleteValueA(KeyHandle key, const std::string& valueName) = 0;

  // The index-th value: name and data, each cut to what the call returned. `name` and `data` hold
  // at most `nameRoom` and `dataRoom` bytes (the name's with its terminator). 259 past the last
  // value, 234 if either does not fit, 5 on a key opened without query access.
  virtual std::int32_t RegEnumValueA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                                     std::string& name, std::uint32_t& type, std::uint32_t dataRoom,
                                     std::string& data) = 0;

  // The name of the index-th subkey. 259 past the last, 234 if it does not fit into `nameRoom`.
  virtual std::int32_t RegEnumKeyA(KeyHandle key, std::uint32_t index, std::uint32_t nameRoom,
                                   std::string& name) = 0;

  // 6 for a handle that is not open, 0 among them.
  virtual std::int32_t RegCloseKey(KeyHandle key) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_REGISTRY_H_
