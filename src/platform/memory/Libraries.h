// The libraries of the in-memory Windows and the threads that run their entries. A library exists
// if a test has registered it and its file is there. There is one thread in truth: a routine runs
// to its end when its thread is made, unless it hangs. Not modelled: the search for a library by
// its bare name, what a library does when it is loaded, the lock on a loaded library's file,
// threads that start suspended, and the time that a wait takes.
#ifndef VANTREL_PLATFORM_MEMORY_LIBRARIES_H_
#define VANTREL_PLATFORM_MEMORY_LIBRARIES_H_

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Modules.h"
#include "platform/memory/Desktop.h"
#include "platform/memory/FileTree.h"

namespace vantrel::platform::memory {

struct Thread {
  ProcessId process = 0;
  std::uint32_t id = 0;
  bool runs = false;
  std::uint32_t exitCode = StillActive;
};

class Libraries {
 public:
  using Entry = std::function<std::int32_t()>;
  using Entries = std::map<std::string, Entry>;  // by name, case distinguished

  // An entry that does not return until Release.
  static inline const Entry Hangs;

  explicit Libraries(FileTree& files) : files_(files) {}

  // The file at the full path is a library with these entries from now on; it is put there where it
  // is missing. A second call for the path replaces the entries.
  void Register(const std::string& path, const Entries& entries);
  // Lets all hanging entries return 0.
  void Release();

  // How often a process has loaded the library and not freed it.
  std::size_t Loads(const std::string& path) const;
  // How many threads of the process run, its own not counted.
  std::size_t RunningThreads(ProcessId process) const;

  // For the processes' views.
  bool Exists(const std::string& path) const;
  void CountLoad(const std::string& path, int change);
  // 0 if the library has no such entry.
  EntryAddress Find(const std::string& path, const std::string& name);
  // The name of an entry for the trace; the address must be one.
  const std::string& NameOf(EntryAddress address) const;
  std::shared_ptr<Thread> Start(ProcessId process, EntryAddress routine);

 private:
  struct Address {
    std::string path;  // folded
    std::string name;
  };

  const Address& At(EntryAddress address) const;

  FileTree& files_;
  std::map<std::string, Entries> entries_;    // by folded path
  std::map<std::string, std::size_t> loads_;  // by folded path
  std::vector<Address> addresses_;
  std::vector<std::shared_ptr<Thread>> hanging_;
  std::uint32_t nextThread_ = 5000;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_LIBRARIES_H_
