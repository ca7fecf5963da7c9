// How the console takes names: without regard to case, and any beginning that fits one name only.
// A name that fits none is answered with the ones that look most like it.
#ifndef VANTREL_APP_CONSOLE_NAMES_H_
#define VANTREL_APP_CONSOLE_NAMES_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::console {

// The number of single-character changes from one to the other, without regard to case.
std::size_t EditDistance(std::string_view one, std::string_view other);

// Up to `most` of the names, nearest first; names that have nothing in common are left out.
std::vector<std::string> Nearest(std::string_view wanted, const std::vector<std::string>& names,
                                 std::size_t most = 3);

// "; did you mean A, B or C?", or where none is near, all names unless there are many.
std::string Suggestion(std::string_view wanted, const std::vector<std::string>& names);

// The 0-based place of the name that equals `wanted`, or that alone begins with it. CommandError
// otherwise: it calls the names' kind by `kind`, and suggests.
std::size_t PickName(const std::string& kind, const std::string& wanted,
                     const std::vector<std::string>& names);

// The row of a table that is named so; its rows have a `name`.
template <class Table>
const auto& PickRow(const std::string& kind, const std::string& wanted, const Table& table) {
  std::vector<std::string> names;
  names.reserve(std::size(table));
  for (const auto& row : table) names.emplace_back(row.name);
  return table[PickName(kind, wanted, names)];
}

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_NAMES_H_
