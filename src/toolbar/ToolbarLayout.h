// The toolbar's layout between the registry and the dialog's two lists. Stored are a name and the
// numbers of the entries from left to right, decimal, with one comma between two; an empty toolbar
// is an empty text.
#ifndef VANTREL_TOOLBAR_TOOLBARLAYOUT_H_
#define VANTREL_TOOLBAR_TOOLBARLAYOUT_H_

#include <string>

#include "forms/ListView.h"
#include "program/Program.h"

namespace vantrel::toolbar {

// Fills both lists from the stored layout: the entries that it names in its order, those that it
// does not name in the order of the catalogue. A step that fails (an empty list; a value or number
// that cannot be read; a number that stands twice) is reported and tried once more; if it fails
// again the load ends there, with the rows that are in the lists by then.
void allButtons(program::Program& program, windows::frmcustom& form);

// Stores the rows of `current` and the name. A missing key stores nothing; errors 6 and 13 as of
// UpdateRegistryValue.
void SaveToolbarSetting(program::Program& program, const forms::ListView& current,
                        const forms::ListView& notShown, const std::string& name);

}  // namespace vantrel::toolbar

#endif  // VANTREL_TOOLBAR_TOOLBARLAYOUT_H_
