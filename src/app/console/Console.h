// The console's loop: reads lines, does what they say, prints what comes of it. An error is one
// line that begins with "error: ".
#ifndef VANTREL_APP_CONSOLE_CONSOLE_H_
#define VANTREL_APP_CONSOLE_CONSOLE_H_

#include <istream>
#include <ostream>
#include <string>

#include "app/console/Session.h"

namespace vantrel::console {

struct ConsoleOptions {
  bool KeepGoing = false;  // go on behind a command that failed
  bool Echo = false;       // print each line behind "> " before it is done
  bool Prompt = false;     // print "> " before each line is read
};

class Console {
 public:
  // Both streams must outlive it.
  Console(std::istream& in, std::ostream& out, ConsoleOptions options);

  // Does all lines up to the end, to quit, or to the first that fails. Whether none failed.
  bool Run();

  Session& TheSession() { return session_; }

 private:
  bool DoNext();
  bool ReadLine(std::string& line);
  void DoLine(const std::string& line);
  void Fail(const std::string& why);

  std::istream& in_;
  std::ostream& out_;
  ConsoleOptions options_;
  Session session_;
  bool failed_ = false;
};

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_CONSOLE_H_
