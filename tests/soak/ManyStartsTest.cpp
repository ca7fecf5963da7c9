// Many starts of the program at the same moment: one copy is left, and no command arrives twice or
// spoiled. A command that meets another's delivery is lost, without a message to anybody: this is
// meant.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <set>
#include <sstream>

#include "Soak.h"

namespace vantrel::e2e {
namespace {

constexpr int Starts = 20;
constexpr const char* Ready = "Ready for command";

class ManyStartsTest : public SoakTest {
 protected:
  using Copies = std::vector<std::unique_ptr<Running>>;

  // Commands that no two starts share, and that show the window alone.
  static std::string Command(int number) { return "/start " + std::to_string(number); }

  static Copies StartAll() {
    Copies copies;
    for (int number = 0; number < Starts; ++number) {
      copies.push_back(std::make_unique<Running>(Command(number)));
    }
    return copies;
  }
  static bool WaitUntilLeft(const Copies& copies, std::ptrdiff_t count) {
    const auto alive = [](const auto& copy) { return copy->Alive(); };
    return WaitFor([&] { return std::count_if(copies.begin(), copies.end(), alive) == count; },
                   60000);
  }

  // The commands that a copy has carried out, in their order.
  static std::vector<std::string> Traced(const Running& program) {
    constexpr std::string_view head = "Excuted with command: ";
    std::vector<std::string> commands;
    std::istringstream trace(program.TextOf("frmMain.Text1"));
    for (std::string line; std::getline(trace, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      EXPECT_EQ(line.substr(0, head.size()), head);
      commands.push_back(line.substr(head.size()));
    }
    return commands;
  }
  // Each line behind the first ones is one of the starts' commands, none twice, and the channel is
  // open. Two senders that have found the button at the same moment may click it twice for one
  // text: the second click then finds the idle caption.
  static void ExpectDelivered(const Running& program, const std::string& first) {
    std::set<std::string> expected;
    for (int number = 0; number < Starts; ++number) expected.insert(Command(number));
    std::vector<std::string> commands = Traced(program);
    ASSERT_FALSE(commands.empty());
    std::erase_if(commands,
                  [&](const std::string& command) { return command == Ready || command == first; });
    for (const std::string& command : commands) EXPECT_EQ(expected.erase(command), 1U) << command;
    std::printf("%d starts at once: %zu commands carried out\n", Starts, commands.size());
    EXPECT_FALSE(commands.empty());
    const Running later("/graph");
    ASSERT_TRUE(later.WaitForExit(30000));
    EXPECT_TRUE(program.IsVisible("FrmFrameGraph"));
    EXPECT_EQ(program.TextOf("frmMain.cmdDummy"), Ready);
  }
};

TEST_F(ManyStartsTest, FirstStartsAtOnceLeaveOneCopy) {
  const Copies copies = StartAll();
  ASSERT_TRUE(WaitUntilLeft(copies, 1));
  const auto left =
      std::find_if(copies.begin(), copies.end(), [](const auto& copy) { return copy->Alive(); });
  ASSERT_TRUE((*left)->WaitUntilIdle());
  ExpectDelivered(**left, "");
}

TEST_F(ManyStartsTest, LaterStartsAtOnceLeaveTheFirstCopy) {
  const Running program("/first");
  ASSERT_TRUE(program.WaitUntilIdle());
  ASSERT_TRUE(WaitUntilLeft(StartAll(), 0));
  EXPECT_TRUE(program.Alive());
  ExpectDelivered(program, "/first");
}

}  // namespace
}  // namespace vantrel::e2e
