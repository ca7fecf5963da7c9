// The quick writers against the plain ones, on random files and acts: the same bytes, the same
// results, whatever stands in the file and whatever the disk refuses.
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "allowlist/Attach.h"
#include "allowlist/SiteFile.h"
#include "allowlist/SiteList.h"
#include "support/ComponentFixture.h"
#include "support/PlainSiteFile.h"
#include "windows/FrmFrameAllowList.h"

namespace vantrel::allowlist {
namespace {

constexpr const char* Path = "C:\\Program Files\\Vantrel\\Settings\\AllowList.txt";

// For each seed: VANTREL_ROUNDS, for a long run, or few.
unsigned Rounds() {
  const char* wanted = std::getenv("VANTREL_ROUNDS");
  return wanted == nullptr ? 500U : static_cast<unsigned>(std::atoi(wanted));
}

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}

  unsigned Below(unsigned limit) {
    return std::uniform_int_distribution<unsigned>(0, limit - 1)(engine_);
  }
  template <class Choices>
  auto OneOf(const Choices& choices) {
    return choices[Below(static_cast<unsigned>(std::size(choices)))];
  }

  std::string Name() {
    static constexpr const char* Names[] = {"a",    "A",     " a ", "b",         "c",    "d",
                                            "a,b",  ",",     "",    "  ",        "x=1",  "\xC9",
                                            "\xE9", "\x80z", "b\t", "two words", "e\nf", "g\r"};
    return Below(20) == 0 ? Bytes() : OneOf(Names);
  }
  std::string Bytes() {
    std::string bytes;
    for (unsigned length = Below(12); length > 0; --length) {
      bytes += static_cast<char>(Below(2) == 0 ? 0x80 + Below(0x80) : Below(0x80));
    }
    return bytes;
  }
  std::string File() {
    static constexpr const char* Ends[] = {"\r\n", "\r\n", "\r\n", "\n", "\r", "\r\r\n"};
    std::string file;
    for (unsigned lines = Below(9); lines > 0; --lines) {
      file += TextOfLine();
      if (lines > 1 || Below(4) != 0) file += OneOf(Ends);
    }
    return file;
  }
  template <class Site>
  std::vector<Site> Sites() {
    std::vector<Site> sites(1 + Below(9));
    for (Site& site : sites) {
      site.name = Name();
      site.popup = static_cast<std::int16_t>(Below(2));
      site.flash = static_cast<std::int16_t>(Below(2));
    }
    return sites;
  }

 private:
  std::string TextOfLine() {
    static constexpr const char* Ids[] = {"id =1",
                                          "id =7",
                                          "id =-3",
                                          "id =",
                                          "id",
                                          "9",
                                          "",
                                          "   ",
                                          "id =1e3",
                                          "id =2.5",
                                          "id =2147483647",
                                          "id =&h1F",
                                          "id = 1 2",
                                          "=4=5",
                                          "id =99999999999"};
    static constexpr const char* Flags[] = {", Popup= 1 ", ",DHTML = 0", ",1",
                                            ",",           ",=2",        ",a=1=0"};
    switch (Below(8)) {
      case 0:
        return Below(2) == 0 ? "" : "   ";
      case 1:
        return Bytes();
      default:
        break;
    }
    std::string line = OneOf(Ids);
    const unsigned flags = Below(4) == 0 ? Below(9) : 5;
    for (unsigned flag = 0; flag < flags; ++flag) line += OneOf(Flags);
    return line + (Below(2) == 0 ? " , " : ",") + Name();
  }

  std::mt19937 engine_;
};

SiteRecord RecordOf(const test::plain::Site& site) {
  return {0, site.name, site.popup, site.dhtml, site.webDialog, site.banner, site.flash};
}

class Reference : public test::ComponentFixture, public testing::WithParamInterface<unsigned> {
 protected:
  Reference() {
    AttachAllowList(program);
    test::FillMachine(other_);
    process.Trace().Stop();
  }

  // The same file on both machines, and what its disk refuses.
  void Prepare(Random& random) {
    const std::string content = random.File();
    const unsigned obstacle = random.Below(12);
    const unsigned space = random.Below(400);
    for (platform::memory::FileTree* files : {&world.files, &other_.files}) {
      files->SetFreeSpace(std::nullopt);
      files->Remove(Path);
      if (obstacle != 0) files->Put(Path, content);
      if (obstacle == 1) files->SetReadOnly(Path, true);
      if (obstacle == 2) files->SetLocked(Path, true);
      if (obstacle == 3 || obstacle == 4) files->SetFreeSpace(space);
    }
  }
  void Act(Random& random) {
    const auto sites = random.Sites<test::plain::Site>();
    std::vector<SiteRecord> records(sites.size());
    std::transform(sites.begin(), sites.end(), records.begin(), RecordOf);
    platform::Files& files = program.platform.files;
    platform::Files& plain = plainProcess_.Platform().files;
    if (random.Below(2) == 0) {
      EXPECT_EQ(AddSiteRecord(files, Path, records[0]),
                test::plain::AddSiteRecord(plain, Path, sites[0]));
    } else {
      EXPECT_EQ(RewriteSiteFile(files, Path, records),
                test::plain::RewriteSiteFile(plain, Path, sites));
    }
    EXPECT_EQ(world.files.Read(Path), other_.files.Read(Path));
  }
  void CompareRows() {
    LoadAllowList(program, LoadFailure::IsSilent);
    test::plain::Rows rows;
    const forms::ListView& list = program.windows.FrmFrameAllowList->lstGroup;
    for (int row = 1; row <= list.Count(); ++row) {
      rows.push_back({list.Item(row).Text()});
      for (int column = 1; column <= 5; ++column) {
        rows.back()[static_cast<std::size_t>(column)] = list.Item(row).Sub(column).Text;
      }
    }
    EXPECT_EQ(rows, test::plain::LoadRows(world.files.Read(Path).value_or("")));
  }
  void Forget() {
    for (platform::memory::Trace* trace :
         {&process.Trace(), &plainProcess_.Trace(), &world.trace, &other_.trace}) {
      trace->Clear();
    }
  }

 private:
  platform::memory::World other_;
  platform::memory::Process plainProcess_{other_};
};

// A part of the rounds each, so that none takes long.
INSTANTIATE_TEST_SUITE_P(Seeds, Reference, testing::Range(0U, 10U));

TEST_P(Reference, BothWaysLeaveTheSameFileAndResult) {
  const unsigned rounds = Rounds();
  for (unsigned round = 0; round < rounds && !HasFailure(); ++round) {
    const unsigned seed = GetParam() + 10 * round;
    SCOPED_TRACE("seed " + std::to_string(seed));
    Random random(seed);
    Prepare(random);
    for (unsigned acts = 1 + random.Below(4); acts > 0; --acts) Act(random);
    world.files.SetLocked(Path, false);
    CompareRows();
    Forget();
  }
}

}  // namespace
}  // namespace vantrel::allowlist
