// The Allowed List panel: a site added, the selected row changed, the selected row deleted. The
// list's rows are the working copy from which the file is written anew; each act ends with the list
// read again. The check boxes are the user's: no act changes them, and a click on a row takes its
// name alone, so that an edit writes the boxes as they stand. This is meant.
#ifndef VANTREL_ALLOWLIST_ALLOWLISTPANEL_H_
#define VANTREL_ALLOWLIST_ALLOWLISTPANEL_H_

#include "program/Program.h"

namespace vantrel::allowlist {

// Appends the site in the box as typed. A failure of the file reads as a site that is there
// already.
void cmdAddWebsite_Click(program::Program& program);

// Gives the selected row the name and the boxes, and writes the file anew.
void cmdEditAllowed_Click(program::Program& program);

// Asks, takes the selected row out, and writes the file anew. The last row cannot be deleted.
void cmdRemove_Click(program::Program& program);

void lstGroup_Click(program::Program& program);

void Attach(program::Program& program, windows::FrmFrameAllowList& panel);

}  // namespace vantrel::allowlist

#endif  // VANTREL_ALLOWLIST_ALLOWLISTPANEL_H_
