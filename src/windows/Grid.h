// The grid that all windows are laid out on: whole pixels of a screen at 96 DPI, 15 twips each.
#ifndef VANTREL_WINDOWS_GRID_H_
#define VANTREL_WINDOWS_GRID_H_

#include "forms/Design.h"
#include "forms/Form.h"

namespace vantrel::windows {

// How many twips one step of the grid is.
inline constexpr int GridStep = 15;

constexpr int Steps(int count) { return count * GridStep; }

// A place given in steps of the grid.
constexpr forms::Place Grid(int left, int top, int width, int height) {
  return {Steps(left), Steps(top), Steps(width), Steps(height)};
}

// Where every panel lies in the main window, and how large it is.
inline constexpr forms::Place PanelPlace = Grid(150, 66, 462, 304);

// A panel's one frame, within the margins of the panel.
inline constexpr forms::Place PanelFrame = Grid(12, 8, 438, 288);

// The place of a help link at the right edge of such a frame.
constexpr forms::Place HelpPlace(int top) { return Grid(384, top, 40, 15); }

constexpr forms::FormDesign PanelDesign(const char* caption) {
  return {.Caption = caption,
          .Width = PanelPlace.Width,
          .Height = PanelPlace.Height,
          .Left = PanelPlace.Left,
          .Top = PanelPlace.Top};
}

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_GRID_H_
