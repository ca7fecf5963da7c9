// Allow lists of any bytes: the quick readers and writers do what the plain ones do, a lookup finds
// nothing that the list does not have, and no box comes up.
#include "allowlist/Attach.h"
#include "allowlist/SiteFile.h"
#include "allowlist/SiteList.h"
#include "fuzz/Fuzz.h"
#include "support/PlainSiteFile.h"
#include "support/ProgramFixture.h"
#include "windows/FrmFrameAllowList.h"

namespace {

using namespace vantrel;
using fuzz::Check;

constexpr const char* Path = "C:\\Program Files\\Vantrel\\Settings\\AllowList.txt";

struct Running {
  Running() {
    test::FillMachine(world);
    test::FillMachine(otherWorld);
    copy = std::make_unique<test::Copy>(world);
    other = std::make_unique<test::Copy>(otherWorld);
    allowlist::AttachAllowList(copy->program);
  }

  platform::Files& Files() { return copy->program.platform.files; }
  platform::Files& PlainFiles() { return other->program.platform.files; }
  std::string Content() { return world.files.Read(Path).value_or("no file"); }

  platform::memory::World world;
  platform::memory::World otherWorld;
  std::unique_ptr<test::Copy> copy;
  std::unique_ptr<test::Copy> other;
};

void CheckRows(Running& running) {
  allowlist::LoadAllowList(running.copy->program, allowlist::LoadFailure::IsSilent);
  const test::plain::Rows rows = test::plain::LoadRows(running.Content());
  const forms::ListView& list = running.copy->Windows().FrmFrameAllowList->lstGroup;
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
  const bool found = allowlist::FindSiteRecord(running.copy->program, name);
  bool listed = false;
  for (const auto& row : test::plain::LoadRows(running.Content())) {
    listed = listed || text::LowerCase(row[0]) == text::LowerCase(text::Trim(name));
  }
  Check(found == (listed && !name.empty()), "a lookup finds what the list has");
}

void CheckAdd(Running& running, const std::string& name) {
  test::plain::Site site;
  site.name = name;
  allowlist::SiteRecord record;
  record.name = name;
  Check(allowlist::AddSiteRecord(running.Files(), Path, record) ==
            test::plain::AddSiteRecord(running.PlainFiles(), Path, site),
        "both ways add or refuse");
  Check(running.Content() == running.otherWorld.files.Read(Path), "both ways leave the same file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const std::string name = input.Text();
  const std::string content = input.Rest();
  running.world.files.Put(Path, content);
  running.otherWorld.files.Put(Path, content);
  CheckRows(running);
  CheckLookup(running, name);
  CheckAdd(running, name);
  CheckAdd(running, name);
  CheckRows(running);
  Check(running.copy->process.Boxes().empty(), "no box comes up");
  for (test::Copy* copy : {running.copy.get(), running.other.get()}) {
    copy->process.Trace().Clear();
    copy->process.TheWorld().trace.Clear();
  }
  return 0;
}
