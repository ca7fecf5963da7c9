// What a test may ask inside the program's process.
#ifndef VANTREL_TESTS_E2E_LOOK_INSIDE_PROTOCOL_H_
#define VANTREL_TESTS_E2E_LOOK_INSIDE_PROTOCOL_H_

#include <windows.h>

namespace vantrel::e2e::inside {

inline constexpr const char* WindowName = "Vantrel look inside";
inline constexpr const char* MemoryName = "VantrelLookInside";

// The font of the control in the first parameter is put into the shared memory; answers 1.
inline constexpr UINT AskFont = WM_APP + 1;

// The scheme in the first parameter becomes the user's, as that process sees it, and every window
// is notified; answers 1.
inline constexpr UINT AskScheme = WM_APP + 2;

enum class Scheme {
  Own,       // that of the start
  Inverted,  // each colour of it as its opposite
  HighContrastBlack,
  HighContrastWhite,
};

struct Memory {
  LOGFONTA Font;
};

}  // namespace vantrel::e2e::inside

#endif  // VANTREL_TESTS_E2E_LOOK_INSIDE_PROTOCOL_H_
