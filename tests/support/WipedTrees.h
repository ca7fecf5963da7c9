// Random folder trees, and what wiping leaves of them, told plainly.
#ifndef VANTREL_TESTS_SUPPORT_WIPEDTREES_H_
#define VANTREL_TESTS_SUPPORT_WIPEDTREES_H_

#include <cstdint>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "platform/Folders.h"

namespace vantrel::test {

// A file, a folder, or a link to one.
struct TreeNode {
  bool folder = false;
  bool locked = false;  // a file that somebody has open for himself alone
  std::uint32_t attributes = 0;
  std::string target;  // of a link
  std::string content;
};

// By full path; a folder stands before what is in it.
using Tree = std::map<std::string, TreeNode>;

// Whether the system can remove a link itself.
enum class LinkRemoval { IsPossible, IsRefused };

// What cleaning leaves of the tree below `top`: its wiping, and then the delete of an index by its
// name in the folder for it.
class WipeModel {
 public:
  explicit WipeModel(Tree tree, LinkRemoval removal = LinkRemoval::IsPossible)
      : tree_(std::move(tree)), removal_(removal) {}

  Tree Wiped(const std::string& top) {
    for (const std::string& path : ChildrenOf(top)) {
      const TreeNode node = tree_[path];
      if (!node.folder && !node.locked) tree_.erase(path);
    }
    for (const std::string& path : ChildrenOf(top)) {
      if (tree_[path].folder) Kill(path);
    }
    TryIndexOf(top);
    return tree_;
  }

 private:
  // A link is deleted itself, in a folder that is none.
  void TryIndexOf(const std::string& top) {
    const auto folder = tree_.find(top + "\\Content.IE5");
    const auto index = tree_.find(top + "\\Content.IE5\\index.dat");
    if (folder == tree_.end() || !folder->second.target.empty() || index == tree_.end()) return;
    const TreeNode& file = index->second;
    const bool isReadOnly = (file.attributes & platform::AttributeReadOnly) != 0;
    if (!file.folder && !file.locked && !isReadOnly) tree_.erase(index);
  }

  std::vector<std::string> ChildrenOf(const std::string& folder) const {
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
    if (!tree_[path].target.empty()) {
      const bool isReadOnly = (tree_[path].attributes & platform::AttributeReadOnly) != 0;
      if (removal_ == LinkRemoval::IsPossible && !isReadOnly) tree_.erase(path);
      return;
    }
    for (const std::string& child : ChildrenOf(path)) {
      if (tree_[child].folder) Kill(child);
    }
    constexpr std::uint32_t Spared =
        platform::AttributeReadOnly | platform::AttributeHidden | platform::AttributeSystem;
    for (const std::string& child : ChildrenOf(path)) {
      const TreeNode node = tree_[child];
      if (!node.folder && (node.attributes & Spared) == 0 && !node.locked) tree_.erase(child);
    }
    if (ChildrenOf(path).empty()) tree_.erase(path);
  }

  Tree tree_;
  LinkRemoval removal_;
};

// Where a random tree stands and what its links lead to beside parents and itself.
struct TreePlaces {
  std::string Top;
  std::string OutsideFolder;
  std::string EmptyFolder;  // outside too
  std::string OutsideFile;  // empty where links to files are not to be had
};

class RandomTree {
 public:
  RandomTree(TreePlaces places, std::mt19937& random)
      : places_(std::move(places)), random_(random) {}

  // What is below the top; links are protected and hidden too where they can be.
  Tree Make() {
    Fill(places_.Top, 3);
    if (random_() % 2 == 0) AddCache(places_.Top + "\\Content.IE5");
    return std::move(tree_);
  }

 private:
  void Fill(const std::string& folder, int depth) {
    for (unsigned child = random_() % 5; child > 0; --child) {
      const std::string path = folder + "\\n" + std::to_string(child);
      switch (random_() % 4) {
        case 0:
          if (depth > 0) AddFolder(path, depth);
          break;
        case 1:
          AddLink(folder, path);
          break;
        default:
          AddFile(path);
      }
    }
  }

  // The folder of the index, or a link in its place; the index, or anything in its place.
  void AddCache(const std::string& path) {
    if (random_() % 4 == 0) return AddLink(places_.Top, path);
    AddFolder(path, 1);
    const std::string index = path + "\\index.dat";
    if (random_() % 3 == 0) return AddLink(path, index);
    AddFile(index);
  }

  void AddFolder(const std::string& path, int depth) {
    tree_[path].folder = true;
    Fill(path, depth - 1);
  }

  void AddLink(const std::string& folder, const std::string& path) {
    const std::string targets[] = {places_.OutsideFolder, places_.EmptyFolder, folder, places_.Top,
                                   places_.OutsideFile};
    const std::size_t count = std::size(targets) - (places_.OutsideFile.empty() ? 1 : 0);
    TreeNode& link = tree_[path];
    link.target = targets[random_() % count];
    link.folder = link.target != places_.OutsideFile;
    if (!places_.OutsideFile.empty()) link.attributes = AnyAttributes();
  }

  std::uint32_t AnyAttributes() {
    const std::uint32_t attributes[] = {
        0, 0, 0, platform::AttributeReadOnly, platform::AttributeHidden, platform::AttributeSystem};
    return attributes[random_() % std::size(attributes)];
  }

  void AddFile(const std::string& path) {
    TreeNode& file = tree_[path];
    file.attributes = AnyAttributes();
    file.locked = random_() % 8 == 0;
    file.content = std::string(random_() % 5, 'x');
  }

  TreePlaces places_;
  std::mt19937& random_;
  Tree tree_;
};

}  // namespace vantrel::test

#endif  // VANTREL_TESTS_SUPPORT_WIPEDTREES_H_
