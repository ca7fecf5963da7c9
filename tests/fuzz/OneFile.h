// A disk with one file, whatever its path, for fuzzers of what that file holds: on the in-memory
// Windows most of the time would go into finding it.
#ifndef VANTREL_TESTS_FUZZ_ONEFILE_H_
#define VANTREL_TESTS_FUZZ_ONEFILE_H_

#include <string>

#include "platform/Platform.h"

namespace vantrel::fuzz {

class OneFile : public platform::Files {
 public:
  std::string content;

  bool FileExists(const std::string& /*path*/) override { return true; }
  std::int32_t FileLength(const std::string& /*path*/, std::uint64_t& length) override {
    length = content.size();
    return 0;
  }
  std::int32_t ReadTextFile(const std::string& /*path*/, std::string& text) override {
    text = content;
    return 0;
  }
  std::int32_t CreateTextFile(const std::string& /*path*/) override { return 0; }
  std::int32_t WriteTextFile(const std::string& /*path*/, const std::string& text) override {
    content = text;
    return 0;
  }
  std::int32_t AppendTextFile(const std::string& /*path*/, const std::string& text) override {
    content += text;
    return 0;
  }
};

// The platform with that disk in place of its own.
inline platform::Platform WithFiles(const platform::Platform& platform, platform::Files& files) {
  return {platform.registry,  platform.desktop, platform.shell,      files,
          platform.processes, platform.sound,   platform.dialogs,    platform.system,
          platform.modules,   platform.folders, platform.binaryFiles};
}

}  // namespace vantrel::fuzz

#endif  // VANTREL_TESTS_FUZZ_ONEFILE_H_
