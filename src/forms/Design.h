// What a designer says of a control: one record for all kinds, of which each kind reads the fields
// it has. Places are in twips (1440 an inch), relative to the container's inside.
#ifndef VANTREL_FORMS_DESIGN_H_
#define VANTREL_FORMS_DESIGN_H_

#include <string_view>

#include "forms/Palette.h"

namespace vantrel::forms {

struct Place {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  bool operator==(const Place&) const = default;
};

struct Size {
  int Width = 0;
  int Height = 0;

  bool operator==(const Size&) const = default;
};

// The edges of its window's inside from which a control keeps its distance when the window is
// sized. Held by two opposite edges it grows with the window; by neither it stays where it is.
struct Anchors {
  bool Left = true;
  bool Top = true;
  bool Right = false;
  bool Bottom = false;

  bool operator==(const Anchors&) const = default;
};

struct Font {
  const char* Name = "";  // the dialog font
  double Size = 8;        // in points
  bool Bold = false;
  bool Underline = false;

  bool operator==(const Font& other) const {
    return std::string_view(Name) == other.Name && Size == other.Size && Bold == other.Bold &&
           Underline == other.Underline;
  }
};

// How a label, button or frame is drawn. The meaning stays with its kind.
enum class Look {
  Plain,         // text in the window's colours
  Link,          // a label that is clicked: link colour, underlined while pointed at, a Tab stop
  Note,          // secondary text
  Figure,        // a large number
  GroupHeading,  // a heading bar of the left column
  Title,         // the gradient title bar of the main window
  PanelHeading,  // a panel's own heading line
  Card,          // a frame without caption, drawn as a sheet
};

enum class Align { Left, Right, Center };

struct Design {
  const char* Caption = "";  // or the text of a text box
  Place At{};
  const char* ToolTipText = "";
  bool Visible = true;
  bool Enabled = true;
  Look Drawn = Look::Plain;
  Align Alignment = Align::Left;
  int Index = -1;        // its place in an array of controls of one name, -1 for none
  bool Default = false;  // the button that Enter presses
  bool Cancel = false;   // the button that Esc presses
  Font TextFont{};
  Anchors Anchored{};  // of a control directly on a form
};

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_DESIGN_H_
