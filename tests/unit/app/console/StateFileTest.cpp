#include <gtest/gtest.h>

#include "app/console/FreshWindows.h"
#include "app/console/StateFile.h"
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

TEST(State, KeepsClockRegistryAndFiles) {
  const auto world = FreshWindows();
  world->clock.Advance(61000);
  world->registry.Set(HKeyCurrentUser, "A \"b\" %", AllBytes(), 11, AllBytes());
  world->registry.Set(HKeyCurrentUser, "A", "long", 3, std::string(200000, '\xFF'));
  world->registry.Set(HKeyLocalMachine, "", "at the root", 4, "");
  world->files.Put("C:\\d\\bytes.bin", AllBytes() + std::string(500, 'x') + "\r\nend\n");
  world->files.Put("C:\\d\\empty", "");
  world->files.MakeFolder("C:\\hollow");
  world->files.SetReadOnly("C:\\d\\bytes.bin", true);
  world->files.SetHidden("C:\\hollow", true);

  const std::string text = StateText(*world);
  const auto kept = WindowsFromState(text);

  EXPECT_EQ(StateText(*kept), text);
  EXPECT_EQ(kept->clock.LocalNow(), world->clock.LocalNow());
  EXPECT_EQ(kept->registry.Get(HKeyCurrentUser, "A \"b\" %", AllBytes())->data, AllBytes());
  EXPECT_EQ(kept->registry.Get(HKeyLocalMachine, "", "at the root")->type, 4U);
  EXPECT_EQ(kept->files.Read("C:\\d\\bytes.bin"), world->files.Read("C:\\d\\bytes.bin"));
  EXPECT_EQ(kept->files.Read("C:\\d\\empty"), "");
  EXPECT_TRUE(kept->files.IsReadOnly("C:\\d\\bytes.bin"));
  EXPECT_TRUE(kept->files.IsHidden("C:\\hollow"));
}

TEST(State, IsRefusedWhenItWasCutAnywhere) {
  platform::memory::World world;
  world.registry.SetString(HKeyCurrentUser, "A", "n", "text");
  const std::string text = StateText(world);
  for (std::size_t length = 0; length < text.size(); ++length) {
    EXPECT_THROW(WindowsFromState(text.substr(0, length)), CommandError) << length;
  }
}

TEST(State, IsRefusedWhenAnyByteHasChanged) {
  platform::memory::World world;
  world.files.Put("C:\\a.txt", "text");
  const std::string text = StateText(world);
  for (std::size_t place = 0; place < text.size(); ++place) {
    std::string changed = text;
    changed[place] = static_cast<char>(changed[place] ^ 1);
    EXPECT_THROW(WindowsFromState(changed), CommandError) << place;
  }
}

TEST(State, RefusesOtherFiles) {
  EXPECT_THROW(WindowsFromState(""), CommandError);
  EXPECT_THROW(WindowsFromState("REGEDIT4\r\n"), CommandError);
  EXPECT_THROW(WindowsFromState(std::string(100000, '\n')), CommandError);
}

TEST(RealFiles, ThatCannotBeReadOrWrittenAreRefused) {
  EXPECT_THROW(ReadRealFile("/nowhere/at/all"), CommandError);
  EXPECT_THROW(ReadRealFile("/"), CommandError);
  EXPECT_THROW(WriteRealFile("/nowhere/at/all", "x"), CommandError);
}

}  // namespace
}  // namespace vantrel::console
