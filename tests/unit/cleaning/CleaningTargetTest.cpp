// Which paths may be wiped or overwritten.
#include <gtest/gtest.h>

#include "cleaning/CleaningTarget.h"

namespace vantrel::cleaning {
namespace {

TEST(CleaningTarget, IsWhatLiesBelowADriveOrAShare) {
  for (const char* path :
       {"C:\\f", "c:/folder/f", "C:\\folder\\", "C:\\a.b\\c d", "\\\\server\\share\\f",
        "//server/share/f", "C:\\.hidden", "C:\\COM", "C:\\COM0", "C:\\COM10", "C:\\comic.txt",
        "C:\\nullo", "C:\\LPT1x", "C:\\NUL\\f"}) {
    EXPECT_TRUE(IsCleaningTarget(path)) << path;
  }
}

TEST(CleaningTarget, IsNoRelativePathAndNoRoot) {
  for (const char* path : {"",
                           " ",
                           ".",
                           "..",
                           "f",
                           "folder\\f",
                           "\\f",
                           "/f",
                           "C:",
                           "C:f",
                           "C:\\",
                           "C:/",
                           "C:\\\\",
                           "1:\\f",
                           "\\\\",
                           "\\\\server",
                           "\\\\server\\share",
                           "\\\\server\\share\\",
                           "\\\\server\\\\share",
                           "\\\\\\server\\share",
                           "f\\server\\share\\f",
                           "\\folder\\share\\f",
                           "file:///C:/f",
                           "%TEMP%"}) {
    EXPECT_FALSE(IsCleaningTarget(path)) << path;
  }
}

TEST(CleaningTarget, IsNoPathThatTheSystemReadsAsAnother) {
  for (const char* path : {"C:\\f.", "C:\\f ", "C:\\folder.\\", "C:\\folder \\", "C:\\folder\\.",
                           "C:\\folder\\..", "C:\\folder\\...", "\\\\server\\share\\f."}) {
    EXPECT_FALSE(IsCleaningTarget(path)) << path;
  }
  EXPECT_FALSE(IsCleaningTarget(std::string("C:\\f\0g", 6)));
  EXPECT_FALSE(IsCleaningTarget(std::string("\0C:\\f", 5)));
}

TEST(CleaningTarget, IsNoDeviceUnderAnyOfItsNames) {
  for (const char* path :
       {"\\\\.\\PhysicalDrive0", "\\\\.\\C:\\f", "\\\\?\\C:\\f", "//./COM1", "C:\\COM1",
        "C:\\folder\\lpt1", "C:\\NUL", "C:\\folder\\Con.txt", "C:\\folder\\AUX.tar.gz",
        "C:\\folder\\prn\\", "C:\\COM9:", "C:\\nul .txt", "C:\\CONIN$", "C:\\conout$",
        "C:\\COM\xB9", "\\\\server\\share\\NUL"}) {
    EXPECT_FALSE(IsCleaningTarget(path)) << path;
  }
}

}  // namespace
}  // namespace vantrel::cleaning
