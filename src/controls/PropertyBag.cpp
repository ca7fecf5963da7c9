#include "controls/PropertyBag.h"

#include <algorithm>

#include "text/Strings.h"

namespace vantrel::controls {
namespace {

template <class Entries>
auto FindEntry(Entries& entries, std::string_view name) {
  return std::find_if(entries.begin(), entries.end(), [name](const PropertyBag::Entry& entry) {
    return text::EqualIgnoringCase(entry.Name, name);
  });
}

}  // namespace

bool PropertyBag::Contains(std::string_view name) const {
  return FindEntry(entries_, name) != entries_.end();
}

std::string PropertyBag::ReadProperty(std::string_view name, const std::string& defaultText) const {
  const auto found = FindEntry(entries_, name);
  return found == entries_.end() ? defaultText : found->Text;
}

void PropertyBag::WriteProperty(std::string_view name, const std::string& text,
                                const std::string& defaultText) {
  if (text != defaultText) WriteProperty(name, text);
}

void PropertyBag::WriteProperty(std::string_view name, const std::string& text) {
  const auto found = FindEntry(entries_, name);
  if (found == entries_.end()) {
    entries_.push_back({std::string(name), text});
  } else {
    found->Text = text;
  }
}

}  // namespace vantrel::controls
