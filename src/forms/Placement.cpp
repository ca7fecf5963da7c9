#include "forms/Placement.h"

#include <algorithm>
#include <array>

namespace vantrel::forms {
namespace {

// Along one direction: where it begins and how long it is.
struct Extent {
  int Begin;
  int Length;
};

Extent Held(Extent designed, bool atBegin, bool atEnd, int growth) {
  if (!atEnd) return designed;
  if (!atBegin) return {designed.Begin + growth, designed.Length};
  return {designed.Begin, std::max(designed.Length + growth, 0)};
}

int RightOf(const Place& place) { return place.Left + place.Width; }
int BottomOf(const Place& place) { return place.Top + place.Height; }

bool Overlap(const Place& one, const Place& other) {
  return one.Left < RightOf(other) && other.Left < RightOf(one) && one.Top < BottomOf(other) &&
         other.Top < BottomOf(one);
}

bool Lies(const Place& place, const Place& within) {
  return place.Left >= within.Left && place.Top >= within.Top &&
         RightOf(place) <= RightOf(within) && BottomOf(place) <= BottomOf(within);
}

}  // namespace

Place ReachablePlace(const Place& window, const Place& screen) {
  Place place = window;
  place.Left = std::max(std::min(window.Left, RightOf(screen) - window.Width), screen.Left);
  place.Top = std::max(std::min(window.Top, BottomOf(screen) - window.Height), screen.Top);
  return place;
}

Place PlaceWithin(const Size& inside, const Place& designed, const Anchors& anchors,
                  const Size& designedInside) {
  const Extent across = Held({designed.Left, designed.Width}, anchors.Left, anchors.Right,
                             inside.Width - designedInside.Width);
  const Extent down = Held({designed.Top, designed.Height}, anchors.Top, anchors.Bottom,
                           inside.Height - designedInside.Height);
  return {across.Begin, down.Begin, across.Length, down.Length};
}

Place TipPlace(const Size& tip, const Place& control, const std::vector<Place>& others,
               const Place& screen) {
  const auto at = [&](int left, int top) { return Place{left, top, tip.Width, tip.Height}; };
  const Place above = at(control.Left, control.Top - tip.Height);
  const Place below = at(control.Left, control.Top + control.Height);
  const std::array candidates{at(control.Left + control.Width, control.Top),
                              at(control.Left - tip.Width, control.Top), above, below};
  const auto* free = std::find_if(candidates.begin(), candidates.end(), [&](const Place& place) {
    return Lies(place, screen) && std::none_of(others.begin(), others.end(), [&](const Place& one) {
             return Overlap(place, one);
           });
  });
  if (free != candidates.end()) return *free;
  return Lies(above, screen) ? above : below;
}

}  // namespace vantrel::forms
