// Conversions between text and numbers as the program's language has them. Strict conversions
// (CInt, CLng) raise type mismatch (13) for a text that is no number and overflow (6) for one
// outside the type; the lenient Val never fails.
#ifndef VANTREL_TEXT_NUMBERS_H_
#define VANTREL_TEXT_NUMBERS_H_

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel::text {

// The text as a signed 16-bit number: blanks around it, a sign, decimals (rounded half to even)
// and an exponent are accepted. Errors 13 and 6.
std::int16_t CInt(std::string_view text);

// The same as a signed 32-bit number.
std::int32_t CLng(std::string_view text);

// The number at the start of the text, blanks skipped; 0 if there is none. "&h" starts a
// hexadecimal number. Never fails.
double Val(std::string_view text);

// The same for decimal numbers alone: "&h10" starts with none and gives 0.
double DecimalVal(std::string_view text);

// The digits as an unsigned hexadecimal number; an overflow (6) beyond 32 bits, a type mismatch
// (13) for anything but hexadecimal digits or for no digit at all.
std::uint32_t HexToNumber(std::string_view digits);

// A floating-point number rounded half to even to a signed 32-bit one; overflow (6) outside.
std::int32_t RoundToLong(double number);

}  // namespace vantrel::text

#endif  // VANTREL_TEXT_NUMBERS_H_
