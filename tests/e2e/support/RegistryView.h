// The real registry as the tests see it from outside: whole trees as text, single values, and what
// a test prepares.
#ifndef VANTREL_TESTS_E2E_SUPPORT_REGISTRYVIEW_H_
#define VANTREL_TESTS_E2E_SUPPORT_REGISTRYVIEW_H_

#include <windows.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace vantrel::e2e {

struct StoredValue {
  DWORD type = 0;
  std::string data;

  bool operator==(const StoredValue&) const = default;
};

// "REG_DWORD 1" or "REG_SZ 'Alert' (5 bytes)", for messages of failing tests.
std::string Show(const StoredValue& value);

StoredValue Dword(std::uint32_t number);
// The bytes as they are, without a terminator.
StoredValue Text(const std::string& text);

// The value, or nothing if it or its key does not exist.
std::optional<StoredValue> Read(HKEY root, const std::string& key, const std::string& name);
bool KeyExists(HKEY root, const std::string& key);
void Write(HKEY root, const std::string& key, const std::string& name, const StoredValue& value);
void CreateKey(HKEY root, const std::string& key);
void DeleteValue(HKEY root, const std::string& key, const std::string& name);
// With all its subkeys; nothing if there is none.
void DeleteTree(HKEY root, const std::string& key);

// Every value below the key as "subkey\name" (names in lower case) to content; subkeys themselves
// as "subkey\" with an empty content of type REG_NONE.
using Tree = std::map<std::string, StoredValue>;
// The key itself may be empty, for everything below the root. Of subkeys named `without` (in lower
// case) nothing is read but that they are there.
Tree ReadTree(HKEY root, const std::string& key, const std::string& without = "");
void WriteTree(HKEY root, const std::string& key, const Tree& tree);

// What was added, removed or changed from one tree to the other, a line each; empty if nothing.
std::string Difference(const Tree& before, const Tree& after);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_REGISTRYVIEW_H_
