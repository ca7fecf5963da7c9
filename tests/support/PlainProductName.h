// The product name of a library in its plain form: the steps one by one, on the whole file as one
// text with 1-based positions, 0 for not found. What the quick search is compared with.
#ifndef VANTREL_TESTS_SUPPORT_PLAINPRODUCTNAME_H_
#define VANTREL_TESTS_SUPPORT_PLAINPRODUCTNAME_H_

#include <string>

namespace vantrel::test::plain {

class ProductName {
 public:
  std::string Of(const std::string& file) {
    std::size_t start = Find(1, file, Wide("StringFileInfo"));
    std::size_t key = 0;
    std::size_t offset = 26;
    if (start != 0) {
      key = Find(start, file, Wide("ProductName"));
    } else {
      start = Find(1, file, "StringFileInfo");
      if (start == 0) start = 1;
      key = Find(start, file, "ProductName");
      offset = 12;
    }
    if (key == 0) return "";
    const std::size_t value = key + offset;
    std::size_t end = Find(value, file, std::string(3, '\0'));
    if (end == 0) return "";
    if (file.substr(value - 1, end - value).find("ProductVersion") != std::string::npos) {
      end = Guarded(file, value, end);
      ++fallbacks_;
    }
    std::string name = file.substr(value - 1, end - value);
    std::erase(name, '\0');
    return name;
  }

  // How often a value ran on into the next entry.
  int Fallbacks() const { return fallbacks_; }

 private:
  static std::size_t Find(std::size_t from, const std::string& text, const std::string& what) {
    if (from < 1 || from > text.size()) return 0;
    const std::size_t at = text.find(what, from - 1);
    return at == std::string::npos ? 0 : at + 1;
  }
  // Type word and key in 16-bit characters, without the last high byte.
  static std::string Wide(const std::string& key) {
    std::string wide(1, '\1');
    for (const char c : key) {
      wide += '\0';
      wide += c;
    }
    return wide;
  }
  static std::size_t Guarded(const std::string& file, std::size_t value, std::size_t end) {
    for (std::size_t i = 1; i <= 255 && value + i <= file.size(); ++i) {
      if (static_cast<unsigned char>(file[value + i - 1]) < 32) return value + i - 1;
    }
    return end;
  }

  int fallbacks_ = 0;
};

}  // namespace vantrel::test::plain

#endif  // VANTREL_TESTS_SUPPORT_PLAINPRODUCTNAME_H_
