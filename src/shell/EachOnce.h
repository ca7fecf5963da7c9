// A check of tables at compile time.
#ifndef VANTREL_SHELL_EACHONCE_H_
#define VANTREL_SHELL_EACHONCE_H_

#include <cstddef>

namespace vantrel::shell {

// Whether no two rows of a table agree in the member.
template <class Row, std::size_t Count, class Member>
constexpr bool EachOnce(const Row (&rows)[Count], Member Row::*member) {
  for (std::size_t one = 0; one < Count; ++one) {
    for (std::size_t other = one + 1; other < Count; ++other) {
      if (rows[one].*member == rows[other].*member) return false;
    }
  }
  return true;
}

}  // namespace vantrel::shell

#endif  // VANTREL_SHELL_EACHONCE_H_
