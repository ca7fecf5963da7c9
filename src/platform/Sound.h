// The playing of a sound file.
#ifndef VANTREL_PLATFORM_SOUND_H_
#define VANTREL_PLATFORM_SOUND_H_

#include <cstdint>
#include <string>

namespace vantrel::platform {

inline constexpr std::uint32_t SndAsync = 1;
inline constexpr std::uint32_t SndNoDefault = 2;

class Sound {
 public:
  virtual ~Sound() = default;

  // False if nothing could be played.
  virtual bool sndPlaySoundA(const std::string& path, std::uint32_t flags) = 0;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_SOUND_H_
