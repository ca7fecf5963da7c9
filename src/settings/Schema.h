// The settings tree value by value, one row a value: what a first run stores, what a save stores,
// what a load fills and what a Reset makes of it all follow from the row. The blocking engine reads
// the same tree. A new setting is a new row in Schema.cpp.
#ifndef VANTREL_SETTINGS_SCHEMA_H_
#define VANTREL_SETTINGS_SCHEMA_H_

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "forms/Controls.h"
#include "program/Program.h"

namespace vantrel::settings {

inline constexpr const char* RootKey = "Software\\Qorvel Softwares";
inline constexpr const char* BlockLogKey = "Software\\Qorvel Softwares\\Block Log";
inline constexpr const char* ToolbarSettingsKey = "Software\\Qorvel Softwares\\Toolbar Settings";

// The value that says whether Block Settings or Settings has been filled. It is read under this
// spelling and written under "BpID", which is one value.
inline constexpr const char* FilledMarker = "BpId";

// The value that says whether the engine is to rest.
inline constexpr const char* DisabledValue = "GDisabled";

// The check box that holds a setting, and the panel that it stands on.
struct SettingBox {
  program::FormSlot& (*Panel)(program::Windows&);
  forms::CheckBox& (*On)(forms::Form& panel);

  // Makes the panel if it is not there.
  forms::CheckBox& In(program::Windows& windows) const { return On(Panel(windows).Touch()); }
};

// Where the stored content comes from.
struct Nothing {};  // the value is not written
struct Number {
  std::int32_t Value;
};
struct TextValue {
  const char* Text;
};
struct BoxState {
  SettingBox Box;
};
// The number, and the box is ticked then, whose own handler saves the whole key.
struct NumberThenTick {
  std::int32_t Value;
  SettingBox Box;
};
struct SelectedSound {};
// 0 while blocking is active, else 1.
struct DisabledFlag {};
using Origin =
    std::variant<Nothing, Number, TextValue, BoxState, NumberThenTick, SelectedSound, DisabledFlag>;

// What the Reset or Default button of a box's panel leaves alone.
inline constexpr int AsItIs = -1;

// One value of a key. A load fills what a save takes from a control.
struct Setting {
  const char* Name;
  Origin FirstRun;
  Origin Save;
  // The state that the Reset or Default button of the box's panel gives it.
  int Reset = AsItIs;
  // Where a load differs from the save: the spelling that is read, and the row before which the
  // value is read instead of in its own place; empty for as it stands.
  std::string_view ReadAs = {};
  std::string_view ReadBefore = {};
};

// A key of the tree with the one value whose absence makes a first run fill it. The order of the
// rows is that of writing.
struct Section {
  const char* Key;
  const char* Marker;
  std::span<const Setting> Rows;
  bool ResetsTotal = false;
};

// In the order of a first run.
extern const std::array<Section, 4> Sections;
extern const Section& BlockSection;
extern const Section& GeneralSection;

}  // namespace vantrel::settings

#endif  // VANTREL_SETTINGS_SCHEMA_H_
