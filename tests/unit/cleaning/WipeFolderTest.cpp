// What wiping removes and what it leaves, with a plain model of it over random trees.
#include <map>
#include <random>
#include <set>

#include "cleaning/Scramble.h"
#include "unit/cleaning/CleanPanel.h"

namespace vantrel::cleaning {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Top = "C:\\wiped";

class WipedFolder : public CleanPanel {
 protected:
  void PutAs(const std::string& path, std::uint32_t attributes) {
    Put(path);
    world.files.SetAttributes(path, attributes);
  }
};

TEST_F(WipedFolder, AMissingFolderIsFalseAtOnce) {
  EXPECT_FALSE(WipeFolder(program, "C:\\none"));
  EXPECT_THAT(process.Trace().LinesOf("ListFolder"), IsEmpty());
}

TEST_F(WipedFolder, FilesOfAnyKindGoAndTheFolderStays) {
  Put("C:\\wiped\\plain");
  PutAs("C:\\wiped\\hidden", platform::AttributeHidden);
  PutAs("C:\\wiped\\system", platform::AttributeSystem);
  PutAs("C:\\wiped\\readonly", platform::AttributeReadOnly);
  EXPECT_TRUE(WipeFolder(program, Top));
  EXPECT_TRUE(Exists(Top));
  EXPECT_THAT(world.files.List(Top), IsEmpty());
}

TEST_F(WipedFolder, ALockedFileStaysAndTheResultIsFalse) {
  Put("C:\\wiped\\locked");
  world.files.SetLocked("C:\\wiped\\locked", true);
  Put("C:\\wiped\\other");
  EXPECT_FALSE(WipeFolder(program, Top));
  EXPECT_THAT(world.files.List(Top), ElementsAre("locked"));
}

TEST_F(WipedFolder, OnlyTheTopLevelIsOverwritten) {
  Put("C:\\wiped\\f");
  Put("C:\\wiped\\sub\\f");
  WipeFolder(program, Top);
  EXPECT_THAT(process.Trace().LinesOf("OpenFile"), testing::SizeIs(1));
  EXPECT_FALSE(Exists("C:\\wiped\\sub"));
}

TEST_F(WipedFolder, InSubfoldersOnlyOrdinaryFilesGo) {
  Put("C:\\wiped\\a\\plain");
  PutAs("C:\\wiped\\a\\hidden", platform::AttributeHidden);
  PutAs("C:\\wiped\\b\\readonly", platform::AttributeReadOnly);
  PutAs("C:\\wiped\\c\\system", platform::AttributeSystem);
  Put("C:\\wiped\\d\\plain");
  EXPECT_TRUE(WipeFolder(program, Top));
  EXPECT_THAT(world.files.List(Top), ElementsAre("a", "b", "c"));
  EXPECT_THAT(world.files.List("C:\\wiped\\a"), ElementsAre("hidden"));
}

TEST_F(WipedFolder, OnFilesTheBarStopsAtItsMaximumAndSoDoTheMessages) {
  for (int file = 0; file < 120; ++file) Put("C:\\wiped\\f" + std::to_string(file));
  int pumps = 0;
  toolkit.DuringDoEvents = [&] { ++pumps; };
  WipeFolder(program, Top);
  EXPECT_EQ(pumps, 100);
  EXPECT_EQ(Panel().pbarCache.Value(), 100);
}

TEST_F(WipedFolder, OnFoldersTheBarWrapsWithoutMessages) {
  for (int folder = 0; folder < 105; ++folder) {
    world.files.MakeFolder("C:\\wiped\\d" + std::to_string(folder));
  }
  int pumps = 0;
  toolkit.DuringDoEvents = [&] { ++pumps; };
  WipeFolder(program, Top);
  // A hundred steps up, one back to the beginning, four up again.
  EXPECT_EQ(pumps, 104);
  EXPECT_EQ(Panel().pbarCache.Value(), 4);
}

TEST_F(WipedFolder, AFolderThatCannotBeListedIsPassedOver) {
  Put("C:\\wiped\\a\\f");
  Put("C:\\wiped\\b\\f");
  process.Faults().FailCall("ListFolder", 2, platform::ErrorAccessDenied);
  WipeFolder(program, Top);
  EXPECT_TRUE(Exists("C:\\wiped\\a\\f"));
  EXPECT_FALSE(Exists("C:\\wiped\\b"));
}

TEST_F(WipedFolder, LinksAreRemovedThemselves) {
  Put("C:\\outside\\f", "kept");
  Put("C:\\wiped\\sub\\f");
  world.files.MakeLink("C:\\wiped\\toFolder", "C:\\outside");
  world.files.MakeLink("C:\\wiped\\toFile", "C:\\outside\\f");
  world.files.MakeLink("C:\\wiped\\sub\\toParent", Top);
  world.files.MakeLink("C:\\wiped\\sub\\toSelf", "C:\\wiped\\sub");
  WipeFolder(program, Top);
  EXPECT_THAT(world.files.List(Top), IsEmpty());
  EXPECT_EQ(world.files.Read("C:\\outside\\f"), "kept");
}

// A tree as the model has it: what each path is.
struct Node {
  bool folder = false;
  bool link = false;
  bool locked = false;
  std::uint32_t attributes = 0;
};
using Nodes = std::map<std::string, Node>;

// What wiping leaves of a tree, told plainly.
class Model {
 public:
  explicit Model(Nodes tree) : tree_(std::move(tree)) {}

  Nodes Wiped(const std::string& top) {
    for (const std::string& path : ChildrenOf(top)) {
      const Node node = tree_[path];
      if (!node.folder && !node.locked) tree_.erase(path);
    }
    for (const std::string& path : ChildrenOf(top)) {
      if (tree_[path].folder) Kill(path);
    }
    return tree_;
  }

 private:
  std::vector<std::string> ChildrenOf(const std::string& folder) {
    std::vector<std::string> children;
    for (const auto& [path, node] : tree_) {
      if (path.size() > folder.size() + 1 && path.starts_with(folder + "\\") &&
          path.find('\\', folder.size() + 1) == std::string::npos) {
        children.push_back(path);
      }
    }
    return children;
  }

  void Kill(const std::string& path) {
    if (tree_[path].link) {
      tree_.erase(path);
      return;
    }
    for (const std::string& child : ChildrenOf(path)) {
      if (tree_[child].folder) Kill(child);
    }
    for (const std::string& child : ChildrenOf(path)) {
      const Node node = tree_[child];
      const bool ordinary = (node.attributes & 7) == 0;
      if (!node.folder && ordinary && !node.locked) tree_.erase(child);
    }
    if (ChildrenOf(path).empty()) tree_.erase(path);
  }

  Nodes tree_;
};

class RandomTree {
 public:
  RandomTree(platform::memory::FileTree& files, std::mt19937& random)
      : files_(files), random_(random) {}

  Nodes Plant() {
    files_.MakeFolder(Top);
    Fill(Top, 3);
    return std::move(tree_);
  }

 private:
  void Fill(const std::string& folder, int depth) {
    for (unsigned child = random_() % 5; child > 0; --child) {
      const std::string path = folder + "\\n" + std::to_string(child);
      switch (random_() % 4) {
        case 0:
          if (depth > 0) MakeFolder(path, depth);
          break;
        case 1:
          MakeLink(folder, path);
          break;
        default:
          MakeFile(path);
      }
    }
  }

  void MakeFolder(const std::string& path, int depth) {
    files_.MakeFolder(path);
    tree_[path] = {true, false, false, 0};
    Fill(path, depth - 1);
  }

  void MakeLink(const std::string& folder, const std::string& path) {
    const std::string targets[] = {"C:\\outside", "C:\\outside\\f", folder, Top};
    const std::string& target = targets[random_() % std::size(targets)];
    files_.MakeLink(path, target);
    tree_[path] = {target != "C:\\outside\\f", true, false, 0};
  }

  void MakeFile(const std::string& path) {
    const std::uint32_t attributes[] = {
        0, 0, 0, platform::AttributeReadOnly, platform::AttributeHidden, platform::AttributeSystem};
    Node node;
    node.attributes = attributes[random_() % std::size(attributes)];
    node.locked = random_() % 8 == 0;
    files_.Put(path, std::string(random_() % 5, 'x'));
    files_.SetAttributes(path, node.attributes);
    files_.SetLocked(path, node.locked);
    tree_[path] = node;
  }

  platform::memory::FileTree& files_;
  std::mt19937& random_;
  Nodes tree_;
};

TEST_F(WipedFolder, RandomTreesLeaveWhatTheModelLeavesAndNothingOutsideChanges) {
  std::mt19937 random(11);
  Put("C:\\outside\\f", "kept");
  Put("C:\\outside\\sub\\g", "kept too");
  for (int round = 0; round < 10000; ++round) {
    const Nodes before = RandomTree(world.files, random).Plant();
    WipeFolder(program, Top);
    const Nodes left = Model(before).Wiped(Top);
    for (const auto& [path, node] : before) {
      ASSERT_EQ(world.files.Exists(path), left.contains(path)) << "round " << round << ' ' << path;
    }
    ASSERT_EQ(world.files.Read("C:\\outside\\f"), "kept") << round;
    ASSERT_EQ(world.files.Read("C:\\outside\\sub\\g"), "kept too") << round;
    world.files.Remove(Top);
  }
}

TEST_F(WipedFolder, AHostileTargetIsSkippedOrNothing) {
  Put("C:\\kept\\f", "kept");
  const std::string targets[] = {"",
                                 " ",
                                 "   ",
                                 "\\",
                                 ".",
                                 "..",
                                 "kept",
                                 "kept\\f",
                                 "C:kept",
                                 "Q:\\",
                                 "Q:",
                                 "\\\\server\\share",
                                 "\\\\server",
                                 "NUL",
                                 "CON",
                                 "C:\\NUL",
                                 "\\\\.\\PhysicalDrive0",
                                 "C:\\kept\\f",
                                 "C:\\kept\\f\\",
                                 "C:\\kept\\f.",
                                 "C:\\none",
                                 "C:\\none\\none",
                                 "C:\\none\\*.*",
                                 "C:\\kept\\*",
                                 "C:\\kept\\*.*",
                                 "C:\\k?pt",
                                 "C:\\\"kept\"",
                                 "\"C:\\kept\"",
                                 "C:\\kept|",
                                 "C:\\<kept>",
                                 "file:///C:/kept",
                                 "C:\\",
                                 "C:/",
                                 std::string("\0C:\\kept", 8),
                                 "C:\\" + std::string(300, 'n'),
                                 std::string(300, '\\'),
                                 std::string(70000, 'n'),
                                 "%TEMP%",
                                 "C:\\kept:stream",
                                 ";"};
  ASSERT_EQ(std::size(targets), 40U);
  for (const std::string& target : targets) {
    WipeFolder(program, target);
    if (target != "C:\\kept\\f") ScrambleAndKill(program, target);
    EXPECT_EQ(world.files.Read("C:\\kept\\f"), "kept") << target;
  }
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

}  // namespace
}  // namespace vantrel::cleaning
