#include "allowlist/AllowListPanel.h"

#include "allowlist/SiteFile.h"
#include "allowlist/SiteList.h"
#include "program/PanelHosting.h"
#include "text/ErrorTrap.h"
#include "text/Strings.h"
#include "windows/FrmFrameAllowList.h"

namespace vantrel::allowlist {
namespace {

using program::Program;
using Panel = windows::FrmFrameAllowList;

// One file under the two spellings that the writers have for it.
constexpr const char* FileToAddTo = "\\Settings\\Allowlist.TXT";
constexpr const char* FileToRewrite = "\\Settings\\Allowlist.txt";

// What a row that was edited shows until the list is read again, when it becomes "Blocked". The
// shorter word is meant.
constexpr const char* EditedBlockedLabel = "Block";

constexpr std::array Boxes = {&Panel::chkAPopups, &Panel::chkADhtml, &Panel::chkADialog,
                              &Panel::chkABanner, &Panel::chkAFlash};
static_assert(Boxes.size() == SiteFlags.size(), "each flag has its box");

constexpr int FewestRowsToDeleteFrom = 2;

Panel& PanelOf(Program& program) { return *program.windows.FrmFrameAllowList; }

// Whether there is a name; asks for one where there is none.
bool HasName(Program& program) {
  Panel& panel = PanelOf(program);
  if (!text::Trimmed(panel.txtName.Text()).empty()) return true;
  program.MsgBox("No Website name is given", platform::StyleInformation);
  panel.txtName.SetFocus();
  return false;
}

void ReloadList(Program& program) {
  PanelOf(program).lstGroup.Clear();
  LoadAllowList(program, LoadFailure::IsSilent);
}

void EmptyName(Panel& panel) {
  panel.txtName.SetText("");
  panel.txtName.SetFocus();
}

SiteRecord TypedSite(const Panel& panel) {
  SiteRecord site;
  site.name = panel.txtName.Text();
  for (std::size_t i = 0; i < Boxes.size(); ++i) {
    site.*SiteFlags[i] = static_cast<std::int16_t>((panel.*Boxes[i]).Value());
  }
  return site;
}

SiteRecord SiteOf(const forms::ListItem& row) {
  SiteRecord site;
  site.name = text::Trim(row.Text());
  for (std::size_t i = 0; i < SiteFlags.size(); ++i) {
    const bool allowed = row.Sub(static_cast<int>(i) + 1).Text == AllowedLabel;
    site.*SiteFlags[i] = allowed ? std::int16_t{1} : std::int16_t{0};
  }
  return site;
}

// Writes all rows; whether the last of them was added.
bool RewriteFile(Program& program) {
  const forms::ListView& list = PanelOf(program).lstGroup;
  std::vector<SiteRecord> sites;
  sites.reserve(static_cast<std::size_t>(list.Count()));
  for (int row = 1; row <= list.Count(); ++row) sites.push_back(SiteOf(list.Item(row)));
  return RewriteSiteFile(program.platform.files, program.PathOf(FileToRewrite), sites);
}

void Add(Program& program) {
  if (!HasName(program)) return;
  Panel& panel = PanelOf(program);
  const bool added =
      AddSiteRecord(program.platform.files, program.PathOf(FileToAddTo), TypedSite(panel));
  ReloadList(program);
  EmptyName(panel);
  panel.lblstatus.SetCaption(added ? "Added Successfully" : "Website already exists");
}

void ShowEdit(const Panel& panel, forms::ListItem& row) {
  row.SetText(panel.txtName.Text());
  for (std::size_t i = 0; i < Boxes.size(); ++i) {
    const bool allowed = (panel.*Boxes[i]).Value() == forms::Checked;
    row.SetSubText(static_cast<int>(i) + 1, allowed ? AllowedLabel : EditedBlockedLabel);
  }
}

void Edit(Program& program) {
  Panel& panel = PanelOf(program);
  if (panel.lstGroup.Count() == 0 || !HasName(program)) return;
  ShowEdit(panel, *panel.lstGroup.SelectedItem());
  const bool added = RewriteFile(program);
  ReloadList(program);
  EmptyName(panel);
  panel.lblstatus.SetCaption(added ? "Edited Successfully" : "Website already exists");
}

// Asks about the selected row; its place, or 0 where it is not to be deleted. A command that comes
// while the box is up reads the list again: only the row that was asked about is deleted.
int RowToDelete(Program& program) {
  const forms::ListView& list = PanelOf(program).lstGroup;
  const int row = list.SelectedIndex();
  const std::string name = list.Item(row).Text();
  const int answer = program.MsgBox("Delete the Website [" + name + "] from the allowed list",
                                    platform::StyleQuestionYesNo);
  const bool there = list.Count() >= FewestRowsToDeleteFrom && row <= list.Count() &&
                     list.Item(row).Text() == name;
  return answer == platform::AnswerYes && there ? row : 0;
}

void Delete(Program& program) {
  Panel& panel = PanelOf(program);
  if (panel.lstGroup.Count() < FewestRowsToDeleteFrom) return;
  const int row = RowToDelete(program);
  if (row == 0) return;
  panel.lstGroup.Remove(row);
  RewriteFile(program);
  ReloadList(program);
  panel.txtName.SetFocus();
  panel.lblstatus.SetCaption("Deleted Successfully");
}

// Runs an act of a button; an error ends it with a box and the same text in the status, there with
// a blank before it.
template <class Act>
void Trapped(Program& program, Act act) {
  text::ErrorTrap trap;
  if (trap([&] { act(program); })) return;
  program.ShowError(*trap.Last());
  PanelOf(program).lblstatus.SetCaption(" Error occured: " + trap.Last()->Description());
}

}  // namespace

void cmdAddWebsite_Click(Program& program) { Trapped(program, Add); }
void cmdEditAllowed_Click(Program& program) { Trapped(program, Edit); }
void cmdRemove_Click(Program& program) { Trapped(program, Delete); }

void lstGroup_Click(Program& program) {
  Panel& panel = PanelOf(program);
  if (const forms::ListItem* row = panel.lstGroup.SelectedItem()) {
    panel.txtName.SetText(row->Text());
  }
}

void Attach(Program& program, Panel& panel) {
  panel.Load = [&program, &panel] { program::HostPanel(program, panel); };
  panel.cmdAddWebsite.Click = [&program] { cmdAddWebsite_Click(program); };
  panel.cmdEditAllowed.Click = [&program] { cmdEditAllowed_Click(program); };
  panel.cmdRemove.Click = [&program] { cmdRemove_Click(program); };
  panel.lstGroup.Click = [&program] { lstGroup_Click(program); };
}

}  // namespace vantrel::allowlist
