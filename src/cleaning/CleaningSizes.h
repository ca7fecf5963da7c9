// How much each folder holds that the Clean panel can clean. The scan is also what gives the
// cleaner its targets: a label's tool tip is the only place where the path of its folder is kept.
#ifndef VANTREL_CLEANING_CLEANINGSIZES_H_
#define VANTREL_CLEANING_CLEANINGSIZES_H_

#include <cstdint>
#include <string>

#include "program/Program.h"

namespace vantrel::cleaning {

// A number of bytes in units of 1024, grouped as the user's locale does, and " Kbs".
std::string InKilobytes(program::Program& program, std::uint64_t bytes);

// Looks up the four folders, then measures and shows each; the first error ends it without a
// message, and what was not written yet stays.
void ShowCacheSizes(program::Program& program);

// Shows the size, path and files of Internet Explorer's cookies folder. Errors are ignored one by
// one: without the folder the one of the last scan is shown.
void ShowIECookies(program::Program& program);

// Both, with the hourglass, letting window messages run before, between and behind them.
void RefreshCleanPanel(program::Program& program);

// The scan runs twice, once before the wait text is shown: this is meant.
void lblRefresh_Click(program::Program& program);

}  // namespace vantrel::cleaning

#endif  // VANTREL_CLEANING_CLEANINGSIZES_H_
