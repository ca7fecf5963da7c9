// The identifiers of the main window's menu entries: a menu of another process cannot be read, so
// its order is given here.
#ifndef VANTREL_TESTS_E2E_SUPPORT_MENUS_H_
#define VANTREL_TESTS_E2E_SUPPORT_MENUS_H_

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>

namespace vantrel::e2e {

inline constexpr int FirstMenuIdentifier = 1000;

// Every menu and entry in the order of their identifiers.
inline constexpr const char* MenuEntries[] = {"mnufile",
                                              "mnuWelcome",
                                              "MnuStartBlocking",
                                              "mnutest",
                                              "MnuStop",
                                              "mnutest12",
                                              "mnusap1",
                                              "MnuPanic",
                                              "MnuHide",
                                              "MnuExit",
                                              "MNuOptions",
                                              "MnuAdBlocking",
                                              "mnusep2",
                                              "mnuSettings",
                                              "MnuClean",
                                              "MNuAllowlist",
                                              "MnuNotification",
                                              "mnusep3",
                                              "submnuIESettings",
                                              "submnuIEPlugins",
                                              "mnusep4",
                                              "submnuIEToolbar",
                                              "mnuView",
                                              "submnugraph",
                                              "submnuDetailLog",
                                              "submnuLogFile",
                                              "mnuHelp",
                                              "submnuLaunchHelp",
                                              "mnusep6",
                                              "submnuAbout",
                                              "mnusystemone",
                                              "mnusysOpen",
                                              "mnu1",
                                              "mnusysBlock",
                                              "mnu2",
                                              "MNuAllow",
                                              "mnusysCleaning",
                                              "mnu3",
                                              "mnusysupdates",
                                              "mnusystellf",
                                              "mnu4",
                                              "mnusysexit"};

inline int MenuIdentifier(const std::string& entry) {
  const auto* found = std::find(std::begin(MenuEntries), std::end(MenuEntries), entry);
  if (found == std::end(MenuEntries)) throw std::invalid_argument("no menu entry " + entry);
  return FirstMenuIdentifier + static_cast<int>(found - std::begin(MenuEntries));
}

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_MENUS_H_
