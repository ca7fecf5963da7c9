// Statement-by-statement error trapping, for the operations that are to ignore each failure where
// it happens and go on with the next statement.
#ifndef VANTREL_TEXT_ERRORTRAP_H_
#define VANTREL_TEXT_ERRORTRAP_H_

#include <optional>

#include "text/RuntimeError.h"

namespace vantrel::text {

// Runs statements one at a time, swallowing each one's RuntimeError; the last error stays readable
// for the handlers that look at it. Anything but a RuntimeError passes through.
class ErrorTrap {
 public:
  // Runs the statement; true if it ended without an error.
  template <class Statement>
  bool operator()(Statement&& statement) {
    try {
      statement();
      return true;
    } catch (const RuntimeError& error) {
      last_ = error;
      return false;
    }
  }

  const std::optional<RuntimeError>& Last() const { return last_; }
  void Clear() { last_.reset(); }

 private:
  std::optional<RuntimeError> last_;
};

}  // namespace vantrel::text

#endif  // VANTREL_TEXT_ERRORTRAP_H_
