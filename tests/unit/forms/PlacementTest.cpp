#include <gtest/gtest.h>

#include <ostream>
#include <vector>

#include "forms/Placement.h"

namespace vantrel::forms {

void PrintTo(const Place& place, std::ostream* out) {
  *out << place.Left << ", " << place.Top << ", " << place.Width << ", " << place.Height;
}

namespace {

constexpr Size Designed{600, 400};
constexpr Place Bar{100, 30, 200, 20};

TEST(Placement, WithoutAnAnchorAtTheFarEdgesNothingMoves) {
  EXPECT_EQ(PlaceWithin({900, 700}, Bar, {}, Designed), Bar);
  EXPECT_EQ(PlaceWithin({10, 10}, Bar, {}, Designed), Bar);
}

TEST(Placement, HeldByOppositeEdgesItGrowsAndShrinksWithTheWindow) {
  EXPECT_EQ(PlaceWithin({900, 700}, Bar, {.Right = true}, Designed), (Place{100, 30, 500, 20}));
  EXPECT_EQ(PlaceWithin({900, 700}, Bar, {.Bottom = true}, Designed), (Place{100, 30, 200, 320}));
  EXPECT_EQ(PlaceWithin({550, 400}, Bar, {.Right = true}, Designed), (Place{100, 30, 150, 20}));
}

TEST(Placement, HeldByTheFarEdgeAloneItMoves) {
  EXPECT_EQ(PlaceWithin({900, 700}, Bar, {.Left = false, .Right = true}, Designed),
            (Place{400, 30, 200, 20}));
  EXPECT_EQ(PlaceWithin({900, 300}, Bar, {.Top = false, .Bottom = true}, Designed),
            (Place{100, -70, 200, 20}));
}

TEST(Placement, HeldByNeitherEdgeItStays) {
  EXPECT_EQ(PlaceWithin({900, 700}, Bar, {.Left = false, .Top = false}, Designed), Bar);
}

TEST(Placement, NoSizeIsEverNegative) {
  EXPECT_EQ(PlaceWithin({0, 0}, Bar, {.Right = true, .Bottom = true}, Designed),
            (Place{100, 30, 0, 0}));
}

TEST(Placement, InTheSizeThatItWasDesignedInEverythingLiesAsDesigned) {
  const Anchors all{.Left = true, .Top = true, .Right = true, .Bottom = true};
  EXPECT_EQ(PlaceWithin(Designed, Bar, all, Designed), Bar);
}

constexpr Place Screen{0, 0, 1000, 800};
constexpr Size Tip{120, 20};
constexpr Place Link{400, 300, 40, 15};

TEST(TipPlacement, ATipLiesBesideItsControl) {
  EXPECT_EQ(TipPlace(Tip, Link, {}, Screen), (Place{440, 300, 120, 20}));
}

TEST(TipPlacement, ColumnsOfLinksStayInReach) {
  const std::vector<Place> column{{400, 277, 40, 15}, {400, 323, 40, 15}};
  EXPECT_EQ(TipPlace(Tip, Link, column, Screen), (Place{440, 300, 120, 20}));
  // At the screen's edge on its other side.
  const Place atEdge{960, 300, 40, 15};
  EXPECT_EQ(TipPlace(Tip, atEdge, {{960, 277, 40, 15}, {960, 323, 40, 15}}, Screen),
            (Place{840, 300, 120, 20}));
}

TEST(TipPlacement, BetweenNeighboursATipLiesAboveOrElseBelow) {
  const std::vector<Place> row{{350, 300, 40, 15}, {450, 300, 40, 15}};
  EXPECT_EQ(TipPlace(Tip, Link, row, Screen), (Place{400, 280, 120, 20}));
  std::vector<Place> roofed = row;
  roofed.push_back({400, 282, 40, 15});
  EXPECT_EQ(TipPlace(Tip, Link, roofed, Screen), (Place{400, 315, 120, 20}));
}

TEST(TipPlacement, WhereSomethingMustBeCoveredItIsNotWhatLiesBelow) {
  const std::vector<Place> all{
      {350, 300, 40, 15}, {450, 300, 40, 15}, {400, 280, 40, 15}, {400, 320, 40, 15}};
  EXPECT_EQ(TipPlace(Tip, Link, all, Screen), (Place{400, 280, 120, 20}));
}

TEST(TipPlacement, AtTheTopOfTheScreenOnlyBelowIsLeft) {
  const Place wide{0, 5, 1000, 15};
  EXPECT_EQ(TipPlace(Tip, wide, {}, Screen), (Place{0, 20, 120, 20}));
}

TEST(TipPlacement, NeighboursThatOnlyTouchAreNotCovered) {
  EXPECT_EQ(TipPlace(Tip, Link, {{560, 300, 40, 15}, {440, 320, 40, 15}}, Screen),
            (Place{440, 300, 120, 20}));
}

constexpr Place SmallScreen{0, 0, 800, 600};

TEST(ReachablePlace, AWindowOnTheScreenStays) {
  for (const Place& window : {Place{0, 0, 620, 467}, {180, 133, 620, 467}, {90, 60, 620, 467}}) {
    EXPECT_EQ(ReachablePlace(window, SmallScreen), window);
  }
}

TEST(ReachablePlace, AWindowBesideTheScreenIsMovedNoFurtherThanItMust) {
  EXPECT_EQ(ReachablePlace({1500, 900, 620, 467}, SmallScreen), (Place{180, 133, 620, 467}));
  EXPECT_EQ(ReachablePlace({-5000, 50, 620, 467}, SmallScreen), (Place{0, 50, 620, 467}));
  EXPECT_EQ(ReachablePlace({50, -1, 620, 467}, SmallScreen), (Place{50, 0, 620, 467}));
}

TEST(ReachablePlace, OfALargerWindowTheCaptionCanBeReached) {
  EXPECT_EQ(ReachablePlace({100, 100, 930, 700}, SmallScreen), (Place{0, 0, 930, 700}));
}

TEST(ReachablePlace, AScreenNeedNotBeginAtZero) {
  EXPECT_EQ(ReachablePlace({0, 0, 620, 467}, {-1280, 30, 1280, 994}), (Place{-620, 30, 620, 467}));
}

}  // namespace
}  // namespace vantrel::forms
