// A browser that is registered for the time of a test and reports what it was started with.
#ifndef VANTREL_TESTS_E2E_SUPPORT_RECORDEDBROWSER_H_
#define VANTREL_TESTS_E2E_SUPPORT_RECORDEDBROWSER_H_

#include <optional>
#include <string>
#include <vector>

#include "support/KeptValue.h"
#include "support/Wait.h"

namespace vantrel::e2e {

// One start of the browser.
struct BrowserStart {
  std::string windowState;  // the number that came with the start, "-" if none did
  std::string commandLine;
};

class RecordedBrowser {
 public:
  // Registers `command`, or the recording program, quoted, with parameters of its own.
  explicit RecordedBrowser(const std::string& command = "");
  ~RecordedBrowser();
  RecordedBrowser(const RecordedBrowser&) = delete;
  RecordedBrowser& operator=(const RecordedBrowser&) = delete;

  // The browser as it stands at the head of a command line.
  static std::string Program();
  // The starts since the last call, once there are `count` of them or the time is over.
  std::vector<BrowserStart> WaitForStarts(std::size_t count = 1, DWORD bound = DefaultBound);
  // The same, their command lines alone.
  std::vector<std::string> WaitForLines(std::size_t count = 1, DWORD bound = DefaultBound);

 private:
  std::vector<BrowserStart> Starts() const;

  KeptValue command_;
  std::string path_;
};

}  // namespace vantrel::e2e

#endif  // VANTREL_TESTS_E2E_SUPPORT_RECORDEDBROWSER_H_
