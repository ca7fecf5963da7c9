// Patterns of names, and texts that name what is to be wiped: a listing shows what a plain match
// finds, and nothing goes but what lies below a full path.
#include "cleaning/Attach.h"
#include "cleaning/CleaningTarget.h"
#include "cleaning/Scramble.h"
#include "cleaning/WipeFolder.h"
#include "fileutil/Listing.h"
#include "fuzz/Fuzz.h"
#include "support/ProgramFixture.h"
#include "text/Strings.h"

namespace {

using namespace vantrel;
using fuzz::Check;

constexpr const char* Names[] = {"cookies.txt", "Cookies4.dat", "cookies",
                                 "a",           "a.b.c",        "readme.TXT"};

struct Running {
  Running() {
    cleaning::AttachCleaning(copy.program);
    for (const char* name : Names) world.files.Put(std::string("C:\\d\\") + name, "x");
    Plant();
    copy.process.Trace().Stop();
  }
  void Plant() {
    world.files.Put("C:\\kept", "x");
    world.files.Put("C:\\wiped\\sub\\f", "x");
  }

  platform::memory::World world;
  test::Copy copy{world};
};

// Whether the name matches the pattern from these places on, one character after the other.
bool Matches(const std::string& name, std::size_t n, const std::string& pattern, std::size_t p) {
  if (p == pattern.size()) return n == name.size();
  if (pattern[p] == '*') {
    return Matches(name, n, pattern, p + 1) ||
           (n < name.size() && Matches(name, n + 1, pattern, p));
  }
  return n < name.size() && (pattern[p] == '?' || pattern[p] == name[n]) &&
         Matches(name, n + 1, pattern, p + 1);
}

bool IsPlainPattern(const std::string& pattern) {
  constexpr std::size_t Longest = 12;  // the plain match takes its time
  return !pattern.empty() && pattern.size() <= Longest && pattern != "*.*" &&
         pattern.find_first_not_of("abcdeikmorstx.*?4ABCDEIKMORSTX") == std::string::npos &&
         pattern.back() != '.';
}

void CheckListing(Running& running, const std::string& pattern) {
  const fileutil::Listing listing =
      fileutil::ListFiles(running.copy.program.platform.folders, "C:\\d\\" + pattern, 0);
  if (!IsPlainPattern(pattern)) return;
  std::size_t expected = 0;
  for (const char* name : Names) {
    if (Matches(text::LowerCase(name), 0, text::LowerCase(pattern), 0)) ++expected;
  }
  Check(listing.Entries.size() == expected, "a listing shows what a plain match finds");
}

void CheckTarget(Running& running, const std::string& target) {
  cleaning::WipeFolder(running.copy.program, target);
  cleaning::ScrambleAndKill(running.copy.program, target);
  const bool isTarget = cleaning::IsCleaningTarget(target);
  Check(isTarget || running.world.files.IsFile("C:\\wiped\\sub\\f"), "no other text wipes");
  Check(isTarget || running.world.files.IsFile("C:\\kept"), "no other text deletes");
  Check(running.world.files.IsFolder("C:\\wiped"), "a wiped folder stays");
  Check(!isTarget || target.size() > 3, "a root is no target");
  running.Plant();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const std::string pattern = input.Text();
  CheckListing(running, pattern);
  const std::string target = input.Rest();
  // The listed folder is to stay as it is.
  if (text::LowerCase(target).find("d") == std::string::npos) CheckTarget(running, target);
  return 0;
}
