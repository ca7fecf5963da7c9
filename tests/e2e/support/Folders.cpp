#include "support/Folders.h"

#include <windows.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "support/Running.h"

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
  SetFileAttributesA(LogFile().c_str(), FILE_ATTRIBUTE_NORMAL);
  DeleteFileA(LogFile().c_str());
  WIN32_FIND_DATAA found{};
  HANDLE search = FindFirstFileA((folder_ + "\\Settings\\*").c_str(), &found);
  do {
    DeleteFileA((folder_ + "\\Settings\\" + found.cFileName).c_str());
  } while (FindNextFileA(search, &found) != FALSE);
  FindClose(search);
  RemoveDirectoryA((folder_ + "\\Settings").c_str());
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
