// Paths and times of the in-memory Windows as the user gives them, checked before they are used.
#ifndef VANTREL_APP_CONSOLE_PATHS_H_
#define VANTREL_APP_CONSOLE_PATHS_H_

#include <string>

#include "platform/memory/World.h"

namespace vantrel::console {

inline constexpr std::size_t LongestPath = 259;

// A full path on drive C:, as it was given but with backslashes; CommandError for anything else.
// Without a drive it lies in the program's folder.
std::string FolderPath(const std::string& text);
// The same, and not the root.
std::string FilePath(const std::string& text);

// CommandError if a file or folder of the other kind is in the way, here or above.
void MakeFolder(platform::memory::FileTree& files, const std::string& path);
void PutFile(platform::memory::FileTree& files, const std::string& path,
             const std::string& content);

// CommandError for a day that does not exist.
void SetClock(platform::memory::World& world, const platform::memory::LocalTime& time);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_PATHS_H_
