// The lower frame of the Clean panel: lists the cookies of one of three browsers and removes them.
// The list is for looking only; what is removed is what stands in the text box.
#ifndef VANTREL_CLEANING_COOKIES_H_
#define VANTREL_CLEANING_COOKIES_H_

#include <string>

#include "program/Program.h"
#include "windows/FrmFrameHistory.h"

namespace vantrel::cleaning {

// Adds a row for each name in the folder but the first, which is normally "."; ".." is meant to
// stand in the list. The last row is selected. Errors are ignored; window messages run meanwhile.
void EnumCookies(program::Program& program, const std::string& folder);

// Lists the hosts of a cookie file, one row for each line of a whole domain. Raises error 5 for
// such a line without a "/", keeping the rows before it, and the error of a file that cannot be
// read; a missing one is an empty list.
void ReadNetscapeCookies(program::Program& program, const std::string& path);

// The three options.
void optNetscape_Click(program::Program& program);
void ShowOperaCookies(program::Program& program);

// Removes the folder's content or the file that the text box names, then shows Internet Explorer's
// cookies; the options stay as they are.
void cmddeleteCookies_Click(program::Program& program);

// Binds the frame's events.
void AttachCookies(program::Program& program, windows::FrmFrameHistory& form);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_COOKIES_H_
