#include <gtest/gtest.h>

#include "platform/memory/Process.h"
#include "platform/memory/RegFile.h"
#include "platform/memory/RegistryEditor.h"

namespace vantrel::platform::memory {
namespace {

class MemoryRegistryEditor : public testing::Test {
 protected:
  MemoryRegistryEditor() {
    InstallRegistryEditor(world_);
    world_.files.MakeFolder("C:\\my dir");
    world_.registry.SetString(HKeyCurrentUser, "Software\\Sample key", "name", "text");
  }

  void Run(const std::string& arguments) {
    EXPECT_EQ(process_.Platform().processes.CreateProcessA(RegistryEditorPath,
                                                           "regedit " + arguments, ShowMinimized),
              0);
  }
  std::string Sample() {
    return ExportReg(world_.registry, HKeyCurrentUser, "Software\\Sample key");
  }

  World world_;
  Process process_{world_};
};

TEST_F(MemoryRegistryEditor, ExportsAKey) {
  for (const char* arguments :
       {"/e \"C:\\my dir\\a.reg\" \"HKEY_CURRENT_USER\\Software\\Sample key\"",
        "/e \"C:\\my dir\\a.reg\" \"HKEY_CURRENT_USER\\Software\\Sample key",
        "/E \"C:\\my dir/a.reg\"  \"hkcu\\software\\Sample key"}) {
    Run(arguments);
    EXPECT_EQ(world_.files.Read("C:\\my dir\\a.reg")->size(), Sample().size()) << arguments;
    world_.files.Remove("C:\\my dir\\a.reg");
  }
}

TEST_F(MemoryRegistryEditor, ExportsAWholeRoot) {
  Run("/e C:\\a.reg HKEY_CURRENT_USER");
  EXPECT_EQ(world_.files.Read("C:\\a.reg"), ExportReg(world_.registry, HKeyCurrentUser, ""));
}

TEST_F(MemoryRegistryEditor, ExportsNothingOfWhatIsNotThere) {
  for (const char* arguments :
       {"/e C:\\a.reg HKEY_CURRENT_USER\\None", "/e C:\\a.reg HKEY_NONE\\Software", "/e C:\\a.reg",
        "/e", "/e C:\\a.reg a b", "", "/e C:\\no\\a.reg HKEY_CURRENT_USER"}) {
    Run(arguments);
    EXPECT_FALSE(world_.files.Exists("C:\\a.reg")) << arguments;
    EXPECT_FALSE(world_.files.Exists("C:\\no")) << arguments;
  }
}

TEST_F(MemoryRegistryEditor, ImportsTheFilesAmongItsArguments) {
  world_.files.Put("C:\\my dir\\a.reg", Sample());
  for (const char* arguments :
       {"\"C:\\my dir\\a.reg\"", "/s \"C:\\my dir\\a.reg\"",
        "/is \"C:/my dir/a.reg\" \"HKEY_CURRENT_USER\\Software\\Sample key"}) {
    world_.registry.RemoveKey(HKeyCurrentUser, "Software");
    Run(arguments);
    EXPECT_EQ(world_.registry.GetString(HKeyCurrentUser, "Software\\Sample key", "name"), "text")
        << arguments;
  }
}

TEST_F(MemoryRegistryEditor, ImportsNothingOfOtherFiles) {
  const std::string before = Sample();
  world_.files.Put("C:\\a.reg", "garbage");
  Run("/is \"C:\\a.reg\" \"C:\\none.reg\" \"C:\\my dir\" \"\" \"HKEY_CURRENT_USER\\Software");
  EXPECT_EQ(Sample(), before);
}

}  // namespace
}  // namespace vantrel::platform::memory
