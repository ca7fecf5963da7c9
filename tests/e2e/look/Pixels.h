// What stands on the screen.
#ifndef VANTREL_TESTS_E2E_LOOK_PIXELS_H_
#define VANTREL_TESTS_E2E_LOOK_PIXELS_H_

#include <windows.h>

#include <vector>

namespace vantrel::e2e {

// The colours of an area of the screen, row by row.
std::vector<COLORREF> PixelsOf(const RECT& area);

// The most frequent colour, CLR_INVALID of no pixels.
COLORREF GroundWithin(const std::vector<COLORREF>& pixels);

// The contrast between the ground and the colour that stands out most.
double ContrastWithin(const std::vector<COLORREF>& pixels);

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_LOOK_PIXELS_H_
