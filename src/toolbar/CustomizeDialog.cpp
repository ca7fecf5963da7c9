#include "toolbar/CustomizeDialog.h"

#include <string>

#include "toolbar/Catalogue.h"
#include "toolbar/ToolbarLayout.h"
#include "windows/frmcustom.h"

namespace vantrel::toolbar {
namespace {

using forms::ListItem;
using forms::ListView;
using program::Program;
using Dialog = windows::frmcustom;

constexpr int Up = -1;
constexpr int Down = 1;

void MarkChanged(Dialog& form) { form.cmdDone.SetEnabled(true); }

// The key comes last: a key stands in a list once only.
void MoveAcross(ListView& from, ListView& to) {
  if (from.Count() == 0) return;
  const std::string key = from.SelectedItem()->Key();
  const std::string caption = from.SelectedItem()->Text();
  ListItem& row = to.Add("", caption, caption);
  from.Remove(from.SelectedIndex());
  row.SetKey(key);
}

// A copy takes the new place before the row goes, and then the row's key.
void MoveRow(ListView& list, int row, int step) {
  const std::string key = list.Item(row).Key();
  const std::string caption = list.Item(row).Text();
  ListItem& copy = list.Add("", caption, list.Item(row).Icon(), step == Down ? row + 2 : row - 1);
  list.Remove(step == Down ? row : row + 1);
  copy.SetKey(key);
}

void MoveSelected(ListView& list, int step) {
  if (list.Count() == 0) return;
  int row = list.SelectedIndex();
  const int next = row + step;
  if (next >= 1 && next <= list.Count()) {
    MoveRow(list, row, step);
    row = next;
  }
  list.Select(row);
  list.SetDropHighlight(row);
}

// A move among the entries that are not shown is allowed; it is not stored.
void MoveInActiveList(Dialog& form, int step) {
  for (ListView* list : {&form.lstvSet, &form.lstvCurrent}) {
    if (list->Name() == form.ActiveList) MoveSelected(*list, step);
  }
  MarkChanged(form);
}

}  // namespace

void cmdAdd_Click(Dialog& form) {
  MoveAcross(form.lstvSet, form.lstvCurrent);
  MarkChanged(form);
}

void cmdRemove_Click(Dialog& form) {
  MoveAcross(form.lstvCurrent, form.lstvSet);
  MarkChanged(form);
}

void cmdMUp_Click(Dialog& form) { MoveInActiveList(form, Up); }

void cmdMDown_Click(Dialog& form) { MoveInActiveList(form, Down); }

void cmdReset_Click(Dialog& form) {
  form.lstvSet.Clear();
  form.lstvCurrent.Clear();
  for (const Entry& entry : Catalogue) {
    form.lstvCurrent.Add(RowKey(entry.Number), entry.Caption, entry.Caption);
  }
  MarkChanged(form);
}

void cmdDone_Click(Program& program, Dialog& form) {
  try {
    SaveToolbarSetting(program, form.lstvCurrent, form.lstvSet, form.txttoolbarname.Text());
    form.cmdDone.SetEnabled(false);
  } catch (const text::RuntimeError& error) {
    program.ShowError(error);
  }
}

void Command1_Click(Program& program, Dialog& form) {
  if (form.cmdDone.Enabled()) cmdDone_Click(program, form);
  form.Unload();
}

void Attach(Program& program, Dialog& form) {
  form.Load = [&program, &form] {
    allButtons(program, form);
    // The stored name is meant never to be shown.
    form.txttoolbarname.SetText("Vantrel");
  };
  form.Activate = [&form] { form.cmdAdd.SetFocus(); };
  for (ListView* list : {&form.lstvSet, &form.lstvCurrent}) {
    list->ItemClick = [&form, list](ListItem&) { form.ActiveList = list->Name(); };
  }
  form.cmdAdd.Click = [&form] { cmdAdd_Click(form); };
  form.cmdRemove.Click = [&form] { cmdRemove_Click(form); };
  form.cmdMUp.Click = [&form] { cmdMUp_Click(form); };
  form.cmdMDown.Click = [&form] { cmdMDown_Click(form); };
  form.cmdReset.Click = [&form] { cmdReset_Click(form); };
  form.cmdDone.Click = [&program, &form] { cmdDone_Click(program, form); };
  form.Command1.Click = [&program, &form] { Command1_Click(program, form); };
}

}  // namespace vantrel::toolbar
