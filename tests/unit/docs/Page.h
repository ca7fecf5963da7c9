// A page of docs/, as its tests read it: tables by the heading above them, cells as texts.
#ifndef VANTREL_TESTS_UNIT_DOCS_PAGE_H_
#define VANTREL_TESTS_UNIT_DOCS_PAGE_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel::test {

using Row = std::vector<std::string>;
using Table = std::vector<Row>;

class Page {
 public:
  // Throws if there is no such file in docs/.
  explicit Page(const std::string& name);

  const std::string& Text() const { return text_; }
  // The rows, without head and rule, of the table behind the heading, which is one of its own or of
  // a section below; the first has number 0. Throws if there is none: a test must not pass over it.
  Table TableBehind(const std::string& heading, std::size_t number = 0) const;
  // The lines between the fences of the block with that number on the page.
  std::vector<std::string> Fenced(std::size_t number) const;

 private:
  std::string text_;
  std::vector<std::string> lines_;
};

// What a cell or a line has between backticks, in order.
std::vector<std::string> Codes(std::string_view text);
// The only such text; throws if there is not exactly one.
std::string Code(std::string_view text);

std::string ReadDocument(const std::string& name);

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_UNIT_DOCS_PAGE_H_
