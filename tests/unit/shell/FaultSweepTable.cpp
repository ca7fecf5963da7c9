// The table of operations in docs/reliability.md, held to what the sweeps of this run have counted.
// To write it anew after a change that is meant, run this program once with VANTREL_WRITE_GOLDEN=1
// in the environment, then read the difference.
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "unit/shell/FaultSweep.h"

namespace vantrel::test {
namespace {

struct Counted {
  std::size_t calls;
  std::size_t runs;
};

std::map<std::string, Counted>& Swept() {
  static std::map<std::string, Counted> swept;
  return swept;
}

std::string Table() {
  std::string table = "| operation | calls | runs |\n|---|--:|--:|\n";
  Counted all{};
  for (const auto& [operation, counted] : Swept()) {
    table += "| " + operation + " | " + std::to_string(counted.calls) + " | " +
             std::to_string(counted.runs) + " |\n";
    all.calls += counted.calls;
    all.runs += counted.runs;
  }
  return table + "| all " + std::to_string(Swept().size()) + " | " + std::to_string(all.calls) +
         " | " + std::to_string(all.runs) + " |\n";
}

// The page with the table between its head and the next empty line.
struct Page {
  explicit Page(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    const std::string all = text.str();
    const std::size_t start = all.find("| operation | calls |");
    if (start == std::string::npos) throw std::runtime_error(path + " has no table of operations");
    const std::size_t end = std::min(all.find("\n\n", start), all.size() - 1) + 1;
    before = all.substr(0, start);
    table = all.substr(start, end - start);
    behind = all.substr(end);
  }

  std::string before;
  std::string table;
  std::string behind;
};

bool IsSweep(const testing::TestSuite& suite) {
  return std::string(suite.name()).find("FaultSweep") != std::string::npos;
}

// A filter may leave sweeps out; the table has all.
bool AllSweepsRan() {
  const testing::UnitTest& program = *testing::UnitTest::GetInstance();
  for (int suite = 0; suite < program.total_test_suite_count(); ++suite) {
    const testing::TestSuite& all = *program.GetTestSuite(suite);
    if (IsSweep(all) && (all.test_to_run_count() != all.total_test_count() || all.Failed())) {
      return false;
    }
  }
  return true;
}

class TableOfOperations : public testing::Environment {
 public:
  void TearDown() override {
    if (!AllSweepsRan()) return;
    const std::string path = VANTREL_RELIABILITY_PAGE;
    const Page page(path);
    if (std::getenv("VANTREL_WRITE_GOLDEN") != nullptr) {
      std::ofstream(path, std::ios::binary) << page.before << Table() << page.behind;
      FAIL() << path << " was written anew: read the difference";
    }
    EXPECT_EQ(page.table, Table()) << "the table of operations in " << path;
  }
};

const testing::Environment* const registered =
    testing::AddGlobalTestEnvironment(std::make_unique<TableOfOperations>().release());

}  // namespace

void NoteSweep(const std::string& operation, std::size_t calls, std::size_t runs) {
  Swept()[operation] = {calls, runs};
}

}  // namespace vantrel::test
