#include "app/console/Paths.h"

#include <algorithm>
#include <chrono>

#include "app/console/Words.h"

namespace vantrel::console {
namespace {

namespace memory = platform::memory;

constexpr const char* ProgramFolder = "C:\\Program Files\\Vantrel\\";

[[noreturn]] void Refuse(const std::string& text) {
  throw CommandError("not a path on drive C: " + Quoted(text.substr(0, 80)));
}

bool HasForbiddenCharacter(const std::string& path) {
  const auto forbidden = [](char c) {
    return static_cast<unsigned char>(c) < ' ' ||
           std::string_view("<>\"|?*:").find(c) != std::string_view::npos;
  };
  return std::any_of(path.begin() + 2, path.end(), forbidden);
}

// No file may stand where a folder is needed.
void CheckAbove(const memory::FileTree& files, const std::string& path) {
  for (std::size_t slash = path.find('\\', 3); slash != std::string::npos;
       slash = path.find('\\', slash + 1)) {
    const std::string above = path.substr(0, slash);
    if (files.IsFile(above)) throw CommandError(Quoted(above) + " is a file");
  }
}

}  // namespace

std::string FolderPath(const std::string& text) {
  std::string path = text;
  std::replace(path.begin(), path.end(), '/', '\\');
  if (path.find(':') == std::string::npos) path.insert(0, ProgramFolder);
  const bool onDrive = path.size() >= 2 && (path[0] == 'C' || path[0] == 'c') && path[1] == ':';
  if (!onDrive || (path.size() > 2 && path[2] != '\\')) Refuse(text);
  if (path.size() > LongestPath) throw CommandError("the path is too long");
  if (HasForbiddenCharacter(path)) Refuse(text);
  while (path.back() == '\\') path.pop_back();
  return path;
}

std::string FilePath(const std::string& text) {
  std::string path = FolderPath(text);
  if (path.size() < 4) Refuse(text);
  return path;
}

void MakeFolder(memory::FileTree& files, const std::string& path) {
  CheckAbove(files, path + '\\');
  files.MakeFolder(path);
}

void PutFile(memory::FileTree& files, const std::string& path, const std::string& content) {
  CheckAbove(files, path);
  if (files.IsFolder(path)) throw CommandError(Quoted(path) + " is a folder");
  files.Put(path, content);
}

void SetClock(memory::World& world, const memory::LocalTime& time) {
  const std::chrono::year_month_day day{std::chrono::year(time.year),
                                        std::chrono::month(static_cast<unsigned>(time.month)),
                                        std::chrono::day(static_cast<unsigned>(time.day))};
  if (!day.ok()) throw CommandError("there is no such day");
  world.clock.SetLocalTime(time);
}

}  // namespace vantrel::console
