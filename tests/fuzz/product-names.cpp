// Files of any bytes: the quick search for a product name gives what the plain one does, wherever
// the borders of its blocks fall, and leaves no file open.
#include "fileutil/modFileInfo.h"
#include "fuzz/Fuzz.h"
#include "support/PlainProductName.h"
#include "support/ProgramFixture.h"

namespace {

using namespace vantrel;
using fuzz::Check;

constexpr const char* Path = "C:\\x.dll";
constexpr std::size_t Block = std::size_t{256} * 1024;

struct Running {
  Running() { copy.process.Trace().Stop(); }

  platform::memory::World world;
  test::Copy copy{world};
  test::plain::ProductName plain;
};

void CheckName(Running& running, const std::string& bytes) {
  running.world.files.Put(Path, bytes);
  const std::string name = fileutil::GetProductName(running.copy.program, Path);
  Check(name == running.plain.Of(bytes), "both searches find the same name");
  Check(name.find('\0') == std::string::npos, "a name has no zeros");
  Check(running.copy.program.ProductNameFallbacks ==
            static_cast<std::int16_t>(running.plain.Fallbacks()),
        "both searches count the same");
  Check(running.copy.process.OpenFiles() == 0, "no file stays open");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  fuzz::Input input(data, size);
  const std::string bytes = input.Rest();
  CheckName(running, bytes);
  // The same with a border of blocks among the bytes, which takes a thousand times as long.
  if (fuzz::IsOneIn(4096, bytes)) {
    CheckName(running, std::string(Block - std::min(Block, bytes.size() / 2), 'x') + bytes);
  }
  return 0;
}
