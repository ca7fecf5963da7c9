// The Allowed List panel, as a user works it, against the bytes of its file.
#include <gmock/gmock.h>

#include "allowlist/AllowListPanel.h"
#include "allowlist/Attach.h"
#include "allowlist/SiteList.h"
#include "support/ComponentFixture.h"
#include "windows/FrmFrameAllowList.h"
#include "windows/frmMain.h"

namespace vantrel::allowlist {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* Path = "C:\\Program Files\\Vantrel\\Settings\\AllowList.txt";

std::string Line(int number, const std::string& name, const std::string& flags = "11111") {
  return "id =" + std::to_string(number) + ", Popup= " + flags[0] + " ,DHTML = " + flags[1] +
         ", WebDialog =" + flags[2] + " ,Banner = " + flags[3] + ", Flash = " + flags[4] + " , " +
         name + "\r\n";
}

class AllowListPanel : public test::ComponentFixture {
 protected:
  AllowListPanel() {
    AttachAllowList(program);
    program.windows.frmMain->Show();
    Panel().Show();
  }

  windows::FrmFrameAllowList& Panel() { return *program.windows.FrmFrameAllowList; }
  void Open(const std::string& content) {
    world.files.Put(Path, content);
    LoadAllowList(program, LoadFailure::ShowsBox);
    process.Trace().Clear();
  }
  std::string Content() { return world.files.Read(Path).value_or("no file"); }
  std::string Status() { return Panel().lblstatus.Caption(); }
  std::string Typed() { return Panel().txtName.Text(); }
  bool NameHasFocus() { return toolkit.Focus() == &Panel().txtName; }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (int row = 1; row <= Panel().lstGroup.Count(); ++row) {
      names.push_back(Panel().lstGroup.Item(row).Text());
    }
    return names;
  }
  std::string Label(int row, int column) { return Panel().lstGroup.Item(row).Sub(column).Text; }
  void Add(const std::string& name) {
    EXPECT_TRUE(user.Type(Panel().txtName, name));
    EXPECT_TRUE(user.Click(Panel().cmdAddWebsite));
  }
  void Edit(int row, const std::string& name) {
    EXPECT_TRUE(user.Click(Panel().lstGroup, row));
    EXPECT_TRUE(user.Type(Panel().txtName, name));
    EXPECT_TRUE(user.Click(Panel().cmdEditAllowed));
  }
  void Delete(int row, int answer = platform::AnswerYes) {
    process.AnswerBoxes({answer});
    EXPECT_TRUE(user.Click(Panel().lstGroup, row));
    EXPECT_TRUE(user.Click(Panel().cmdRemove));
  }
};

TEST_F(AllowListPanel, StandsAsDesigned) {
  for (const forms::CheckBox* box :
       {&Panel().chkAPopups, &Panel().chkADhtml, &Panel().chkADialog, &Panel().chkABanner,
        &Panel().chkAFlash, &Panel().chkADialogBox}) {
    EXPECT_EQ(box->Value(), forms::Checked);
  }
  EXPECT_FALSE(Panel().chkADialogBox.Visible());
  EXPECT_EQ(Status(), "");
  EXPECT_EQ(Panel().lblnumberAL.Caption(), "");
  EXPECT_FALSE(Typed().empty());
}

TEST_F(AllowListPanel, AddAppendsTheTypedNameWithTheBoxes) {
  Open("");
  user.Click(Panel().chkADhtml);
  user.Click(Panel().chkAFlash);
  Add(" My Site ");
  EXPECT_EQ(Content(), Line(1, " My Site ", "10110"));
  EXPECT_THAT(Names(), ElementsAre("My Site"));
  EXPECT_EQ(Status(), "Added Successfully");
  EXPECT_EQ(Typed(), "");
  EXPECT_TRUE(NameHasFocus());
  EXPECT_THAT(BoxTexts(), IsEmpty());
  // The boxes stay as the user has left them.
  EXPECT_EQ(Panel().chkADhtml.Value(), forms::Unchecked);
  EXPECT_EQ(Panel().chkAPopups.Value(), forms::Checked);
}

TEST_F(AllowListPanel, AddOfANameThatIsThereSaysSo) {
  Open(Line(1, "a"));
  Add("A");
  EXPECT_EQ(Content(), Line(1, "a"));
  EXPECT_EQ(Status(), "Website already exists");
  EXPECT_EQ(Typed(), "");
  EXPECT_TRUE(NameHasFocus());
}

TEST_F(AllowListPanel, AddThatFailsReadsAsANameThatIsThere) {
  Open(Line(1, "a"));
  world.files.SetReadOnly(Path, true);
  Add("b");
  EXPECT_EQ(Status(), "Website already exists");
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(AllowListPanel, AListWhoseFolderIsGoneIsEmptyAfterTheNextAct) {
  Open(Line(1, "a") + Line(2, "b"));
  world.files.Remove("C:\\Program Files\\Vantrel\\Settings");
  Add("c");
  EXPECT_THAT(Names(), IsEmpty());
  EXPECT_EQ(Status(), "Website already exists");
  EXPECT_THAT(BoxTexts(), IsEmpty());
}

TEST_F(AllowListPanel, AddAndEditWithoutANameAskForOne) {
  Open(Line(1, "a"));
  for (forms::CommandButton* button : {&Panel().cmdAddWebsite, &Panel().cmdEditAllowed}) {
    process.ClearBoxes();
    user.Type(Panel().txtName, "   ");
    user.Click(*button);
    ASSERT_THAT(BoxTexts(), ElementsAre("No Website name is given"));
    EXPECT_EQ(process.Boxes()[0].style, platform::StyleInformation);
    EXPECT_EQ(process.Boxes()[0].title, "Vantrel");
    EXPECT_TRUE(NameHasFocus());
    EXPECT_EQ(Typed(), "   ");
    EXPECT_EQ(Content(), Line(1, "a"));
    EXPECT_EQ(Status(), "");
  }
}

TEST_F(AllowListPanel, AClickOnARowTakesItsNameAlone) {
  Open(Line(1, "a", "00000") + Line(2, "b", "00000"));
  EXPECT_TRUE(user.Click(Panel().lstGroup, 2));
  EXPECT_EQ(Typed(), "b");
  EXPECT_EQ(Panel().chkAPopups.Value(), forms::Checked);
  Open("");
  Panel().lstGroup.Click();
  EXPECT_EQ(Typed(), "b");
}

TEST_F(AllowListPanel, EditWritesTheBoxesWhateverTheRowHeld) {
  Open(Line(1, "a") + Line(2, "b", "00000"));
  user.Click(Panel().chkAPopups);
  Edit(1, "a");
  EXPECT_EQ(Content(), Line(1, "a", "01111") + Line(2, "b", "00000"));
  EXPECT_EQ(Label(1, 1), "Blocked");
  EXPECT_EQ(Status(), "Edited Successfully");
  EXPECT_EQ(Typed(), "");
  EXPECT_TRUE(NameHasFocus());
  user.Click(Panel().chkAPopups);
  Edit(2, " c ");
  EXPECT_EQ(Content(), Line(1, "a", "01111") + Line(2, "c"));
}

TEST_F(AllowListPanel, EditOfNoRowsDoesNothing) {
  Open("");
  user.Type(Panel().txtName, "a");
  user.Click(Panel().cmdEditAllowed);
  user.Type(Panel().txtName, "");
  user.Click(Panel().cmdEditAllowed);
  EXPECT_THAT(BoxTexts(), IsEmpty());
  EXPECT_EQ(Content(), "");
  EXPECT_EQ(Status(), "");
}

TEST_F(AllowListPanel, EditReportsTheLastRowAlone) {
  Open(Line(1, "a") + Line(2, "b") + Line(2, "c"));
  Edit(2, "a");
  // The second row has gone without a message.
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "c"));
  EXPECT_EQ(Status(), "Edited Successfully");
  EXPECT_THAT(Names(), ElementsAre("a", "c"));
  Edit(2, "A");
  EXPECT_EQ(Content(), Line(1, "a"));
  EXPECT_EQ(Status(), "Website already exists");
}

TEST_F(AllowListPanel, DeleteAsksAndWritesTheOthersAnew) {
  Open(Line(4, "a") + Line(4, "b", "10000") + Line(9, "c"));
  Delete(1);
  ASSERT_THAT(BoxTexts(), ElementsAre("Delete the Website [a] from the allowed list"));
  EXPECT_EQ(process.Boxes()[0].style, platform::StyleQuestionYesNo);
  EXPECT_EQ(process.Boxes()[0].title, "Vantrel");
  EXPECT_EQ(Content(), Line(1, "b", "10000") + Line(2, "c"));
  EXPECT_THAT(Names(), ElementsAre("b", "c"));
  EXPECT_EQ(Status(), "Deleted Successfully");
  EXPECT_TRUE(NameHasFocus());
  EXPECT_EQ(Typed(), "a");
  // So a second press adds it back.
  user.Click(Panel().cmdAddWebsite);
  EXPECT_EQ(Content(), Line(1, "b", "10000") + Line(2, "c") + Line(2, "a"));
}

TEST_F(AllowListPanel, AnyAnswerButYesDeletesNothing) {
  Open(Line(1, "a") + Line(2, "b"));
  Delete(2, platform::AnswerNo);
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "b"));
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
  EXPECT_EQ(Status(), "");
}

TEST_F(AllowListPanel, TheLastRowCannotBeDeleted) {
  Open(Line(1, "a"));
  user.Click(Panel().lstGroup, 1);
  user.Click(Panel().cmdRemove);
  Open("");
  user.Click(Panel().cmdRemove);
  EXPECT_THAT(BoxTexts(), IsEmpty());
  EXPECT_EQ(Status(), "");
}

TEST_F(AllowListPanel, DeleteIgnoresWhatBecomesOfTheOthers) {
  Open(Line(1, "a") + Line(2, "b") + Line(2, "c"));
  process.Faults().FailEvery("WriteTextFile", platform::ErrorAccessDenied);
  process.Faults().FailEvery("AppendTextFile", platform::ErrorAccessDenied);
  Delete(3);
  EXPECT_EQ(Status(), "Deleted Successfully");
  EXPECT_THAT(Names(), ElementsAre("a", "b", "c"));
  EXPECT_THAT(BoxTexts(), testing::SizeIs(1));
}

TEST_F(AllowListPanel, AListReadAgainWhileTheQuestionIsUpLosesNoOtherRow) {
  Open(Line(1, "a") + Line(2, "b") + Line(2, "c"));
  process.WhileBoxIsUp = [this](const auto&) {
    LoadAllowList(program, LoadFailure::ShowsBox);
    EXPECT_EQ(Panel().lstGroup.SelectedIndex(), 1);
  };
  Delete(2);
  EXPECT_EQ(Content(), Line(1, "a") + Line(2, "c"));
  // The row that was asked about is no longer where it was, or no longer there.
  process.WhileBoxIsUp = [this](const auto&) { Open(Line(1, "x") + Line(2, "y") + Line(2, "z")); };
  Delete(2);
  EXPECT_EQ(Content(), Line(1, "x") + Line(2, "y") + Line(2, "z"));
  process.WhileBoxIsUp = [this](const auto&) { Open(Line(1, "x")); };
  Delete(1);
  EXPECT_EQ(Content(), Line(1, "x"));
  process.WhileBoxIsUp = [this](const auto&) { Open(""); };
  Open(Line(1, "x") + Line(2, "y"));
  Delete(2);
  EXPECT_EQ(Content(), "");
}

TEST_F(AllowListPanel, AnErrorThatReachesAButtonHasABoxAndAStatus) {
  Open(Line(1, "a") + Line(2, "b"));
  Panel().cmdAddWebsite.SetFocus();
  Panel().txtName.GotFocus = [] { throw text::RuntimeError(text::ErrorNumber::Overflow); };
  Panel().txtName.SetText("c");
  process.AnswerBox = [](const auto&) { return platform::AnswerYes; };
  for (forms::CommandButton* button :
       {&Panel().cmdAddWebsite, &Panel().cmdEditAllowed, &Panel().cmdRemove}) {
    process.ClearBoxes();
    Panel().txtName.SetText("c");
    button->SetFocus();
    Panel().lblstatus.SetCaption("");
    user.Click(*button);
    ASSERT_THAT(BoxTexts(), testing::Contains("Error occured: Overflow"));
    EXPECT_EQ(process.Boxes().back().style, platform::StyleInformation);
    EXPECT_EQ(process.Boxes().back().title, "Vantrel");
    EXPECT_EQ(Status(), " Error occured: Overflow");
  }
}

TEST_F(AllowListPanel, ArrowKeysAreClicksOnRows) {
  Open(Line(1, "a") + Line(2, "b"));
  Panel().lstGroup.UserSelects(2);
  EXPECT_EQ(Typed(), "b");
}

TEST_F(AllowListPanel, TheSpellingsOfTheFileAreThoseOfItsWriters) {
  Open(Line(1, "a") + Line(2, "b"));
  Add("c");
  EXPECT_THAT(process.Trace().LinesOf("AppendTextFile"),
              ElementsAre(testing::HasSubstr("\\Settings\\Allowlist.TXT\"")));
  Edit(1, "d");
  EXPECT_THAT(process.Trace().LinesOf("WriteTextFile"),
              ElementsAre(testing::HasSubstr("\\Settings\\Allowlist.txt\"")));
  for (const std::string& line : process.Trace().LinesOf("ReadTextFile")) {
    EXPECT_THAT(line, testing::AnyOf(testing::HasSubstr("AllowList.txt\""),
                                     testing::HasSubstr("Allowlist.TXT\"")));
  }
}

// The files of a machine, looked over the shoulder when the list is written anew.
class WatchedFiles : public platform::Files {
 public:
  explicit WatchedFiles(platform::Files& files) : files_(files) {}

  bool FileExists(const std::string& path) override { return files_.FileExists(path); }
  std::int32_t FileLength(const std::string& path, std::uint64_t& length) override {
    return files_.FileLength(path, length);
  }
  std::int32_t ReadTextFile(const std::string& path, std::string& content) override {
    return files_.ReadTextFile(path, content);
  }
  std::int32_t CreateTextFile(const std::string& path) override {
    return files_.CreateTextFile(path);
  }
  std::int32_t WriteTextFile(const std::string& path, const std::string& content) override {
    OnWrite();
    return files_.WriteTextFile(path, content);
  }
  std::int32_t AppendTextFile(const std::string& path, const std::string& content) override {
    return files_.AppendTextFile(path, content);
  }

  std::function<void()> OnWrite = [] {};

 private:
  platform::Files& files_;
};

platform::Platform With(platform::Files& files, const platform::Platform& all) {
  return {all.registry, all.desktop, all.shell,   files,       all.processes,  all.sound,
          all.dialogs,  all.system,  all.modules, all.folders, all.binaryFiles};
}

TEST(AllowListPanelRow, ReadsBlockWhileTheFileIsWrittenAndBlockedAfterIt) {
  platform::memory::World world;
  test::FillMachine(world);
  platform::memory::Process process(world);
  WatchedFiles files(process.Platform().files);
  forms::headless::Toolkit toolkit(world.desktop, world.clock, process.Id());
  program::Program program(With(files, process.Platform()), toolkit);
  AttachAllowList(program);
  world.files.Put(Path, Line(1, "a"));
  LoadAllowList(program, LoadFailure::IsSilent);
  windows::FrmFrameAllowList& panel = *program.windows.FrmFrameAllowList;
  panel.chkABanner.SetValue(forms::Unchecked);
  panel.txtName.SetText(" b ");
  std::vector<std::string> shown;
  files.OnWrite = [&] {
    const forms::ListItem& row = panel.lstGroup.Item(1);
    shown = {row.Text(), row.Sub(1).Text, row.Sub(4).Text};
  };
  cmdEditAllowed_Click(program);
  EXPECT_THAT(shown, ElementsAre(" b ", "Allowed", "Block"));
  EXPECT_EQ(panel.lstGroup.Item(1).Sub(4).Text, "Blocked");
  EXPECT_EQ(world.files.Read(Path), Line(1, "b", "11101"));
}

}  // namespace
}  // namespace vantrel::allowlist
