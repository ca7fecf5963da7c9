#include <gmock/gmock.h>

#include "launch/OpenUrl.h"
#include "unit/shell/ShellTest.h"

namespace vantrel::shell {
namespace {

using platform::HKeyClassesRoot;

class DefaultBrowser : public test::ShellTest {
 protected:
  std::string With(std::uint32_t type, const std::string& data) {
    world.registry.Set(HKeyClassesRoot, "http\\shell\\open\\command", "", type, data);
    return launch::GetDefaultBrowser(copy->program);
  }

  std::unique_ptr<test::Copy> copy = MakeCopy();
};

// Only the first quote behind the first character counts, wherever it stands.
TEST_F(DefaultBrowser, AnUnquotedPathReachesToTheFirstQuoteOfItsParameters) {
  EXPECT_EQ(With(platform::RegSz, std::string("C:\\b.exe \"%1\"\0", 14)), "C:\\b.exe \"");
}

TEST_F(DefaultBrowser, AQuoteAtTheStartAloneIsNoPath) {
  EXPECT_EQ(With(platform::RegSz, std::string("\"\0", 2)), "");
  EXPECT_EQ(With(platform::RegSz, std::string("\"\"\0", 3)), "\"\"");
}

TEST_F(DefaultBrowser, AValueOfAnotherTypeIsTakenAsItsBytes) {
  EXPECT_EQ(With(platform::RegExpandSz, "\"%P%\\b.exe\" %1"), "\"%P%\\b.exe\"");
  EXPECT_EQ(With(platform::RegBinary, std::string("a\0\"b", 4)), std::string("a\0\"", 3));
  EXPECT_EQ(With(platform::RegDword, std::string("\"\"\"\"", 4)), "");
}

}  // namespace
}  // namespace vantrel::shell
