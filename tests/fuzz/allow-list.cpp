// Allow lists of any bytes: the quick readers and writers do what the plain ones do, a lookup finds
// nothing that the list does not have, and no box comes up.
#include "allowlist/Attach.h"
#include "allowlist/SiteFile.h"
#include "allowlist/SiteList.h"
#include "fuzz/Fuzz.h"
#include "fuzz/OneFile.h"
#include "support/PlainSiteFile.h"
#include "support/ProgramFixture.h"
#include "windows/FrmFrameAllowList.h"

namespace {

using namespace vantrel;
using fuzz::Check;

constexpr const char* Path = "C:\\Program Files\\Vantrel\\Settings\\AllowList.txt";

struct Running {
  Running() { allowlist::AttachAllowList(program); }

  platform::memory::World world;
  platform::memory::Process process{world};
  forms::headless::Toolkit toolkit{world.desktop, world.clock, process.Id()};
  fuzz::OneFile file;
  fuzz::OneFile plainFile;
  program::Program program{fuzz::WithFiles(process.Platform(), file), toolkit};
};

void CheckRows(Running& running) {
  allowlist::LoadAllowList(running.program, allowlist::LoadFailure::IsSilent);
  const test::plain::Rows rows = test::plain::LoadRows(running.file.content);
  const forms::ListView& list = running.program.windows.FrmFrameAllowList->lstGroup;
  Check(list.Count() == static_cast<int>(rows.size()), "the list has the file's records");
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const forms::ListItem& item = list.Item(static_cast<int>(row) + 1);
    Check(item.Text() == rows[row][0], "a row has its record's name");
    for (int column = 1; column <= 5; ++column) {
      Check(item.Sub(column).Text == rows[row][static_cast<std::size_t>(column)],
            "a row has its record's labels");
    }
  }
}

void CheckLookup(Running& running, const std::string& name) {
  const bool found = allowlist::FindSiteRecord(running.program, name);
  bool listed = false;
  for (const auto& row : test::plain::LoadRows(running.file.content)) {
    listed = listed || text::LowerCase(row[0]) == text::LowerCase(text::Trim(name));
  }
  Check(found == (listed && !name.empty()), "a lookup finds what the list has");
}

void CheckAdd(Running& running, const std::string& name) {
  test::plain::Site site;
  site.name = name;
  allowlist::SiteRecord record;
  record.name = name;
  Check(allowlist::AddSiteRecord(running.file, Path, record) ==
            test::plain::AddSiteRecord(running.plainFile, Path, site),
        "both ways add or refuse");
  Check(running.file.content == running.plainFile.content, "both ways leave the same file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const std::string name = input.Text();
  const std::string content = input.Rest();
  running.file.content = content;
  running.plainFile.content = content;
  CheckRows(running);
  CheckLookup(running, name);
  CheckAdd(running, name);
  if (name.size() % 4 == 0) {
    CheckAdd(running, name);
    CheckRows(running);
  }
  Check(running.process.Boxes().empty(), "no box comes up");
  return 0;
}
