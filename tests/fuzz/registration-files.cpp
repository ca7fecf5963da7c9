// Registration files of any bytes: an import ends, and what it made comes back from an export of
// either format as it was.
#include "fuzz/Fuzz.h"
#include "platform/memory/RegFile.h"

namespace {

using namespace vantrel::platform;
using namespace vantrel::platform::memory;
using vantrel::fuzz::Check;

constexpr KeyHandle Roots[] = {HKeyClassesRoot, HKeyCurrentUser, HKeyLocalMachine, HKeyUsers,
                               HKeyCurrentConfig};

// The import of an export, exported again: the second export is the first.
void CheckRoundTrip(const RegistryTree& tree, KeyHandle root, RegFormat format) {
  const std::string once = ExportReg(tree, root, "", format);
  RegistryTree back;
  Check(ImportReg(back, once), "an export can be imported");
  // A text without a terminator gains one on the way, so it is the second import that is stable.
  const std::string twice = ExportReg(back, root, "", format);
  RegistryTree again;
  Check(ImportReg(again, twice), "an export of an import can be imported");
  Check(ExportReg(again, root, "", format) == twice, "an export comes back as it was");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  vantrel::fuzz::Input input(data, size);
  // Most bytes are no file at all: one kind of input has its header given.
  const std::uint8_t kind = input.Byte();
  const std::string rest = input.Rest();
  RegistryTree tree;
  if (!ImportReg(tree, kind % 4 != 0 ? "REGEDIT4\r\n" + rest : rest)) return 0;
  const RegFormat format = kind < 128 ? RegFormat::Regedit4 : RegFormat::Version5;
  for (const KeyHandle root : Roots) {
    const RegistryKey& key = *tree.Root(root);
    if (!key.subkeys.empty() || !key.values.empty()) CheckRoundTrip(tree, root, format);
  }
  return 0;
}
