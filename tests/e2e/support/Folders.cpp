#include "support/Folders.h"

#include <windows.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "support/Running.h"
#include "support/UserFolders.h"

namespace vantrel::e2e {

std::string TemporaryFolder() {
  char folder[MAX_PATH]{};
  GetTempPathA(sizeof(folder), folder);
  return folder;
}

ProgramCopy::ProgramCopy(const std::string& name) : folder_(TemporaryFolder() + name) {
  CreateDirectoryA(folder_.c_str(), nullptr);
  Fill();
}

ProgramCopy::ProgramCopy(Place /*InRoot*/) : folder_(TemporaryFolder().substr(0, 2)) { Fill(); }

void ProgramCopy::Fill() const {
  CreateDirectoryA((folder_ + "\\Settings").c_str(), nullptr);
  if (CopyFileA(ExecutablePath().c_str(), Executable().c_str(), FALSE) == FALSE) {
    throw std::runtime_error("cannot copy the program to " + folder_);
  }
}

ProgramCopy::~ProgramCopy() {
  EndAllCopies();
  RemoveFolder(folder_ + "\\Settings");
  DeleteFileA(Executable().c_str());
  const bool isDrive = folder_.back() == ':';
  if (!isDrive) RemoveDirectoryA(folder_.c_str());
}

void WriteFileBytes(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string ReadFileBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace vantrel::e2e
