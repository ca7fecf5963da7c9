// The dialog that lays out the browser toolbar: the entries on it and those not on it.
#ifndef VANTREL_WINDOWS_FRMCUSTOM_H_
#define VANTREL_WINDOWS_FRMCUSTOM_H_

#include <string>

#include "forms/Bars.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class frmcustom : public forms::Form {
 public:
  explicit frmcustom(forms::Toolkit& toolkit);

  // The name of the list in which a row was clicked last; empty until then.
  std::string ActiveList;
  // The stored name, as it was read; the box of the name gets a constant.
  std::string ToolbarName;

  forms::Menu mnufile{*this, "mnufile", "File", false};
  forms::Menu mnuabout{*this, "mnuabout", "About", false};
  forms::Menu mnusearch{*this, "mnusearch", "Search", false};
  forms::Menu mnusite{*this, "mnusite", "Site", false};

  forms::ImageList ImageList1{*this,
                              "ImageList1",
                              {"Home", "Seperator2", "Seperator", "Clean", "Refresh", "Add Links",
                               "On/Off", "Toolbar Settings", "Notification", "Graph", "IE Plugins",
                               "IE Settings", "Options", "Help Vantrel"}};

  forms::Label Label1{
      *this,
      "Label1",
      {.Caption =
           "You may customize the Internet Explorer Vantrel toolbar  here. Simply add, move, "
           "or delete buttons to configure the toolbar as you wish it to apear. ",
       .At = Grid(12, 10, 480, 32)}};
  forms::ListView lstvSet{
      *this,
      "lstvSet",
      {.Caption = "Buttons Not Shown", .At = Grid(12, 50, 182, 216)},
      {.Columns = {{"Buttons Not Shown", Steps(160)}}, .SmallIcons = &ImageList1}};
  forms::CommandButton cmdAdd{*this, "cmdAdd", {.Caption = "Add >>", .At = Grid(204, 74, 96, 23)}};
  forms::CommandButton cmdRemove{
      *this, "cmdRemove", {.Caption = "<< Remove", .At = Grid(204, 102, 96, 23)}};
  forms::CommandButton cmdMUp{
      *this, "cmdMUp", {.Caption = "Move Up", .At = Grid(204, 144, 96, 23)}};
  forms::CommandButton cmdMDown{
      *this, "cmdMDown", {.Caption = "Move Down", .At = Grid(204, 172, 96, 23)}};
  forms::CommandButton cmdReset{
      *this, "cmdReset", {.Caption = "Reset", .At = Grid(204, 214, 96, 23)}};
  forms::ListView lstvCurrent{
      *this,
      "lstvCurrent",
      {.Caption = "Current Buttons", .At = Grid(310, 50, 182, 216)},
      {.Columns = {{"Current Buttons", Steps(160)}}, .SmallIcons = &ImageList1}};
  forms::Label Label3{*this, "Label3", {.Caption = "Toolbar name:", .At = Grid(12, 281, 88, 15)}};
  forms::TextBox txttoolbarname{*this, "txttoolbarname", {.At = Grid(104, 278, 388, 20)}};
  forms::Label Label2{*this,
                      "Label2",
                      {.Caption = "You may have to restart Internet Explorer to see the changes",
                       .At = Grid(12, 308, 280, 30)}};
  forms::CommandButton cmdDone{*this, "cmdDone", {.Caption = "Save", .At = Grid(310, 312, 86, 23)}};
  forms::CommandButton Command1{
      *this, "Command1", {.Caption = "Ok", .At = Grid(406, 312, 86, 23), .Default = true}};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMCUSTOM_H_
