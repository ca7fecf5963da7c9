// 8-bit text as the program handles it: bytes in the system code page, blanks trimmed, ASCII
// letters folded. Nothing here knows an encoding.
#ifndef VANTREL_TEXT_STRINGS_H_
#define VANTREL_TEXT_STRINGS_H_

#include <string>
#include <string_view>
#include <vector>

namespace vantrel::text {

// The text without the blanks (code 32 only) at both ends.
std::string Trim(std::string_view text);
// The same as a part of the text.
std::string_view Trimmed(std::string_view text);

// The text with the ASCII letters in lower, or upper, case.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

// Whether both are the same but for the case of ASCII letters.
bool EqualIgnoringCase(std::string_view one, std::string_view other);

// The pieces between the delimiters; a text without one is one piece, the empty text none.
std::vector<std::string> Split(std::string_view text, char delimiter);

// Cuts the first line off the text and returns it without its line end, which is a line feed and a
// carriage return in front of it, if any.
std::string_view TakeLine(std::string_view& text);

// A whole number in the picture "###,###,###0": grouped by thousands with the separator, at least
// one digit, a fraction rounded half away from zero.
std::string GroupedNumber(double number, std::string_view separator);

}  // namespace vantrel::text

#endif  // VANTREL_TEXT_STRINGS_H_
