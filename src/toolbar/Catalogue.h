// The entries that the browser toolbar can show. Their numbers are the stored form of a layout; a
// caption is also the key of the entry's picture.
#ifndef VANTREL_TOOLBAR_CATALOGUE_H_
#define VANTREL_TOOLBAR_CATALOGUE_H_

#include <array>
#include <cstddef>
#include <string>

namespace vantrel::toolbar {

struct Entry {
  int Number;
  const char* Caption;
};

// A separator is an entry of its own and stands on the toolbar once at most. The spelling is meant.
inline constexpr auto Catalogue = std::to_array<Entry>({
    {1, "Home"},          {2, "Seperator"},         {3, "Clean"},
    {4, "Seperator"},     {5, "Refresh"},           {6, "Seperator"},
    {7, "Add Links"},     {8, "Seperator"},         {9, "On/Off"},
    {10, "Seperator"},    {11, "Toolbar Settings"}, {12, "Notification"},
    {13, "Graph"},        {14, "IE Plugins"},       {15, "IE Settings"},
    {16, "Seperator"},    {17, "Options"},          {18, "Seperator"},
    {19, "Help Vantrel"},
});

constexpr bool IsEntry(int number) {
  return number >= 1 && number <= static_cast<int>(Catalogue.size());
}

// The entry of a number that IsEntry takes.
constexpr const Entry& EntryOf(int number) {
  return Catalogue[static_cast<std::size_t>(number) - 1];
}

// The key of an entry's row in either list, e.g. "B5"; any number makes one.
inline std::string RowKey(int number) { return "B" + std::to_string(number); }

namespace checks {

// What EntryOf relies on: each number stands at its place.
constexpr bool NumbersContiguous() {
  for (std::size_t place = 0; place < Catalogue.size(); ++place) {
    if (Catalogue[place].Number != static_cast<int>(place) + 1) return false;
  }
  return true;
}

constexpr bool CaptionsFilled() {
  for (const Entry& entry : Catalogue) {
    if (entry.Caption[0] == '\0') return false;
  }
  return true;
}

static_assert(Catalogue.size() == 19);
static_assert(NumbersContiguous());
static_assert(CaptionsFilled());

}  // namespace checks
}  // namespace vantrel::toolbar

#endif  // VANTREL_TOOLBAR_CATALOGUE_H_
