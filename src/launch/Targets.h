// Where links lead: pages of the help folder, pages of the vendor's two sites, and the outside
// pop-up test page. The host names are the build's.
#ifndef VANTREL_LAUNCH_TARGETS_H_
#define VANTREL_LAUNCH_TARGETS_H_

#include <string>
#include <string_view>

#include "program/Program.h"

namespace vantrel::launch {

inline constexpr std::string_view FirstHost = VANTREL_FIRST_HOST;
inline constexpr std::string_view SecondHost = VANTREL_SECOND_HOST;
inline constexpr std::string_view TestPage = VANTREL_TEST_PAGE;

// What stands before a target's path.
enum class Base {
  ProgramFolder,        // the folder of the executable
  FirstHost,            // the vendor's first site, without a scheme
  SecondHost,           // the vendor's second site, without a scheme
  FirstHostWithScheme,  // the vendor's first site behind "http://"
  TestPage,             // the outside test page; the path is empty
};

struct Target {
  Base base;
  const char* path;
};

inline constexpr Target WelcomeHelp{Base::ProgramFolder, "\\help\\welcome.htm"};
inline constexpr Target UpdatesPage{Base::FirstHostWithScheme, "/vantrel/updates.html"};
inline constexpr Target PopupTestPage{Base::TestPage, ""};

// The address as it is given to OpenUrl.
std::string AddressOf(const program::Program& program, const Target& target);

}  // namespace vantrel::launch

#endif  // VANTREL_LAUNCH_TARGETS_H_
