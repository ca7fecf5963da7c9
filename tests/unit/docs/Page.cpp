#include "Page.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace vantrel::test {
namespace {

std::string Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool IsRow(const std::string& line) { return Trimmed(line).starts_with('|'); }

Row CellsOf(const std::string& line) {
  std::istringstream stream(Trimmed(line).substr(1));
  Row cells;
  for (std::string cell; std::getline(stream, cell, '|');) cells.push_back(Trimmed(cell));
  return cells;
}

}  // namespace

std::string ReadDocument(const std::string& name) {
  std::ifstream file(std::string(VANTREL_DOCS_FOLDER) + "/" + name, std::ios::binary);
  if (!file) throw std::runtime_error("there is no docs/" + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

Page::Page(const std::string& name) : text_(ReadDocument(name)) {
  std::istringstream stream(text_);
  for (std::string line; std::getline(stream, line);) lines_.push_back(line);
}

Table Page::TableBehind(const std::string& heading, std::size_t number) const {
  auto at = std::find_if(lines_.begin(), lines_.end(), [&](const std::string& line) {
    return line.starts_with('#') && line.ends_with(" " + heading);
  });
  for (std::size_t seen = 0;; ++seen) {
    at = std::find_if(at, lines_.end(), IsRow);
    if (at == lines_.end()) throw std::runtime_error("no table behind " + heading);
    const auto end = std::find_if_not(at, lines_.end(), IsRow);
    if (seen == number) {
      Table table;
      std::transform(at + 2, end, std::back_inserter(table), CellsOf);
      return table;
    }
    at = end;
  }
}

std::vector<std::string> Page::Fenced(std::size_t number) const {
  const auto isFence = [](const std::string& line) { return line.starts_with("```"); };
  auto at = lines_.begin();
  for (std::size_t seen = 0; at != lines_.end(); ++seen) {
    const auto open = std::find_if(at, lines_.end(), isFence);
    if (open == lines_.end()) break;
    const auto close = std::find_if(open + 1, lines_.end(), isFence);
    if (seen == number) return {open + 1, close};
    at = close + 1;
  }
  throw std::runtime_error("too few fenced blocks");
}

std::vector<std::string> Codes(std::string_view text) {
  std::vector<std::string> codes;
  for (auto open = text.find('`'); open != std::string_view::npos;) {
    const auto close = text.find('`', open + 1);
    if (close == std::string_view::npos) break;
    codes.emplace_back(text.substr(open + 1, close - open - 1));
    open = text.find('`', close + 1);
  }
  return codes;
}

std::string Code(std::string_view text) {
  const auto codes = Codes(text);
  if (codes.size() != 1) throw std::runtime_error("not one text in " + std::string(text));
  return codes.front();
}

}  // namespace vantrel::test
