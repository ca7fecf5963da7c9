// Lines of the console in both directions: a typed line as words, and any bytes as one printable
// line of text.
#ifndef VANTREL_APP_CONSOLE_WORDS_H_
#define VANTREL_APP_CONSOLE_WORDS_H_

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

inline constexpr std::size_t LongestLine = 65536;

// The words of a line, separated by blanks and tabs. A word in double quotes may hold blanks and
// may be empty; two double quotes within it stand for one. A line whose first word begins with '#'
// has no words. CommandError for an open quote, for anything but a blank behind a closing one, for
// a NUL, and for a line longer than `longest`.
std::vector<std::string> SplitWords(std::string_view line, std::size_t longest = LongestLine);

// The words with a blank between them.
std::string Joined(const std::vector<std::string>& words);

// The text on one line, in printable ASCII: a carriage return, line feed and tab as \r, \n and \t,
// every other unprintable byte as \xNN.
std::string Printable(std::string_view text);

// The same in double quotes.
std::string Quoted(std::string_view text);

// A whole number between the bounds, decimal or hexadecimal behind "0x"; CommandError, which calls
// it by `what`, for anything else.
long long ParseNumber(const std::string& word, long long least, long long most, const char* what);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_WORDS_H_
