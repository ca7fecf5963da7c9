// Where things go that no design can say: controls in a window that has been sized, tool
// tips, and windows on a screen that has changed.
// Pure functions of places and sizes, in any one unit.
#ifndef VANTREL_FORMS_PLACEMENT_H_
#define VANTREL_FORMS_PLACEMENT_H_

#include <vector>

#include "forms/Design.h"

namespace vantrel::forms {

// Where a control lies within an inside of another size than the one that it was designed in. Its
// width and height are never negative.
Place PlaceWithin(const Size& inside, const Place& designed, const Anchors& anchors,
                  const Size& designedInside);

// Where a control's tool tip goes: beside the control, or above or below it, on the screen and
// clear of the other controls. Where each of these would cover one it goes above, since the mouse
// comes down a column of links more often than up.
Place TipPlace(const Size& tip, const Place& control, const std::vector<Place>& others,
               const Place& screen);

// Where a window goes that may no longer lie on the screen: no further than it must to lie there
// whole. Of one that is larger the upper left corner does, with the caption.
Place ReachablePlace(const Place& window, const Place& screen);

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_PLACEMENT_H_
