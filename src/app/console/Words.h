// Lines of the console in both directions: a typed line as words, what a word says as a number or a
// name, and any bytes as one printable line of text.
#ifndef VANTREL_APP_CONSOLE_WORDS_H_
#define VANTREL_APP_CONSOLE_WORDS_H_

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::console {

// Why a command could not be done, in one line for the user.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

inline constexpr std::size_t LongestLine = 65536;

// The words of a line, separated by blanks and tabs. A word in double quotes may hold blanks and
// may be empty; two double quotes within it stand for one. A line whose first word begins with '#'
// has no words. CommandError for an open quote, for anything but a blank behind a closing one, for
// a NUL, and for a line longer than LongestLine.
Words SplitWords(std::string_view line);

// The words with the separator between them.
std::string Joined(const Words& words, const std::string& separator = " ");

// What `text`, a function or a member, gives for each row.
template <class Rows, class Text>
Words Texts(const Rows& rows, Text text) {
  Words texts;
  for (const auto& row : rows) texts.emplace_back(std::invoke(text, row));
  return texts;
}

// The text on one line, in printable ASCII: a carriage return, line feed and tab as \r, \n and \t,
// every other unprintable byte as \xNN.
std::string Printable(std::string_view text);
// The same in double quotes.
std::string Quoted(std::string_view text);
// The same of the beginning of what may be long.
std::string Brief(std::string_view text);

// A whole number between the bounds, decimal or hexadecimal behind "0x"; CommandError, which calls
// it by `what`, for anything else.
long long ParseNumber(const std::string& word, long long least, long long most,
                      const std::string& what);

// Names are compared without regard to case. Empty ones are no choices, equal ones in a row
// are one choice, and nothing begins with the empty text.
bool BeginsWith(std::string_view name, std::string_view beginning);
// The 0-based place of the name that equals `wanted`, or that alone begins with it; otherwise
// refused.
std::size_t PickName(const std::string& kind, const std::string& wanted, const Words& names);
// CommandError that calls the names' kind by `kind`: more than one fits, or none does; then with
// the nearest of all names, or where none is near, all of them unless there are many.
[[noreturn]] void RefuseName(const std::string& kind, const std::string& wanted,
                             const Words& fitting, const Words& all);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_WORDS_H_
