#include "platform/memory/RegistryEditor.h"

#include <algorithm>

#include "platform/memory/RegFile.h"
#include "text/Strings.h"

namespace vantrel::platform::memory {
namespace {

// The arguments between blanks, which quotes hold together; the end closes an open quote.
std::vector<std::string> Arguments(const std::string& commandLine) {
  std::vector<std::string> arguments;
  bool quoted = false;
  bool inside = false;
  for (const char c : commandLine) {
    const bool separates = !quoted && (c == ' ' || c == '\t');
    if (!separates && !inside) arguments.emplace_back();
    inside = !separates;
    if (c == '"') {
      quoted = !quoted;
    } else if (inside) {
      arguments.back().push_back(c);
    }
  }
  return arguments;
}

void Export(World& world, const std::string& file, const std::string& key) {
  const std::size_t slash = std::min(key.find('\\'), key.size());
  const KeyHandle root = RegistryTree::RootNamed(key.substr(0, slash));
  if (root == 0) return;
  const std::string bytes =
      ExportReg(world.registry, root, key.substr(std::min(slash + 1, key.size())));
  if (!bytes.empty()) world.files.Write(file, bytes);
}

void Import(World& world, const std::string& file) {
  std::string bytes;
  if (world.files.Load(file, bytes) == ErrorSuccess) ImportReg(world.registry, bytes);
}

void Run(World& world, const std::vector<std::string>& arguments) {
  const bool exports = !arguments.empty() && text::EqualIgnoringCase(arguments[0], "/e");
  if (!exports) {
    for (const std::string& argument : arguments) Import(world, argument);
  } else if (arguments.size() == 3) {
    Export(world, arguments[1], arguments[2]);
  }
}

}  // namespace

void InstallRegistryEditor(World& world) {
  world.programs.Register(RegistryEditorPath, [&world](const StartedProcess& started) {
    Run(world, Arguments(started.arguments));
  });
}

}  // namespace vantrel::platform::memory
