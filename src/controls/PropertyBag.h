// The saved properties of a control: texts by name, in the order of their writing. Names are found
// without regard to case. The bag knows no types; who reads a text converts it.
#ifndef VANTREL_CONTROLS_PROPERTYBAG_H_
#define VANTREL_CONTROLS_PROPERTYBAG_H_

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::controls {

class PropertyBag {
 public:
  struct Entry {
    std::string Name;
    std::string Text;
  };

  PropertyBag() = default;
  PropertyBag(std::initializer_list<Entry> entries) : entries_(entries) {}

  bool Contains(std::string_view name) const;
  // The text saved under the name, or the default if there is none.
  std::string ReadProperty(std::string_view name, const std::string& defaultText) const;
  // Saves the text under the name, replacing an earlier one; a text equal to the default is left
  // out.
  void WriteProperty(std::string_view name, const std::string& text,
                     const std::string& defaultText);
  // Saves the text whatever it is.
  void WriteProperty(std::string_view name, const std::string& text);

  const std::vector<Entry>& Entries() const { return entries_; }

 private:
  std::vector<Entry> entries_;
};

}  // namespace vantrel::controls

#endif  // VANTREL_CONTROLS_PROPERTYBAG_H_
