// The buttons of message boxes, by style, number and name.
#ifndef VANTREL_APP_CONSOLE_BOXES_H_
#define VANTREL_APP_CONSOLE_BOXES_H_

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel::console {

// The numbers of the buttons that a box of the style has, in their order.
std::vector<int> ButtonsOf(std::uint32_t style);
// The number of the button that Enter presses.
int DefaultButton(std::uint32_t style);
// "Yes"; a number that is no button's as itself.
std::string ButtonName(int button);
// The number of the button with the name, without regard to case; CommandError for none.
int ButtonNamed(const std::string& name);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_BOXES_H_
