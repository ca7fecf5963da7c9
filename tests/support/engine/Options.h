// The command line of the double.
#ifndef VANTREL_TESTS_SUPPORT_ENGINE_OPTIONS_H_
#define VANTREL_TESTS_SUPPORT_ENGINE_OPTIONS_H_

#include <cstdint>
#include <string>
#include <vector>

#include "engine/Contract.h"

namespace vantrel::engine {

struct Options {
  std::uint32_t rate = 5;        // blocks a second
  std::uint32_t seconds = 3600;  // the longest run
  std::uint32_t total = 0;       // ends after so many blocks; 0: goes on
  std::uint32_t limit = HighestShownCount;
  bool once = false;
  bool obeyDisabled = false;
  bool verbose = false;
  bool help = false;
  std::vector<std::string> sites;
};

struct ParsedOptions {
  Options options;
  std::string error;  // empty if the arguments are in order
};

// The arguments without the program's name.
ParsedOptions ParseOptions(const std::vector<std::string>& arguments);

// What --help prints and what follows the message about a bad argument.
extern const char* const Usage;

}  // namespace vantrel::engine

#endif  // VANTREL_TESTS_SUPPORT_ENGINE_OPTIONS_H_
