// Lists of folders and of patterns: the cut does what a plain one does, and a search over them
// finds whole records of files that are there, or ends with one of the program's errors.
#include <algorithm>

#include "fileutil/FileSearch.h"
#include "fuzz/Fuzz.h"
#include "support/ProgramFixture.h"

namespace {

using namespace vantrel;
using fuzz::Check;

struct Running {
  Running() {
    for (const char* file : {"C:\\a\\f.txt", "C:\\a\\b\\f.txt", "C:\\a\\b\\g", "C:\\c\\f.txt"}) {
      world.files.Put(file, "x");
    }
    world.files.SetHidden("C:\\a\\b\\g", true);
    world.files.MakeLink("C:\\a\\b\\link", "C:\\a");
    copy.process.Trace().Stop();
  }

  platform::memory::World world;
  test::Copy copy{world};
};

// The elements with the position of the next one behind the last; elements are kept empty.
std::vector<std::string> PlainElements(std::string list, std::string delimiters,
                                       std::int32_t& last) {
  if (delimiters.empty()) delimiters = std::string(";\0\t\n\r", 5);
  const auto delimits = [&](char c) { return delimiters.find(c) != std::string::npos; };
  if (list.empty() || !delimits(list.back())) list += delimiters.front();
  std::vector<std::string> elements(1);
  std::size_t next = 1;
  for (std::size_t at = 0; at < list.size(); ++at) {
    if (delimits(list[at])) {
      elements.emplace_back();
      next = at + 2;
    } else {
      elements.back() += list[at];
    }
  }
  elements.pop_back();
  last = next < 3 ? -1 : static_cast<std::int32_t>(elements.size()) - 1;
  return elements;
}

void CheckCut(const std::string& list, std::string delimiters) {
  std::int32_t last = 0;
  const std::vector<std::string> plain = PlainElements(list, delimiters, last);
  std::vector<std::string> elements;
  Check(fileutil::SplitList(list, delimiters, elements) == last, "both ways give the last index");
  Check(!delimiters.empty(), "the delimiters are set");
  Check(last < 0 || elements == plain, "both ways cut the same");
}

// A path is made of the folder and the name found: where a pattern leads through a folder of its
// own, that is missing in it. This is meant.
void CheckRecord(const Running& running, const std::string& patterns,
                 const fileutil::FileSearchResult& result) {
  const auto count = static_cast<std::size_t>(result.Count);
  Check(result.Paths.size() == count && result.Sizes.size() == count &&
            result.Dates.size() == count && result.Attributes.size() == count,
        "the four collections are parallel");
  if (patterns.find_first_of("\\/") != std::string::npos) return;
  for (const std::string& path : result.Paths) {
    const bool onTheCurrentDrive = path.starts_with('\\') || path.starts_with('/');
    Check(path.find("..") != std::string::npos || onTheCurrentDrive ||
              running.world.files.Exists(path),
          "what is found is there");
  }
}

void CheckSearch(Running& running, const std::string& folders, const std::string& patterns) {
  using namespace platform;
  program::Program& program = running.copy.program;
  try {
    fileutil::FileSearchResult found;
    fileutil::SearchFiles(program, folders, patterns, AttributeDirectory, AttributeArchive, found);
    CheckRecord(running, patterns, found);
    fileutil::FindFilesIn(program, folders, patterns, AttributeHidden, found);
    fileutil::ListSubFolders(program, folders, AttributeDirectory, found);
    CheckRecord(running, patterns, found);
  } catch (const text::RuntimeError&) {
    // As the system refuses it.
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const std::string delimiters = input.Text();
  const std::string patterns = input.Text();
  const std::string folders = input.Rest();
  CheckCut(folders, delimiters);
  CheckCut(patterns, "");
  CheckSearch(running, folders, patterns);
  return 0;
}
