// One implementation of the platform under the contract suite, with the means that a case needs to
// prepare the world around it. Every case gets a subject of its own.
#ifndef VANTREL_TESTS_CONTRACT_SUBJECT_H_
#define VANTREL_TESTS_CONTRACT_SUBJECT_H_

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/Platform.h"

namespace vantrel::platform::contract {

// The key that cases work in, under HKEY_CURRENT_USER; it does not exist when a case begins.
inline const std::string OwnKey = "Software\\VantrelContract";

class Subject {
 public:
  virtual ~Subject() = default;

  virtual platform::Platform Platform() = 0;
  // A further copy of the program in the same session, until it is ended.
  virtual platform::Platform StartAnother() = 0;
  virtual void EndAnother() = 0;

  // An empty folder of this case's own, without a backslash at its end.
  virtual std::string Folder() = 0;
  virtual void MakeFolder(const std::string& path) = 0;
  virtual void PutFile(const std::string& path, const std::string& content) = 0;
  virtual std::optional<std::string> ReadFile(const std::string& path) = 0;
  virtual void Hide(const std::string& path) = 0;
  virtual bool IsHidden(const std::string& path) = 0;
  // Makes the file read-only. False where the system lets this user write all the same, as Wine
  // does for root.
  virtual bool ProtectFromWriting(const std::string& path) = 0;
  // When the file or folder was last changed, in units of 100 ns since 1601, world time.
  virtual void SetChanged(const std::string& path, std::int64_t changed) = 0;
  // Makes a link to a file or folder; false where the system makes none.
  virtual bool MakeLink(const std::string& path, const std::string& target) = 0;
  // Opens the file for reading and writing, shared with readers and writers, until the subject
  // dies.
  virtual void OpenShared(const std::string& path) = 0;
  // Opens the file or folder for itself alone, until closed again or the subject dies.
  virtual void Lock(const std::string& path) = 0;
  virtual void Unlock() = 0;
  // Puts a program there that ends at once.
  virtual void PutProgram(const std::string& path) = 0;
  // Puts a library there with two entries: "DllRegisterServer" returns 7, "Hang" does not return
  // until all that hang are let go, and then 0.
  virtual void PutLibrary(const std::string& path) = 0;
  virtual void LetGo() = 0;

  // Puts a file into the Recycle Bin; false where that is not the run's own.
  virtual bool Recycle(const std::string& path) = 0;
  virtual int ItemsInBin() = 0;

  virtual void ChooseHighContrast(bool chosen) = 0;

  // A window of 100 by 50 pixels at the place, without title bar, visible; with a parent it is its
  // child. It takes texts and counts clicks (BmClick).
  virtual WindowHandle MakeWindow(WindowHandle parent, const std::string& caption, Point place) = 0;
  virtual int ClicksOf(WindowHandle window) = 0;
  virtual void Minimize(WindowHandle window) = 0;
  virtual void Hide(WindowHandle window) = 0;
  virtual void DestroyWindow(WindowHandle window) = 0;
};

struct SubjectKind {
  const char* name;
  std::unique_ptr<Subject> (*make)();
};

// For failure messages.
inline void PrintTo(const SubjectKind& kind, std::ostream* out) { *out << kind.name; }

class ContractTest : public testing::TestWithParam<SubjectKind> {
 protected:
  ContractTest();

  std::unique_ptr<Subject> subject_;
  platform::Platform platform_;

 private:
  void SweepKeys();
};

std::unique_ptr<Subject> MakeMemorySubject();
std::unique_ptr<Subject> MakeWin32Subject();

#ifdef _WIN32
inline const auto AllKinds = testing::Values(SubjectKind{"Memory", MakeMemorySubject},
                                             SubjectKind{"Windows", MakeWin32Subject});
#else
inline const auto AllKinds = testing::Values(SubjectKind{"Memory", MakeMemorySubject});
#endif

inline std::string KindName(const testing::TestParamInfo<SubjectKind>& info) {
  return info.param.name;
}

}  // namespace vantrel::platform::contract

#endif  // VANTREL_TESTS_CONTRACT_SUBJECT_H_
