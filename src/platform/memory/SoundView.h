// The playing of sounds by one process: recorded, over the world's files.
#ifndef VANTREL_PLATFORM_MEMORY_SOUNDVIEW_H_
#define VANTREL_PLATFORM_MEMORY_SOUNDVIEW_H_

#include "platform/Sound.h"
#include "platform/memory/World.h"

namespace vantrel::platform::memory {

class SoundView : public Sound {
 public:
  SoundView(World& world, ProcessId process) : world_(world), process_(process) {}

  bool sndPlaySoundA(const std::string& path, std::uint32_t flags) override {
    world_.playedSounds.push_back({process_, path, flags});
    return world_.files.IsFile(path.c_str());
  }

 private:
  World& world_;
  ProcessId process_;
};

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_SOUNDVIEW_H_
