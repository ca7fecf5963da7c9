// What a screen reader says of a control: the name that distinguishes it from every other of its
// window, and a description where there is more to say.
#ifndef VANTREL_FORMS_SPOKENNAME_H_
#define VANTREL_FORMS_SPOKENNAME_H_

#include <string>

#include "forms/Control.h"

namespace vantrel::forms {

// The caption; of a link whose tool tip goes on where its caption ends ("Help", "Help on playing a
// sound") the tool tip; of a control without a caption the label before it, else its tool tip, else
// the caption around it. Where another control of the window is called the same, with the caption
// around it behind ("Delete, Remove unwanted cookies"). Without the marks of access keys.
std::string SpokenName(Control& control);

// The tool tip, if it says more than the name.
std::string SpokenDescription(Control& control);

// What is written on the control, with its marks: its caption, or as a link that of its face; empty
// for a control without one.
std::string CaptionShown(Control& control);

// A caption as it shows: a single & marks the access key, a double one is shown.
std::string WithoutMarks(const std::string& caption);

// Whether it acts as a link, however it is built.
bool IsSpokenLink(Control& control);

}  // namespace vantrel::forms

#endif  // VANTREL_FORMS_SPOKENNAME_H_
