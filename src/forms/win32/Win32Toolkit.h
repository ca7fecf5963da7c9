// The windows of the real desktop. Forms and their controls become windows of the platform, drawn
// by its common controls where there is one for the kind; what they are, say and do stays with
// the models.
#ifndef VANTREL_FORMS_WIN32_WIN32TOOLKIT_H_
#define VANTREL_FORMS_WIN32_WIN32TOOLKIT_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "forms/Toolkit.h"

namespace vantrel::forms::win32 {

// Where the pictures of an image list lie: side by side in one strip, which the program carries
// once for each scale, as resources of type RCDATA with ascending numbers.
struct ImageStrip {
  std::string List;  // the list's qualified name
  int Resource = 0;  // of the first scale
  int Count = 0;
  int Width = 0;  // of one picture, at 96 dots per inch
  int Height = 0;
};

// Pixels in rows from the top, each 0xAARRGGBB with the colours multiplied by alpha.
struct Picture {
  int Width = 0;
  int Height = 0;
  std::vector<std::uint32_t> Pixels;
};

struct Pictures {
  std::vector<ImageStrip> Strips;
  std::vector<int> Scales;  // ascending, in percent
  // Makes a picture of a resource's bytes; nothing for bytes that are none.
  std::function<std::optional<Picture>(std::span<const std::byte>)> Unpack;
  int IconResource = 1;
};

class Win32Toolkit : public Toolkit {
 public:
  // The program's loop of messages. Returns when the program is ending, or received WM_QUIT.
  virtual void RunMessageLoop() = 0;
};

// One a process. Lists without a strip show no pictures. `highContrast` says whether the user has
// chosen high contrast; it is asked at first and whenever Windows reports a change.
std::unique_ptr<Win32Toolkit> MakeWin32Toolkit(Pictures pictures,
                                               std::function<bool()> highContrast);

}  // namespace vantrel::forms::win32

#endif  // VANTREL_FORMS_WIN32_WIN32TOOLKIT_H_
