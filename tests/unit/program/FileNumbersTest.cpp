// The numbers under which files are open.
#include <gtest/gtest.h>

#include "support/ComponentFixture.h"

namespace vantrel::program {
namespace {

class FileNumbers : public test::ComponentFixture {
 protected:
  FileNumbers() { world.files.Put("C:\\f", "x"); }

  std::int32_t Open(int number, const std::string& path) {
    return program.fileNumbers.Open(number, path, platform::FileAccess::Read);
  }
  int Free() { return program.fileNumbers.FreeFile(); }
};

TEST_F(FileNumbers, TheLowestFreeOneIsNext) {
  for (const int number : {1, 2, 3}) {
    EXPECT_EQ(Free(), number);
    EXPECT_EQ(Open(number, "C:\\f"), platform::ErrorSuccess);
  }
  program.fileNumbers.Close(2);
  EXPECT_EQ(Free(), 2);
  program.fileNumbers.CloseAll();
  EXPECT_EQ(Free(), 1);
}

TEST_F(FileNumbers, AFileThatDoesNotOpenTakesNone) {
  EXPECT_EQ(Open(1, "C:\\missing"), platform::ErrorFileNotFound);
  EXPECT_EQ(program.fileNumbers.Handle(1), 0U);
  EXPECT_EQ(Free(), 1);
}

}  // namespace
}  // namespace vantrel::program
