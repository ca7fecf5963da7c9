// A user who has chosen high contrast, or not, for one module: where the choice cannot be made for
// a test, the system's answer is.
#ifndef VANTREL_TESTS_SUPPORT_WIN32_HIGHCONTRAST_H_
#define VANTREL_TESTS_SUPPORT_WIN32_HIGHCONTRAST_H_

#include "support/win32/ImportedCall.h"

namespace vantrel::tests {

inline bool highContrastChosen = false;

// The other form of the call is the system's own still, also for the module that this is part of.
inline BOOL WINAPI AnswerWithTheChoice(UINT action, UINT size, void* data, UINT flags) {
  const BOOL answered = SystemParametersInfoW(action, size, data, flags);
  if (action == SPI_GETHIGHCONTRAST && size == sizeof(HIGHCONTRASTA)) {
    static_cast<HIGHCONTRASTA*>(data)->dwFlags = highContrastChosen ? HCF_HIGHCONTRASTON : 0;
    return TRUE;
  }
  return answered;
}

// From here on the module is given this choice. False if it never asks.
inline bool ChooseHighContrast(HMODULE module, bool chosen) {
  highContrastChosen = chosen;
  return ReplaceImport(module, "SystemParametersInfoA", AnswerWithTheChoice);
}

}  // namespace vantrel::tests

#endif  // VANTREL_TESTS_SUPPORT_WIN32_HIGHCONTRAST_H_
