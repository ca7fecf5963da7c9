// The registry of the in-memory Windows, as the NT family has it: keys and values under the
// predefined roots, shared by all processes. HKEY_CLASSES_ROOT is a root of its own. Data is kept
// as the ANSI calls see it, byte for byte. Not modelled: security descriptors beyond one refusal a
// key, links, volatile keys, classes, times of writing, notifications, the 32-bit view, and the
// order of HKEY_CLASSES_ROOT's two halves. Names fold ASCII letters only.
#ifndef VANTREL_PLATFORM_MEMORY_REGISTRYTREE_H_
#define VANTREL_PLATFORM_MEMORY_REGISTRYTREE_H_

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"

namespace vantrel::platform::memory {

inline constexpr KeyHandle HKeyUsers = 0x80000003U;
inline constexpr KeyHandle HKeyCurrentConfig = 0x80000005U;

inline constexpr std::size_t MaxKeyNameLength = 255;
inline constexpr std::size_t MaxValueNameLength = 16383;

// Whether values of the type are texts.
constexpr bool HoldsText(std::uint32_t type) {
  return type == RegSz || type == RegExpandSz || type == RegMultiSz;
}

// What this user may not do with a key and all below it.
enum class Refusal { None, Write, All };

struct RegistryValue {
  std::string name;
  std::uint32_t type = RegSz;
  std::string data;

  friend bool operator==(const RegistryValue&, const RegistryValue&) = default;
};

// One key. Subkeys lie in the order of their folded names, values in the order of their making.
struct RegistryKey : std::enable_shared_from_this<RegistryKey> {
  std::string name;  // a root's is its short name, e.g. "HKCU"
  RegistryKey* parent = nullptr;
  std::vector<std::shared_ptr<RegistryKey>> subkeys;
  std::vector<RegistryValue> values;
  std::optional<Refusal> refusal;  // absent: as the parent's
  bool deleted = false;

  RegistryKey* Subkey(std::string_view subkeyName) const;
  RegistryKey& MakeSubkey(std::string_view subkeyName);
  RegistryValue* Value(std::string_view valueName);
  // Keeps the name's first spelling and the place in the order.
  void SetValue(const std::string& valueName, std::uint32_t type, std::string_view data);
  bool DeleteValue(std::string_view valueName);
  Refusal EffectiveRefusal() const;
  // From the root's short name on, e.g. "HKCU\Software\Qorvel".
  std::string Path() const;
};

// A test's direct access to the registry: it obeys no refusal. A root must be one of the predefined
// ones. Subkeys are paths with backslashes.
class RegistryTree {
 public:
  RegistryTree();

  // Values of a key opened with an empty mask can be read, as on systems of the 9x family.
  bool readsWithoutAccess = false;

  void MakeKey(KeyHandle root, const std::string& subkey);
  bool HasKey(KeyHandle root, const std::string& subkey) const;
  // With all that is below; handles to them stay open and answer 1018.
  void RemoveKey(KeyHandle root, const std::string& subkey);
  // In the order of enumeration; nothing for a missing key.
  std::vector<std::string> Subkeys(KeyHandle root, const std::string& subkey) const;
  std::vector<RegistryValue> Values(KeyHandle root, const std::string& subkey) const;

  // These make the key where it is missing. A string is stored with its terminator.
  void Set(KeyHandle root, const std::string& subkey, const std::string& valueName,
           std::uint32_t type, std::string_view data);
  void SetString(KeyHandle root, const std::string& subkey, const std::string& valueName,
                 const std::string& text);
  void SetDword(KeyHandle root, const std::string& subkey, const std::string& valueName,
                std::uint32_t number);
  void RemoveValue(KeyHandle root, const std::string& subkey, const std::string& valueName);

  // Absent if the key or the value is.
  std::optional<RegistryValue> Get(KeyHandle root, const std::string& subkey,
                                   const std::string& valueName) const;
  // A string value's text up to its first NUL, a number's value; absent also for another type.
  std::optional<std::string> GetString(KeyHandle root, const std::string& subkey,
                                       const std::string& valueName) const;
  std::optional<std::uint32_t> GetDword(KeyHandle root, const std::string& subkey,
                                        const std::string& valueName) const;

  // Makes the key refuse from now on; handles already open keep what they were granted.
  void Refuse(KeyHandle root, const std::string& subkey, Refusal refusal);

  // The root's key; none for a handle that is no predefined root.
  std::shared_ptr<RegistryKey> Root(KeyHandle root) const;
  // The predefined root with the long or short name, 0 if there is none.
  static KeyHandle RootNamed(std::string_view name);
  static std::string LongNameOf(KeyHandle root);

 private:
  RegistryKey* Find(KeyHandle root, const std::string& subkey) const;
  RegistryKey& Make(KeyHandle root, const std::string& subkey);

  std::map<KeyHandle, std::shared_ptr<RegistryKey>> roots_;
};

// The parts of a path between its backslashes, empty ones left out.
std::vector<std::string> PathParts(std::string_view path);

// Marks the key and all below it as deleted and takes it out of its parent.
void Unlink(RegistryKey& key);

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_REGISTRYTREE_H_
