// Folders of the tests' own, and copies of the program in folders of any name.
#ifndef VANTREL_TESTS_E2E_SUPPORT_FOLDERS_H_
#define VANTREL_TESTS_E2E_SUPPORT_FOLDERS_H_

#include <string>

namespace vantrel::e2e {

// The user's folder for temporary files, with a backslash at its end.
std::string TemporaryFolder();

// A program folder made for one test: the executable and an empty folder Settings. It goes with
// the object, when no copy runs from it any more.
class ProgramCopy {
 public:
  // `name` of the folder, below the temporary one.
  explicit ProgramCopy(const std::string& name);
  // In the root of the drive with the temporary folder.
  enum Place { InRoot };
  explicit ProgramCopy(Place place);
  ~ProgramCopy();
  ProgramCopy(const ProgramCopy&) = delete;
  ProgramCopy& operator=(const ProgramCopy&) = delete;

  const std::string& Folder() const { return folder_; }  // without a backslash at its end
  std::string Executable() const { return folder_ + "\\Vantrel.exe"; }
  std::string LogFile() const { return folder_ + "\\Settings\\log.txt"; }

 private:
  void Fill() const;

  std::string folder_;
};

void WriteFileBytes(const std::string& path, const std::string& bytes);
// The whole file, empty if there is none.
std::string ReadFileBytes(const std::string& path);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_FOLDERS_H_
