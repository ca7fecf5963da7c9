#include "settings/PanelBoxes.h"

#include <utility>
#include <vector>

#include "settings/Schema.h"
#include "settings/bmdlSave.h"

namespace vantrel::settings {
namespace {

using program::FormSlot;
using program::Program;

// The section's rows whose box stands on the panel, in their order.
std::vector<const Setting*> RowsOn(Program& program, const FormSlot& panel,
                                   const Section& section) {
  std::vector<const Setting*> rows;
  for (const Setting& row : section.Rows) {
    const auto* state = std::get_if<BoxState>(&row.Save);
    if (state != nullptr && &state->Box.Panel(program.windows) == &panel) rows.push_back(&row);
  }
  return rows;
}

const SettingBox& BoxOf(const Setting& row) { return std::get<BoxState>(row.Save).Box; }

}  // namespace

void SaveOnClick(Program& program, const FormSlot& panel, forms::Form& form) {
  const std::pair<const Section&, bool (*)(Program&)> saves[] = {
      {BlockSection, SaveBlockSettingsGuarded}, {GeneralSection, SaveGeneralSettingsGuarded}};
  for (const auto& [section, save] : saves) {
    for (const Setting* row : RowsOn(program, panel, section)) {
      forms::CheckBox& box = BoxOf(*row).On(form);
      if (!box.Click) box.Click = [&program, save = save] { save(program); };
    }
  }
}

void ResetBoxes(Program& program, const FormSlot& panel) {
  std::vector<const Setting*> rows = RowsOn(program, panel, BlockSection);
  const std::vector<const Setting*> general = RowsOn(program, panel, GeneralSection);
  rows.insert(rows.end(), general.rbegin(), general.rend());
  for (const Setting* row : rows) {
    if (row->Reset != AsItIs) BoxOf(*row).In(program.windows).SetValue(row->Reset);
  }
}

}  // namespace vantrel::settings
