// Commands of any bytes and messages of any order to the running program's mailbox, as any other
// program can send them: the program goes on, and the mailbox is ready again behind each click.
#include "fuzz/Fuzz.h"
#include "shell/Attach.h"
#include "shell/Startup.h"
#include "support/ProgramFixture.h"
#include "windows/frmMain.h"

namespace {

using namespace vantrel;
using fuzz::Check;

// One started copy for all inputs: a program runs for days.
struct Running {
  Running() {
    test::FillMachine(world);
    copy = std::make_unique<test::Copy>(world);
    copy->process.AnswerBox = [](const platform::memory::Box&) { return platform::AnswerOk; };
    shell::AttachProgram(copy->program);
    shell::Start(copy->program);
    copy->Windows().frmMain->Text1.SetText("");
    copy->process.Trace().Stop();
  }

  platform::memory::World world;
  std::unique_ptr<test::Copy> copy;
};

void Send(Running& running, platform::WindowHandle button, const std::string& command) {
  running.world.desktop.SendText(button, platform::WmSetText, 0, command);
  running.world.desktop.Send({button, platform::BmClick, 0, 0, nullptr});
  windows::frmMain& main = *running.copy->Windows().frmMain;
  Check(main.cmdDummy.Caption() == "Ready for command", "the mailbox is ready behind a command");
  const std::string& trace = main.Text1.Text();
  // A window's text ends at its first NUL.
  Check(trace == std::string("Excuted with command: ") + command.c_str(), "the command is traced");
  main.Text1.SetText("");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Running running;
  const auto button = running.copy->Windows().frmMain->cmdDummy.WindowHandle();
  fuzz::Input input(data, size);
  // A bit of the first byte each: a further command before the long one, a hidden window, a text
  // written without a click.
  const std::uint8_t kind = input.Byte();
  if ((kind & 1U) != 0) Send(running, button, input.Text());
  if ((kind & 2U) != 0) running.copy->Windows().frmMain->Hide();
  if ((kind & 4U) != 0) {
    running.world.desktop.SendText(button, platform::WmSetText, 0, input.Text());
  }
  Send(running, button, input.Rest());
  Check(!running.copy->toolkit.Ending(), "no command ends the program");
  Check(running.copy->process.OpenKeys() == 0, "no key stays open");
  running.copy->process.ClearBoxes();
  return 0;
}
