// How texts and numbers become the bytes of a value. No registry is touched here.
#ifndef VANTREL_SETTINGS_REGISTRYCONVERSIONS_H_
#define VANTREL_SETTINGS_REGISTRYCONVERSIONS_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "settings/RegistryData.h"

namespace vantrel::settings {

// The value as text, a number in decimal.
std::string AsText(const RegistryData& value);
// The value as a number. Errors 6 and 13 for a text that is no signed 32-bit number.
std::int32_t AsNumber(const RegistryData& value);

// Four bytes, the low one first.
std::string DwordBytes(std::int32_t number);

// Four bytes, the low one first, each the number modulo 256 and the number then divided by 256
// with truncation: a negative number is meant to come out other than above.
std::string DwordBytesByDivision(std::int32_t number);

// The first four bytes as a signed number, missing ones as 0.
std::int32_t NumberFromDwordBytes(std::string_view bytes);

// A stored value's bytes as the text that ReadRegistryValue gives for the type. Error 5 for no
// bytes at all.
std::string TextFromStored(std::uint32_t type, std::string_view bytes);

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_REGISTRYCONVERSIONS_H_
