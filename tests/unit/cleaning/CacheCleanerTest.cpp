// What the Delete button of the Clean panel removes, in which order, and what it leaves.
#include "cleaning/RmTree.h"
#include "unit/cleaning/CleanPanel.h"

namespace vantrel::cleaning {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* TypedUrls = "Software\\Microsoft\\Internet Explorer\\TypedURLs";
constexpr const char* Explorer = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";

class CacheCleaner : public CleanPanel {
 protected:
  void Delete() { Click(Panel().CmdDeleteCache); }
  // The registry keys that were deleted, without their root.
  std::vector<std::string> DeletedKeys() {
    std::vector<std::string> keys;
    for (std::string line : process.Trace().LinesOf("RegDeleteKeyA")) {
      line = line.substr(std::string("RegDeleteKeyA HKCU\\").size());
      keys.push_back(line.substr(0, line.find(" ->")));
    }
    return keys;
  }
};

TEST_F(CacheCleaner, TheButtonIsDisabledExactlyWhenAllBoxesAreClear) {
  EXPECT_TRUE(Panel().CmdDeleteCache.Enabled());
  for (forms::CheckBox* box : Boxes()) {
    EXPECT_TRUE(Panel().CmdDeleteCache.Enabled());
    Click(*box);
  }
  EXPECT_FALSE(Panel().CmdDeleteCache.Enabled());
  for (forms::CheckBox* box : Boxes()) {
    Click(*box);
    EXPECT_TRUE(Panel().CmdDeleteCache.Enabled());
    Click(*box);
    EXPECT_FALSE(Panel().CmdDeleteCache.Enabled());
  }
}

TEST_F(CacheCleaner, BeforeTheFirstScanNoFolderIsCleanedAndTheSecondRunCleansThem) {
  Put(std::string(Internet) + "\\f");
  Delete();
  EXPECT_TRUE(Exists(std::string(Internet) + "\\f"));
  EXPECT_EQ(Panel().lbltif.ToolTipText(), Internet);
  Delete();
  EXPECT_FALSE(Exists(std::string(Internet) + "\\f"));
  EXPECT_TRUE(Exists(Internet));
}

TEST_F(CacheCleaner, ARunEndsWithItsTwoTextsWhateverHappened) {
  for (forms::CheckBox* box : Boxes()) box->SetValue(0);
  CmdDeleteCache_Click(program);
  EXPECT_EQ(Panel().lblcleaningstatus.Caption(), "Done");
  EXPECT_EQ(program.windows.frmMain->sbStatusBar.Panels()[0].Text,
            "Status: Some Required system files may not be deleted");
  EXPECT_EQ(Panel().MousePointer(), 0);
  EXPECT_EQ(Panel().lbltif.Caption(), "0 Kbs");
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(CacheCleaner, ItsStepsStandInTheirOrder) {
  RefreshCleanPanel(program);
  process.Trace().Clear();
  Delete();
  std::vector<std::string> steps;
  for (const std::string& line : process.Trace().Lines()) {
    if (line.starts_with("FolderExists") || line.starts_with("RegDeleteKeyA") ||
        line.starts_with("SHEmptyRecycleBinA") || line.starts_with("SHUpdateRecycleBinIcon")) {
      steps.push_back(line);
    }
  }
  const std::string folders[] = {History, Internet, Recent, Temporary};
  const auto exists = [](const std::string& path) {
    return "FolderExists \"" + path + "\" -> true";
  };
  ASSERT_GE(steps.size(), 19U);
  std::size_t at = 0;
  // Each folder is asked for by its step and again by the wiping.
  for (int index : {0, 1, 2}) {
    EXPECT_EQ(steps[at++], exists(folders[index]));
    EXPECT_EQ(steps[at++], exists(folders[index]));
  }
  EXPECT_THAT(steps[at++], testing::HasSubstr("TypedURLs"));
  EXPECT_EQ(steps[at++], exists(folders[3]));
  EXPECT_EQ(steps[at++], exists(folders[3]));
  EXPECT_THAT(DeletedKeys(), ElementsAre(TypedUrls, std::string(Explorer) + "RunMRU",
                                         "Software\\Microsoft\\Search Assistant\\ACMru\\5603",
                                         "Software\\Microsoft\\Search Assistant\\ACMru\\5001",
                                         "Software\\Microsoft\\Search Assistant\\ACMru\\5604",
                                         "Software\\Microsoft\\Search Assistant\\ACMru\\5647",
                                         std::string(Explorer) + "RecentDocs",
                                         std::string(Explorer) + "ComDlg32\\LastVisitedMRU",
                                         std::string(Explorer) + "ComDlg32\\OpenSaveMRU"));
  at += 8;
  EXPECT_THAT(steps[at++], testing::StartsWith("SHEmptyRecycleBinA"));
  EXPECT_THAT(steps[at++], testing::StartsWith("SHUpdateRecycleBinIcon"));
  // Then the sizes are taken anew.
  EXPECT_EQ(steps[at], exists(Internet));
}

TEST_F(CacheCleaner, EachBoxCleansItsOwnFolderAlone) {
  RefreshCleanPanel(program);
  const std::pair<forms::CheckBox*, std::string> rows[] = {{&Panel().chkCacheHistory, History},
                                                           {&Panel().chkCacheInternet, Internet},
                                                           {&Panel().chkCacheRecent, Recent},
                                                           {&Panel().chkCachetemp, Temporary}};
  for (const auto& [box, folder] : rows) {
    for (const auto& row : rows) Put(row.second + "\\f");
    SelectOnly(*box);
    Delete();
    for (const auto& row : rows) {
      EXPECT_EQ(Exists(row.second + "\\f"), row.second != folder) << folder;
    }
    EXPECT_THAT(DeletedKeys(), IsEmpty());
    EXPECT_THAT(process.Trace().LinesOf("SHEmptyRecycleBinA"), IsEmpty());
  }
}

TEST_F(CacheCleaner, AListIsLeftAsAnEmptyKey) {
  world.registry.SetString(platform::HKeyCurrentUser, TypedUrls, "url1", "http://a.example/");
  SelectOnly(Panel().chkCacheHURL);
  Delete();
  EXPECT_TRUE(world.registry.HasKey(platform::HKeyCurrentUser, TypedUrls));
  EXPECT_FALSE(world.registry.GetString(platform::HKeyCurrentUser, TypedUrls, "url1"));
}

TEST_F(CacheCleaner, EachListIsMadeAnewAtOnce) {
  Delete();
  std::vector<std::string> calls;
  for (const std::string& line : process.Trace().Lines()) {
    if (line.starts_with("RegDeleteKeyA") || line.starts_with("RegCreateKeyExA")) {
      calls.push_back(line);
    }
  }
  const auto keys = DeletedKeys();
  ASSERT_EQ(calls.size(), 2 * keys.size());
  for (std::size_t list = 0; list < keys.size(); ++list) {
    EXPECT_THAT(calls[2 * list], testing::StartsWith("RegDeleteKeyA HKCU\\" + keys[list] + " "));
    EXPECT_THAT(calls[2 * list + 1],
                testing::StartsWith("RegCreateKeyExA HKCU\\" + keys[list] + " "));
  }
}

TEST_F(CacheCleaner, AListThatIsNotThereIsMade) {
  SelectOnly(Panel().chkWindowsRunHistory);
  Delete();
  EXPECT_TRUE(world.registry.HasKey(platform::HKeyCurrentUser, std::string(Explorer) + "RunMRU"));
}

TEST_F(CacheCleaner, AListWithSubkeysKeepsItsValues) {
  const std::string documents = std::string(Explorer) + "RecentDocs";
  world.registry.SetString(platform::HKeyCurrentUser, documents, "0", "a.doc");
  world.registry.MakeKey(platform::HKeyCurrentUser, documents + "\\.doc");
  SelectOnly(Panel().chkWindowsRecDoc);
  Delete();
  EXPECT_EQ(world.registry.GetString(platform::HKeyCurrentUser, documents, "0"), "a.doc");
}

TEST_F(CacheCleaner, TheRecycleBinIsEmptiedInThePanelsNameWithoutAQuestion) {
  SelectOnly(Panel().chkWindowsRB);
  Delete();
  EXPECT_THAT(process.Trace().LinesOf("SHEmptyRecycleBinA"),
              ElementsAre("SHEmptyRecycleBinA FrmFrameHistory \"\" 1 -> 0"));
  EXPECT_THAT(process.Trace().LinesOf("SHUpdateRecycleBinIcon"), testing::SizeIs(1));
  std::int32_t result = 5;
  EmptyBin(program, 7, result);
  EXPECT_EQ(result, 0);
}

TEST_F(CacheCleaner, TheLockedIndexStaysAndTheRunEndsNormally) {
  const std::string index = std::string(Internet) + "\\Content.IE5\\index.dat";
  Put(index, "index");
  Put(std::string(Internet) + "\\Content.IE5\\A1B2\\page.htm");
  world.files.SetLocked(index, true);
  RefreshCleanPanel(program);
  Delete();
  EXPECT_EQ(world.files.Read(index), "index");
  EXPECT_FALSE(Exists(std::string(Internet) + "\\Content.IE5\\A1B2"));
  EXPECT_EQ(Panel().lblcleaningstatus.Caption(), "Done");
}

TEST_F(CacheCleaner, AHiddenIndexIsTriedOnceMoreByName) {
  const std::string index = std::string(Internet) + "\\Content.IE5\\index.dat";
  Put(index, "index");
  world.files.SetAttributes(index, platform::AttributeHidden | platform::AttributeSystem);
  RefreshCleanPanel(program);
  Delete();
  EXPECT_FALSE(Exists(index));
  EXPECT_TRUE(Exists(std::string(Internet) + "\\Content.IE5"));
}

TEST_F(CacheCleaner, TheIndexBehindALinkThatStaysIsLeftAlone) {
  const std::string folder = std::string(Internet) + "\\Content.IE5";
  Put("C:\\outside\\index.dat", "kept");
  world.files.MakeLink(folder, "C:\\outside");
  world.files.SetReadOnly(folder, true);
  RefreshCleanPanel(program);
  Delete();
  EXPECT_TRUE(world.files.Exists(folder));
  EXPECT_EQ(world.files.Read("C:\\outside\\index.dat"), "kept");
}

TEST_F(CacheCleaner, AnIndexThatIsAHiddenLinkGoesAndWhatItLeadsToStays) {
  const std::string index = std::string(Internet) + "\\Content.IE5\\index.dat";
  Put("C:\\outside\\f", "kept");
  world.files.MakeLink(index, "C:\\outside\\f");
  world.files.SetHidden(index, true);
  RefreshCleanPanel(program);
  Delete();
  EXPECT_FALSE(world.files.Exists(index));
  EXPECT_EQ(world.files.Read("C:\\outside\\f"), "kept");
}

TEST_F(CacheCleaner, TheBarShowsOnlyWhileAFolderIsCleaned) {
  Put(std::string(History) + "\\f");
  RefreshCleanPanel(program);
  SelectOnly(Panel().chkCacheHistory);
  std::vector<int> values;
  toolkit.DuringDoEvents = [&] {
    EXPECT_TRUE(Panel().pbarCache.Visible());
    EXPECT_EQ(Panel().lblcleaningstatus.Caption(), "Deleting please wait...");
    EXPECT_EQ(Panel().MousePointer(), 11);
    values.push_back(Panel().pbarCache.Value());
  };
  Delete();
  EXPECT_THAT(values, ElementsAre(1));
  EXPECT_FALSE(Panel().pbarCache.Visible());
  EXPECT_EQ(Panel().pbarCache.Value(), 100);
}

TEST_F(CacheCleaner, WithAMissingFolderTheBarStaysHidden) {
  RefreshCleanPanel(program);
  world.files.Remove(History);
  SelectOnly(Panel().chkCacheHistory);
  Panel().pbarCache.SetValue(33);
  Delete();
  EXPECT_EQ(Panel().pbarCache.Value(), 33);
}

TEST_F(CacheCleaner, ASecondClickMeanwhileStartsANestedRun) {
  for (int file = 0; file < 5; ++file) Put(std::string(History) + "\\f" + std::to_string(file));
  RefreshCleanPanel(program);
  SelectOnly(Panel().chkCacheHistory);
  toolkit.DuringDoEvents = [&] {
    toolkit.DuringDoEvents = nullptr;
    EXPECT_EQ(world.files.List(History).size(), 4U);
    EXPECT_TRUE(user.Click(Panel().CmdDeleteCache));
    EXPECT_TRUE(world.files.List(History).empty());
    EXPECT_EQ(Panel().lblcleaningstatus.Caption(), "Done");
  };
  Delete();
  EXPECT_TRUE(world.files.List(History).empty());
  EXPECT_EQ(Panel().lblcleaningstatus.Caption(), "Done");
}

TEST_F(CacheCleaner, TheTwoConnectionOptionsHaveNoEffect) {
  Put(std::string(History) + "\\f");
  Click(Panel().optBit8);
  EXPECT_TRUE(Exists(std::string(History) + "\\f"));
  EXPECT_TRUE(Panel().optBit8.Value());
  EXPECT_FALSE(Panel().optBit9.Value());
}

class RemovedTree : public CleanPanel {};

TEST_F(RemovedTree, GoesWithAllThatIsInIt) {
  Put("C:\\t\\f");
  Put("C:\\t\\a\\b\\f");
  RmTree(program, "C:\\t\\");
  EXPECT_FALSE(Exists("C:\\t"));
}

TEST_F(RemovedTree, NothingIsLeftAlone) { EXPECT_NO_THROW(RmTree(program, "C:\\none")); }

TEST_F(RemovedTree, WhatCannotBeFoundOutIsAnError) {
  Put("C:\\t\\f");
  process.Faults().FailCall("ListFolder", 1, platform::ErrorAccessDenied);
  EXPECT_THROW(RmTree(program, "C:\\t"), text::RuntimeError);
}

TEST_F(RemovedTree, ALockedFileEndsItWithAnError) {
  Put("C:\\t\\a\\f");
  world.files.SetLocked("C:\\t\\a\\f", true);
  EXPECT_THROW(RmTree(program, "C:\\t"), text::RuntimeError);
  EXPECT_TRUE(Exists("C:\\t\\a\\f"));
}

TEST_F(RemovedTree, WhatAListingGaveBeforeItFailedGoes) {
  for (const char* name : {"a", "b", "c"}) Put(std::string("C:\\t\\") + name);
  process.Faults().SetEntriesBeforeFailure(4);
  process.Faults().FailCall("ListFolder", 2, platform::ErrorAccessDenied);
  EXPECT_THROW(RmTree(program, "C:\\t"), text::RuntimeError);
  EXPECT_THAT(world.files.List("C:\\t"), ElementsAre("c"));
}

TEST_F(RemovedTree, AnEmptiedFolderStaysWhenItsListingFailed) {
  Put("C:\\t\\f");
  process.Faults().SetEntriesBeforeFailure(3);
  process.Faults().FailCall("ListFolder", 2, platform::ErrorAccessDenied);
  EXPECT_THROW(RmTree(program, "C:\\t"), text::RuntimeError);
  EXPECT_FALSE(Exists("C:\\t\\f"));
  EXPECT_TRUE(Exists("C:\\t"));
}

TEST_F(RemovedTree, ALinkIsRemovedItself) {
  Put("C:\\outside\\f");
  world.files.MakeFolder("C:\\t");
  world.files.MakeLink("C:\\t\\link", "C:\\outside");
  RmTree(program, "C:\\t");
  EXPECT_FALSE(Exists("C:\\t"));
  EXPECT_TRUE(Exists("C:\\outside\\f"));
}

}  // namespace
}  // namespace vantrel::cleaning
