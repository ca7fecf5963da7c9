#include "blocking/bmdlsound.h"

namespace vantrel::blocking {

void PlaySoundFile(platform::Sound& sound, const std::string& path) {
  sound.sndPlaySoundA(path, platform::SndAsync | platform::SndNoDefault);
}

}  // namespace vantrel::blocking
