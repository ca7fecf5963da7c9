// The user's folders that the program cleans, moved to one folder of a test's own, so that nothing
// else can be cleaned, and what is planted in them.
#ifndef VANTREL_TESTS_E2E_SUPPORT_USERFOLDERS_H_
#define VANTREL_TESTS_E2E_SUPPORT_USERFOLDERS_H_

#include <cstdint>
#include <string>
#include <vector>

#include "support/KeptValue.h"

namespace vantrel::e2e {

class UserFolders {
 public:
  // Makes the folders, empty, and has the shell name them. Throws std::runtime_error, before any
  // harm can come of it, if the shell names others, or if they or the Recycle Bin do not lie where
  // this run of the tests alone has its data.
  UserFolders();
  ~UserFolders();
  UserFolders(const UserFolders&) = delete;
  UserFolders& operator=(const UserFolders&) = delete;

  const std::string Top;
  const std::string Internet = Top + "\\Cache";
  const std::string Recent = Top + "\\Recent";
  const std::string History = Top + "\\History";
  const std::string Temporary = Top + "\\Temp";  // beside the history
  const std::string Cookies = Top + "\\Cookies";
  const std::string Data = Top + "\\Data";
  const std::string Outside = Top + "\\Outside";  // which nothing cleans

  // A further name of the file, in the folder Outside: what is written into the file shows there,
  // also when the file's own name is gone. Returns its path.
  std::string Watch(const std::string& path) const;

 private:
  void Check() const;

  KeptValue kept_[5];
};

// Makes a file with its folders.
void PutFile(const std::string& path, const std::string& content = "x");
// With all that is in it, whatever its attributes, but links and with them the folders around them;
// nothing if there is none.
void RemoveFolder(const std::string& folder);
bool Exists(const std::string& path);
// The names directly in a folder, sorted; neither "." nor "..".
std::vector<std::string> NamesIn(const std::string& folder);
// The bytes of all files beneath a folder.
std::uint64_t BytesBelow(const std::string& folder);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_USERFOLDERS_H_
