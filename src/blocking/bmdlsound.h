// The playing of a sound file, the program's only use of sound.
#ifndef VANTREL_BLOCKING_BMDLSOUND_H_
#define VANTREL_BLOCKING_BMDLSOUND_H_

#include <string>

#include "platform/Sound.h"

namespace vantrel::blocking {

// Returns at once; a missing file plays nothing, not even the system's own sound.
void PlaySoundFile(platform::Sound& sound, const std::string& path);

}  // namespace vantrel::blocking

#endif  // VANTREL_BLOCKING_BMDLSOUND_H_
