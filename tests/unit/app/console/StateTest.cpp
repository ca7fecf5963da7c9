#include <gtest/gtest.h>

#include "app/console/Screen.h"
#include "app/console/State.h"
#include "app/console/Words.h"

namespace vantrel::console {
namespace {

using platform::HKeyCurrentUser;
using platform::HKeyLocalMachine;

std::string AllBytes() {
  std::string bytes;
  for (int i = 0; i < 256; ++i) bytes.push_back(static_cast<char>(i));
  return bytes;
}

TEST(FreshWindows, HasTheStartEntryOfAllUsersAndAnEmptyToolbarKey) {
  const auto world = FreshWindows();
  const std::string run = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
  EXPECT_TRUE(world->registry.HasKey(HKeyLocalMachine, run));
  EXPECT_FALSE(world->registry.HasKey(HKeyCurrentUser, run));
  EXPECT_TRUE(
      world->registry.HasKey(HKeyLocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer\\Toolbar"));
  EXPECT_EQ(world->registry.GetString(platform::HKeyClassesRoot, "http\\shell\\open\\command", ""),
            "\"C:\\Program Files\\Internet Explorer\\iexplore.exe\" -nohome");
  EXPECT_EQ(world->registry.GetDword(HKeyLocalMachine,
                                     "SYSTEM\\CurrentControlSet\\Services\\Messenger", "Start"),
            2U);
}

TEST(FreshWindows, HasTheFoldersOfTheUserThatAShellKnows) {
  const auto world = FreshWindows();
  ASSERT_EQ(world->specialFolders.size(), 5U);
  for (const auto& [number, path] : world->specialFolders) {
    EXPECT_TRUE(world->files.IsFolder(path)) << path;
  }
  EXPECT_EQ(WindowsFromState(StateText(*world))->specialFolders, world->specialFolders);
}

TEST(State, KeepsClockRegistryAndFiles) {
  const auto world = FreshWindows();
  world->clock.Advance(61000);
  world->registry.Set(HKeyCurrentUser, "A \"b\" %", "bytes", 11, AllBytes());
  world->registry.Set(HKeyCurrentUser, "A", "long", 3, std::string(20000, '\xFF'));
  world->registry.Set(HKeyLocalMachine, "", "at the root", 4, "");
  world->files.Put("C:\\d\\bytes.bin", AllBytes() + std::string(500, 'x') + "\r\nend\n");
  world->files.Put("C:\\d\\empty", "");
  world->files.MakeFolder("C:\\hollow");
  world->files.SetReadOnly("C:\\d\\bytes.bin", true);
  world->files.SetHidden("C:\\hollow", true);

  const std::string text = StateText(*world);
  const auto kept = WindowsFromState(text);

  EXPECT_EQ(StateText(*kept), text);
  EXPECT_EQ(TimeText(kept->clock.LocalNow()), "2004-03-15 12:01:01");
  EXPECT_EQ(kept->registry.Get(HKeyCurrentUser, "A \"b\" %", "bytes")->data, AllBytes());
  EXPECT_EQ(kept->registry.Get(HKeyLocalMachine, "", "at the root")->type, 4U);
  EXPECT_EQ(kept->files.Read("C:\\d\\bytes.bin"), world->files.Read("C:\\d\\bytes.bin"));
  EXPECT_EQ(kept->files.Read("C:\\d\\empty"), "");
  EXPECT_TRUE(kept->files.IsReadOnly("C:\\d\\bytes.bin"));
  EXPECT_FALSE(kept->files.IsReadOnly("C:\\d\\empty"));
  EXPECT_TRUE(kept->files.IsFolder("C:\\hollow"));
  EXPECT_TRUE(kept->files.IsHidden("C:\\hollow"));
}

TEST(State, IsARegistrationFile) {
  platform::memory::World world;
  world.registry.SetString(HKeyCurrentUser, "A", "n", "text");
  EXPECT_TRUE(StateText(world).starts_with("REGEDIT4\r\n"));
  EXPECT_NE(StateText(world).find("[HKEY_CURRENT_USER\\A]\r\n\"n\"=\"text\"\r\n"),
            std::string::npos);
}

TEST(State, LeavesItsLinksOut) {
  platform::memory::World world;
  world.files.Put("C:\\d\\file", "x");
  world.files.MakeLink("C:\\d\\loop", "C:\\d");
  EXPECT_FALSE(WindowsFromState(StateText(world))->files.Exists("C:\\d\\loop"));
}

TEST(State, IsRefusedWhenItsEndIsMissing) {
  platform::memory::World world;
  world.registry.SetString(HKeyCurrentUser, "A", "n", "text");
  const std::string text = StateText(world);
  // The last line end may go.
  for (std::size_t length = 0; length + 4 < text.size(); ++length) {
    EXPECT_THROW(WindowsFromState(text.substr(0, length)), CommandError) << length;
  }
}

TEST(State, RefusesOtherFiles) {
  EXPECT_THROW(WindowsFromState(""), CommandError);
  EXPECT_THROW(WindowsFromState("REGEDIT4\r\n"), CommandError);
  EXPECT_THROW(WindowsFromState(std::string(100000, '\n')), CommandError);
}

TEST(State, RefusesAPathThatIsNone) {
  std::string text = StateText(*FreshWindows());
  text.insert(text.find("\"C:\\\\WINDOWS\\\\\"="), "\"nowhere\"=hex:20\r\n");
  EXPECT_THROW(WindowsFromState(text), CommandError);
}

TEST(RealFiles, ThatCannotBeReadOrWrittenAreRefused) {
  EXPECT_THROW(ReadRealFile("/nowhere/at/all"), CommandError);
  EXPECT_THROW(ReadRealFile("/"), CommandError);
  EXPECT_THROW(WriteRealFile("/nowhere/at/all", "x"), CommandError);
}

}  // namespace
}  // namespace vantrel::console
