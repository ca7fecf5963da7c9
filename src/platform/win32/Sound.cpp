#include "platform/Sound.h"

#include <windows.h>
// Behind windows.h, which it needs.
#include <mmsystem.h>

#include "platform/win32/Adapters.h"

namespace vantrel::platform::win32 {
namespace {

class SoundAdapter : public Sound {
 public:
  bool sndPlaySoundA(const std::string& path, std::uint32_t flags) override {
    return ::sndPlaySoundA(path.c_str(), flags) != FALSE;
  }
};

}  // namespace

std::unique_ptr<Sound> MakeSound() { return std::make_unique<SoundAdapter>(); }

}  // namespace vantrel::platform::win32
