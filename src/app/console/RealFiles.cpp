#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "app/console/State.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

constexpr std::uintmax_t LargestFile = std::uintmax_t{256} << 20U;

[[noreturn]] void Refuse(const char* what, const std::string& path, const std::string& why) {
  throw CommandError(std::string("cannot ") + what + ' ' + Quoted(path.substr(0, 200)) + ": " +
                     why);
}

}  // namespace

std::string ReadRealFile(const std::string& path) {
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) Refuse("read", path, "it is a folder");
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (!error && size > LargestFile) Refuse("read", path, "it is too large");
  std::ifstream file(path, std::ios::binary);
  if (!file) Refuse("read", path, std::strerror(errno));
  std::ostringstream content;
  content << file.rdbuf();
  if (file.bad()) Refuse("read", path, "the disk failed");
  return content.str();
}

void WriteRealFile(const std::string& path, const std::string& content) {
  const std::string beside = path + ".new";
  {
    std::ofstream file(beside, std::ios::binary | std::ios::trunc);
    if (!file) Refuse("write", path, std::strerror(errno));
    file << content;
    file.close();
    if (!file) {
      std::remove(beside.c_str());
      Refuse("write", path, "the disk failed");
    }
  }
  std::error_code error;
  std::filesystem::rename(beside, path, error);
  if (!error) return;
  std::remove(beside.c_str());
  Refuse("write", path, error.message());
}

}  // namespace vantrel::console
