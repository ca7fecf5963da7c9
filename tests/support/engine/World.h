// The little of Windows that the double touches: registry values, two files and the time of day.
// Tests put a world of their own behind it.
#ifndef VANTREL_TESTS_SUPPORT_ENGINE_WORLD_H_
#define VANTREL_TESTS_SUPPORT_ENGINE_WORLD_H_

#include <cstdint>
#include <optional>
#include <string>

namespace vantrel::engine {

enum class Root { CurrentUser, LocalMachine };

class World {
 public:
  World() = default;
  World(const World&) = delete;
  World& operator=(const World&) = delete;
  virtual ~World() = default;

  // A REG_SZ, without its terminator if one is stored; nothing if it is absent or of another type.
  virtual std::optional<std::string> ReadText(Root root, const std::string& key,
                                              const std::string& name) = 0;
  // A REG_DWORD; nothing if it is absent or of another type.
  virtual std::optional<std::uint32_t> ReadNumber(Root root, const std::string& key,
                                                  const std::string& name) = 0;
  // Stores a REG_DWORD under HKEY_CURRENT_USER; false if the key does not exist or refuses.
  virtual bool WriteNumber(const std::string& key, const std::string& name,
                           std::uint32_t number) = 0;

  // The file's bytes, nothing if it cannot be read.
  virtual std::optional<std::string> ReadFile(const std::string& path) = 0;
  // Makes the folder and the file where they are missing; false if the bytes are not written.
  virtual bool AppendToFile(const std::string& folder, const std::string& name,
                            const std::string& bytes) = 0;

  // "2006-05-04 03:02:01" in local time.
  virtual std::string LocalTime() = 0;
};

}  // namespace vantrel::engine

#endif  // VANTREL_TESTS_SUPPORT_ENGINE_WORLD_H_
