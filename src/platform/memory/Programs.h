// The programs that the in-memory Windows can start, and the record of those it has started. A
// program exists if a file lies at its path or a test has registered it. Not modelled: the
// processes' own lives (a registered program runs to its end inside the call), file associations,
// batch files and the registry's list of application paths.
#ifndef VANTREL_PLATFORM_MEMORY_PROGRAMS_H_
#define VANTREL_PLATFORM_MEMORY_PROGRAMS_H_

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/memory/Desktop.h"
#include "platform/memory/FileTree.h"

namespace vantrel::platform::memory {

inline constexpr std::int32_t ErrorBadExeFormat = 193;

struct StartedProcess {
  ProcessId starter = 0;
  std::string application;  // as given
  std::string commandLine;  // as given
  int showCommand = 0;
  std::string program;    // the path that was found, as the search spelt it
  std::string arguments;  // the command line behind the program, blanks before it removed
  bool elevated = false;  // by way of the shell
};

class Programs {
 public:
  using Main = std::function<void(const StartedProcess&)>;

  explicit Programs(const FileTree& files) : files_(files) {}

  // The program exists from now on and runs `main` when started; `main` may be empty.
  void Register(const std::string& path, Main main);
  // The program asks for elevation: it starts through the shell, if at all.
  void RequireElevation(const std::string& path);
  // The user refuses every elevation with the code (1223 is the system's).
  void RefuseElevation(std::optional<std::int32_t> code) { elevationRefusal_ = code; }

  // As the system starts a process. An application's path is taken as it stands. Otherwise the
  // program is the quoted beginning of the command line or, unquoted, the shortest beginning up to
  // a blank that names one; ".exe" is added to a name without an extension, and a name without a
  // folder is looked for in the starter's folder and in Windows' own. 2 if no program is found, 3
  // for an application in a folder that is missing, 5 for a folder, 87 for an empty quoted name,
  // 193 for a file that is no program (its name ends neither in ".exe" nor in ".com").
  std::int32_t Start(ProcessId starter, const std::string& folder, const std::string& application,
                     const std::string& commandLine, int showCommand);

  const std::vector<StartedProcess>& Started() const { return started_; }
  void ClearStarted() { started_.clear(); }

 private:
  bool Exists(const std::string& path) const;
  // The path found for a name, absent if there is none.
  std::optional<std::string> Search(const std::string& folder, const std::string& name) const;
  // Sets program and arguments from the command line; false if none is found.
  bool Resolve(const std::string& folder, StartedProcess& process) const;
  std::int32_t FindProgram(const std::string& folder, StartedProcess& process) const;

  const FileTree& files_;
  std::map<std::string, Main> mains_;  // by folded path
  std::set<std::string> elevated_;
  std::optional<std::int32_t> elevationRefusal_;
  std::vector<StartedProcess> started_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_PROGRAMS_H_
