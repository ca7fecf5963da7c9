// The Clean panel: traces of browsing and of Windows use above, cookies below.
#ifndef VANTREL_WINDOWS_FRMFRAMEHISTORY_H_
#define VANTREL_WINDOWS_FRMFRAMEHISTORY_H_

#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/ImageList.h"
#include "forms/ListView.h"
#include "windows/Grid.h"

namespace vantrel::windows {

class FrmFrameHistory : public forms::Form {
 public:
  explicit FrmFrameHistory(forms::Toolkit& toolkit);

  forms::ImageList imgcookies{*this, "imgcookies", {"ie", "ns", "op"}};

  forms::Frame Frame1{
      *this,
      "Frame1",
      {.Caption = "Delete Cache and Windows History             ", .At = Grid(12, 8, 438, 166)}};
  forms::CheckBox chkCacheHistory{Frame1,
                                  "chkCacheHistory",
                                  {.Caption = "History folder", .At = Grid(14, 18, 142, 17)},
                                  forms::Checked};
  forms::Label lblhistory{
      Frame1, "lblhistory", {.At = Grid(158, 19, 92, 15), .Drawn = forms::Look::Note}};
  forms::CheckBox chkCacheInternet{Frame1,
                                   "chkCacheInternet",
                                   {.Caption = "Temp. internet files", .At = Grid(14, 40, 142, 17)},
                                   forms::Checked};
  forms::Label lbltif{Frame1, "lbltif", {.At = Grid(158, 41, 92, 15), .Drawn = forms::Look::Note}};
  forms::CheckBox chkCacheRecent{Frame1,
                                 "chkCacheRecent",
                                 {.Caption = "Recent files", .At = Grid(14, 62, 142, 17)},
                                 forms::Checked};
  forms::Label lblRecent{
      Frame1, "lblRecent", {.At = Grid(158, 63, 92, 15), .Drawn = forms::Look::Note}};
  forms::CheckBox chkCachetemp{Frame1,
                               "chkCachetemp",
                               {.Caption = "Other temporary files", .At = Grid(14, 84, 142, 17)},
                               forms::Checked};
  forms::Label lblotf{Frame1, "lblotf", {.At = Grid(158, 85, 92, 15), .Drawn = forms::Look::Note}};
  forms::CheckBox chkCacheHURL{Frame1,
                               "chkCacheHURL",
                               {.Caption = "History URLS", .At = Grid(252, 16, 126, 17)},
                               forms::Checked};
  forms::CheckBox chkWindowsRunHistory{Frame1,
                                       "chkWindowsRunHistory",
                                       {.Caption = "Run History", .At = Grid(252, 34, 126, 17)},
                                       forms::Checked};
  forms::CheckBox chkWindowsFindHistory{Frame1,
                                        "chkWindowsFindHistory",
                                        {.Caption = "Find History", .At = Grid(252, 52, 126, 17)},
                                        forms::Checked};
  forms::CheckBox chkWindowsRecDoc{Frame1,
                                   "chkWindowsRecDoc",
                                   {.Caption = "Recent doc. history", .At = Grid(252, 70, 126, 17)},
                                   forms::Checked};
  forms::CheckBox chkWindowsRB{Frame1,
                               "chkWindowsRB",
                               {.Caption = "Recycle Bin", .At = Grid(252, 88, 126, 17)},
                               forms::Checked};
  forms::Label lblRefresh{Frame1,
                          "lblRefresh",
                          {.Caption = "&Refresh",
                           .At = Grid(378, 17, 52, 15),
                           .ToolTipText = "Help on History and Cache cleaning",
                           .Drawn = forms::Look::Link,
                           .Alignment = forms::Align::Right}};
  forms::Label Label19{Frame1,
                       "Label19",
                       {.Caption = "Help",
                        .At = Grid(390, 39, 40, 15),
                        .ToolTipText = "Help on cleaning",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::OptionButton optBit8{
      Frame1,
      "optBit",
      {.Caption = "For slow connection", .At = Grid(14, 110, 150, 17), .Index = 8}};
  forms::OptionButton optBit9{
      Frame1,
      "optBit",
      {.Caption = "For medium connection", .At = Grid(170, 110, 170, 17), .Index = 9},
      true};
  forms::Label Label47{Frame1,
                       "Label47",
                       {.Caption = "Help",
                        .At = Grid(390, 111, 40, 15),
                        .ToolTipText = "Help on deleting the cache",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::ProgressBar pbarCache{
      Frame1, "pbarCache", {.At = Grid(14, 138, 172, 16), .Visible = false}};
  forms::Label lblcleaningstatus{
      Frame1, "lblcleaningstatus", {.Caption = "Status:", .At = Grid(192, 139, 156, 15)}};
  forms::CommandButton CmdDeleteCache{Frame1,
                                      "CmdDeleteCache",
                                      {.Caption = "Delete",
                                       .At = Grid(354, 134, 76, 23),
                                       .ToolTipText = "Click to delete Windows history"}};
  forms::Frame Frame2{
      *this,
      "Frame2",
      {.Caption = "Remove unwanted cookies         ", .At = Grid(12, 182, 438, 114)}};
  forms::OptionButton optIE{
      Frame2, "optIE", {.Caption = "Internet Explorer", .At = Grid(14, 17, 140, 17)}, true};
  forms::OptionButton optNetscape{
      Frame2, "optNetscape", {.Caption = "Netscape", .At = Grid(14, 34, 140, 17)}};
  forms::OptionButton optOpera{
      Frame2, "optOpera", {.Caption = "Opera", .At = Grid(14, 51, 140, 17)}};
  forms::Label Label1{
      Frame2, "Label1", {.Caption = "Cookies folder or file:", .At = Grid(14, 70, 146, 14)}};
  forms::TextBox txtcookies{Frame2,
                            "txtcookies",
                            {.Caption = "C:\\Documents and Settings\\Administrator\\Cookies",
                             .At = Grid(14, 85, 152, 20)}};
  forms::ListView urls{Frame2,
                       "urls",
                       {.Caption = "Cookies", .At = Grid(176, 17, 160, 88)},
                       {.Columns = {{"Name", Steps(138)}}, .SmallIcons = &imgcookies}};
  forms::Label lblcookies{Frame2, "lblcookies", {.At = Grid(344, 17, 86, 42)}};
  forms::Label Label48{Frame2,
                       "Label48",
                       {.Caption = "Help",
                        .At = Grid(390, 61, 40, 15),
                        .ToolTipText = "Help on deleting cookies",
                        .Drawn = forms::Look::Link,
                        .Alignment = forms::Align::Right}};
  forms::CommandButton cmddeleteCookies{
      Frame2,
      "cmddeleteCookies",
      {.Caption = "Delete",
       .At = Grid(354, 82, 76, 23),
       .ToolTipText = "Delete the cookies of the chosen browser"}};
};

}  // namespace vantrel::windows

#endif  // VANTREL_WINDOWS_FRMFRAMEHISTORY_H_
