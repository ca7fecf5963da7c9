// The writers of the allow list's file, by the bytes that they leave.
#include <gmock/gmock.h>

#include "allowlist/SiteFile.h"
#include "support/ComponentFixture.h"

namespace vantrel::allowlist {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Settings = "C:\\Program Files\\Vantrel\\Settings";
constexpr const char* Path = "C:\\Program Files\\Vantrel\\Settings\\Allowlist.TXT";
constexpr const char* Blocked = ", Popup= 0 ,DHTML = 0, WebDialog =0 ,Banner = 0, Flash = 0 , ";

SiteRecord Named(const std::string& name) {
  SiteRecord site;
  site.name = name;
  return site;
}

std::string Line(int number, const std::string& name) {
  return "id =" + std::to_string(number) + Blocked + name + "\r\n";
}

class SiteFile : public test::ComponentFixture {
 protected:
  bool Add(const std::string& name) { return AddSiteRecord(Files(), Path, Named(name)); }
  bool Rewrite(const std::vector<std::string>& names) {
    std::vector<SiteRecord> sites;
    for (const std::string& name : names) sites.push_back(Named(name));
    return RewriteSiteFile(Files(), Path, sites);
  }
  platform::Files& Files() { return program.platform.files; }
  void Put(const std::string& content) { world.files.Put(Path, content); }
  std::string Content() { return world.files.Read(Path).value_or("no file"); }
  std::vector<std::string> AddAll(const std::vector<std::string>& names) {
    std::vector<std::string> refused;
    for (const std::string& name : names) {
      if (!Add(name)) refused.push_back(name);
    }
    return refused;
  }
};

TEST_F(SiteFile, ARecordIsOneLineOfUnevenPieces) {
  Put("id =1,\r\n");
  SiteRecord site = Named("mysite");
  site.popup = 1;
  site.banner = 1;
  EXPECT_TRUE(AddSiteRecord(Files(), Path, site));
  EXPECT_EQ(Content(),
            "id =1,\r\nid =2, Popup= 1 ,DHTML = 0, WebDialog =0 ,Banner = 1, Flash = 0 , "
            "mysite\r\n");
}

TEST_F(SiteFile, EachFlagHasItsPlace) {
  for (std::size_t flag = 0; flag < SiteFlags.size(); ++flag) {
    SiteRecord site = Named("x");
    site.*SiteFlags[flag] = 1;
    const std::string line = RecordLine(site);
    const SiteFields fields(line);
    for (std::size_t field = 1; field <= SiteFlags.size(); ++field) {
      EXPECT_EQ(ValueOf(fields.Fields[field]), field == flag + 1 ? "1" : "0");
    }
  }
}

TEST_F(SiteFile, TheFirstRecordOfAnEmptyOrMissingFileIsNumber1) {
  EXPECT_TRUE(Add("a"));
  EXPECT_EQ(Content(), Line(1, "a"));
  Put("");
  EXPECT_TRUE(Add("b"));
  EXPECT_EQ(Content(), Line(1, "b"));
}

TEST_F(SiteFile, RecordsAddedOneByOneAreNumbered1223344) {
  EXPECT_THAT(AddAll({"a", "b", "c", "d", "e", "f", "g"}), IsEmpty());
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "b") + Line(2, "c") + Line(3, "d") + Line(3, "e") +
                           Line(4, "f") + Line(4, "g"));
}

TEST_F(SiteFile, OnlyNamesOnOddLinesAreFound) {
  AddAll({"a", "b", "c", "d"});
  EXPECT_THAT(AddAll({"c", " C ", "a"}), ElementsAre("c", " C ", "a"));
  EXPECT_TRUE(Add("b"));
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "b") + Line(2, "c") + Line(3, "d") + Line(3, "b"));
  // Now it stands on line 5.
  EXPECT_FALSE(Add("b"));
}

TEST_F(SiteFile, ANameIsWrittenAsTyped) {
  EXPECT_TRUE(Add("  My Site  "));
  EXPECT_EQ(Content(), Line(1, "  My Site  "));
  EXPECT_FALSE(Add("my site"));
}

TEST_F(SiteFile, ABlankSecondLineHidesTheRecordBeforeIt) {
  for (const char* blank : {"\r\n", "   \r\n", "\n"}) {
    Put(Line(7, "a") + blank);
    EXPECT_TRUE(Add("a"));
    EXPECT_EQ(Content(), Line(7, "a") + blank + Line(1, "a"));
  }
  // Hidden it is even where it has no field.
  Put("\r\n\r\n");
  EXPECT_TRUE(Add("a"));
}

TEST_F(SiteFile, AFirstLineOfBlanksGivesNoNumber) {
  Put(Line(4, "a") + Line(9, "b") + "   \r\n" + Line(9, "c"));
  EXPECT_TRUE(Add("d"));
  EXPECT_TRUE(Content().ends_with(Line(5, "d")));
  // Its last field is the empty name.
  EXPECT_FALSE(Add(" "));
}

TEST_F(SiteFile, AFirstLineOfLengthZeroRefusesEveryName) {
  for (const char* content : {"\r\nx\r\n", "\r\n", "\nx"}) {
    Put(content);
    EXPECT_FALSE(Add("a"));
    EXPECT_EQ(Content(), content);
  }
}

TEST_F(SiteFile, TheLastFieldIsTheName) {
  Put("id =1, short\r\n");
  EXPECT_FALSE(Add("Short"));
  Put(Line(1, "a,b"));
  EXPECT_FALSE(Add("b"));
  EXPECT_TRUE(Add("a,b"));
  Put("alone\r\n");
  EXPECT_FALSE(Add("alone"));
}

TEST_F(SiteFile, TheNumberIsReadLeniently) {
  const std::pair<const char*, int> cases[] = {{"id =41", 42},
                                               {"id = 4 1 x", 42},
                                               {"41", 42},
                                               {"x", 1},
                                               {"id", 1},
                                               {"id =", 1},
                                               {"id =x", 1},
                                               {"id =-5", -4},
                                               {"id =1.5", 2},
                                               {"id =2.6", 4},
                                               {"id =1e2", 101},
                                               {"id =3=9", 4},
                                               {"id =2147483646", 2147483647}};
  for (const auto& [field, number] : cases) {
    Put(std::string(field) + ",x\r\n");
    EXPECT_TRUE(Add("a")) << field;
    EXPECT_TRUE(Content().ends_with("\r\n" + Line(number, "a"))) << field << Content();
  }
}

TEST_F(SiteFile, ANumberTooLargeRefusesEveryName) {
  for (const char* line : {"id =2147483647,x\r\n", "id =1e300,x\r\n", "id =1e999,x\r\n"}) {
    Put(line);
    EXPECT_FALSE(Add("a")) << line;
    EXPECT_EQ(Content(), line);
  }
}

TEST_F(SiteFile, AFileThatDoesNotEndItsLastLineGoesOnInIt) {
  Put("id =1,x");
  EXPECT_TRUE(Add("a"));
  EXPECT_EQ(Content(), "id =1,x" + Line(2, "a"));
}

TEST_F(SiteFile, TheThreeSpellingsAreOneFile) {
  world.files.Put(std::string(Settings) + "\\AllowList.txt", "");
  EXPECT_TRUE(Add("a"));
  EXPECT_TRUE(RewriteSiteFile(Files(), std::string(Settings) + "\\Allowlist.txt", {Named("b")}));
  EXPECT_THAT(world.files.List(Settings), ElementsAre("AllowList.txt"));
  EXPECT_EQ(Content(), Line(1, "b"));
}

TEST_F(SiteFile, WithoutItsFolderNothingIsAddedOrMade) {
  world.files.Remove(Settings);
  EXPECT_FALSE(Add("a"));
  ClearSiteFile(Files(), Path);
  EXPECT_FALSE(Rewrite({"a"}));
  EXPECT_FALSE(world.files.IsFolder(Settings));
}

TEST_F(SiteFile, AFileThatRefusesStaysAsItIs) {
  Put(Line(1, "a"));
  world.files.SetReadOnly(Path, true);
  EXPECT_FALSE(Add("b"));
  ClearSiteFile(Files(), Path);
  EXPECT_FALSE(Rewrite({"c", "d"}));
  EXPECT_FALSE(Rewrite({}));
  world.files.SetReadOnly(Path, false);
  world.files.SetLocked(Path, true);
  EXPECT_FALSE(Add("b"));
  EXPECT_FALSE(Rewrite({"c", "d"}));
  EXPECT_EQ(Content(), Line(1, "a"));
  EXPECT_THAT(process.Boxes(), IsEmpty());
}

TEST_F(SiteFile, AFolderOfThatNameRefuses) {
  world.files.MakeFolder(Path);
  EXPECT_FALSE(Add("a"));
  EXPECT_FALSE(Rewrite({"a"}));
}

TEST_F(SiteFile, ClearingEmptiesAndCreates) {
  ClearSiteFile(Files(), Path);
  EXPECT_EQ(Content(), "");
  Put("x");
  ClearSiteFile(Files(), Path);
  EXPECT_EQ(Content(), "");
}

TEST_F(SiteFile, ARewriteNumbersAnewAndDropsWhatTheScanMeets) {
  Put("what was there");
  EXPECT_TRUE(Rewrite({"a", "b", "A ", "b", "c"}));
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "b") + Line(2, "b") + Line(3, "c"));
  EXPECT_FALSE(Rewrite({"a", "b", "a"}));
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "b"));
}

TEST_F(SiteFile, ARewriteIsOneWrite) {
  process.Trace().Clear();
  EXPECT_TRUE(Rewrite({"a", "b", "c"}));
  EXPECT_THAT(process.Trace().Names(), ElementsAre("WriteTextFile"));
}

TEST_F(SiteFile, ADiskThatFillsUpKeepsTheRowsWrittenSoFar) {
  const std::string before = Line(1, "a") + Line(2, "b");
  Put(before);
  world.files.SetFreeSpace(Line(2, "c").size() + 3);
  EXPECT_FALSE(Rewrite({"a", "b", "c", "d"}));
  EXPECT_EQ(Content(), before + Line(2, "c"));
  EXPECT_FALSE(Add("e"));
  EXPECT_EQ(Content(), before + Line(2, "c"));
}

TEST_F(SiteFile, AWriteThatFailsOnceIsMadeUpRecordByRecord) {
  process.Faults().FailCall("WriteTextFile", 1, platform::ErrorSharingViolation);
  EXPECT_TRUE(Rewrite({"a", "b", "c"}));
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "b") + Line(2, "c"));
}

TEST_F(SiteFile, ARecordThatCannotBeWrittenHidesNoLaterOne) {
  process.Faults().FailCall("WriteTextFile", 1, platform::ErrorSharingViolation);
  process.Faults().FailCall("AppendTextFile", 2, platform::ErrorSharingViolation);
  EXPECT_TRUE(Rewrite({"a", "b", "c"}));
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "c"));
}

TEST_F(SiteFile, AFileThatCannotBeClearedIsAppendedTo) {
  Put(Line(5, "x"));
  process.Faults().FailEvery("WriteTextFile", platform::ErrorAccessDenied);
  EXPECT_TRUE(Rewrite({"a", "x", "b"}));
  EXPECT_EQ(Content(), Line(5, "x") + Line(6, "a") + Line(6, "b"));
}

TEST_F(SiteFile, AFileThatCannotBeMadeIsNotWritten) {
  process.Faults().FailCall("CreateTextFile", 1, platform::ErrorAccessDenied);
  EXPECT_FALSE(Add("a"));
  EXPECT_EQ(Content(), "no file");
  EXPECT_THAT(process.Trace().Names(), ElementsAre("FileExists", "CreateTextFile", "FileExists"));
}

}  // namespace
}  // namespace vantrel::allowlist
