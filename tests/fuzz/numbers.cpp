// Texts as numbers: the strict conversions give a number of their type or one of their two errors,
// the lenient one never fails, and what they give reads back as itself.
#include "text/Numbers.h"

#include <cmath>

#include "fuzz/Fuzz.h"
#include "text/RuntimeError.h"

namespace {

using vantrel::fuzz::Check;
using vantrel::text::ErrorNumber;
using vantrel::text::RuntimeError;

template <class Conversion>
void TryStrict(Conversion convert, const std::string& text) {
  try {
    const auto number = convert(text);
    Check(convert(std::to_string(number)) == number, "a number's own text is that number");
    Check(convert(" " + text + "\t") == number, "blanks around a number do not count");
  } catch (const RuntimeError& error) {
    Check(error.Number() == ErrorNumber::TypeMismatch || error.Number() == ErrorNumber::Overflow,
          "a strict conversion fails with error 13 or 6");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  TryStrict([](const std::string& t) { return vantrel::text::CInt(t); }, text);
  TryStrict([](const std::string& t) { return vantrel::text::CLng(t); }, text);
  Check(!std::isnan(vantrel::text::Val(text)), "every text has a value");
  return 0;
}
