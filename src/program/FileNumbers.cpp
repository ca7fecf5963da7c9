#include "program/FileNumbers.h"

#include <cassert>

namespace vantrel::program {

int FileNumbers::FreeFile() const {
  int number = 1;
  for (const auto& [used, file] : open_) {
    if (used != number) break;
    ++number;
  }
  return number;
}

std::int32_t FileNumbers::Open(int number, const std::string& path, platform::FileAccess access) {
  assert(Handle(number) == 0);
  platform::OpenFileHandle file = 0;
  const std::int32_t code = files_.OpenFile(path, access, file);
  if (code == 0) open_[number] = file;
  return code;
}

platform::OpenFileHandle FileNumbers::Handle(int number) const {
  const auto found = open_.find(number);
  return found == open_.end() ? 0 : found->second;
}

void FileNumbers::Close(int number) {
  files_.CloseFile(Handle(number));
  open_.erase(number);
}

void FileNumbers::CloseAll() {
  for (const auto& [number, file] : open_) files_.CloseFile(file);
  open_.clear();
}

}  // namespace vantrel::program
