#include "support/CaseRows.h"

#include <cstdlib>

namespace vantrel::test {
namespace {

// "build\unit-tests-text.exe" is "unit-tests-text".
std::string BareName(const std::string& program) {
  std::string name = program.substr(program.find_last_of("/\\") + 1);
  if (name.ends_with(".exe")) name.resize(name.size() - 4);
  return name;
}

std::string NameOf(const testing::TestInfo& test) {
  return std::string(test.test_suite_name()) + "." + test.name();
}

const char* StateOf(const testing::TestResult& result) {
  if (result.Failed()) return "failed";
  return result.Skipped() ? "skipped" : "passed";
}

std::string OneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    if (c == '\n') {
      line += "\\n";
    } else if (c != '\r') {
      line += c == '\t' ? ' ' : c;
    }
  }
  return line;
}

std::string Failures(const testing::TestResult& result) {
  std::string text;
  for (int index = 0; index < result.total_part_count(); ++index) {
    const testing::TestPartResult& part = result.GetTestPartResult(index);
    if (!part.failed()) continue;
    const char* file = part.file_name() == nullptr ? "" : part.file_name();
    text +=
        std::string(file) + ":" + std::to_string(part.line_number()) + "\n" + part.message() + "\n";
  }
  return text;
}

}  // namespace

CaseRows::CaseRows(const std::string& program) {
  const char* folder = std::getenv("VANTREL_TEST_ROWS");
  if (folder == nullptr) return;
  file_.open(std::string(folder) + "/" + BareName(program) + ".rows",
             std::ios::binary | std::ios::app);
}

void CaseRows::OnTestStart(const testing::TestInfo& test) {
  file_ << "begun\t" << NameOf(test) << std::endl;
}

void CaseRows::OnTestEnd(const testing::TestInfo& test) {
  const testing::TestResult& result = *test.result();
  file_ << StateOf(result) << '\t' << NameOf(test) << '\t'
        << static_cast<double>(result.elapsed_time()) / 1000 << '\t' << OneLine(Failures(result))
        << std::endl;
}

}  // namespace vantrel::test
