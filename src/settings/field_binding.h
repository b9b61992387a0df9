#ifndef VELTRIX_SETTINGS_FIELD_BINDING_H_
#define VELTRIX_SETTINGS_FIELD_BINDING_H_

#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/grid/char_grid.h"
#include "settings/numeric_edit.h"
#include "settings/reader/number_box.h"
#include "settings/reader/option_controls.h"

namespace veltrix {

// The kinds of control a page binds to a field.
enum class ControlKind {
  kCheckBox,    // 0 or 1
  kRadioGroup,  // the checked button's id is the value
  kList,        // the selected entry's index is the value
  kNumberEdit,  // text read through a rule that may correct it
  kTextEdit,    // the first width - 1 characters with a NUL behind
  kKeyCombo,    // a function key index 0-10, under the claim rule of its field's role
  kSpinBox,     // a spin box's value
  kGridEdit,    // bytes picked in "The Grid Control", shown as the grid names them
};

// Page rules that replace the plain store of a value or a text (the language that also sets
// the font size, "Cursor Tracking" that also sets "Lock Screen", ...).
using NumberRule = NumericEdit (*)(std::string_view text, const FieldDef& field);
using ValueStore = void (*)(Document& doc, std::int64_t value);
using TextStore = void (*)(Document& doc, std::string_view text);
using EnabledRule = bool (*)(const Document& doc);
// What a control shows of a stored value or byte string it cannot show as it is.
using ShownValue = std::int64_t (*)(std::int64_t stored);
using ShownBytes = std::vector<std::uint8_t> (*)(std::span<const std::uint8_t> stored);

// "This control shows and edits this field under this rule": one line of a page's table.
struct FieldBinding {
  std::string_view control;  // the control's name, from its caption
  ControlKind kind = ControlKind::kCheckBox;
  const FieldDef* field = nullptr;
  int index = 0;  // the element of a repeated field
  NumberRule number = nullptr;
  ValueStore store = nullptr;
  TextStore store_text = nullptr;
  EnabledRule enabled = nullptr;  // null: always enabled
  bool working = false;           // the field's copy in its reader working block, not the record
  bool on_ok = false;             // stored by the dialog's OK (Cancel drops it), not at once
  const ChoiceControl* choice = nullptr;  // a radio group or list coded as the choice says
  const NumberBoxRule* box = nullptr;     // a number edit corrected under this rule
  ShownValue shown = nullptr;             // a spin box's value for a stored one
  GridMode grid = GridMode::kHex;         // kGridEdit: how the grid names the bytes
  int grid_limit = 0;                     // kGridEdit: the most bytes picked
  ShownBytes shown_bytes = nullptr;       // kGridEdit: the stored bytes it shows (null: all)
};

// A table made at run time, for a dialog built from its own table of controls, with the names
// and fields its lines point to (kept in place: the table moves, it is never copied).
struct OwnedBindings {
  std::deque<std::string> names;
  std::deque<FieldDef> fields;
  std::vector<FieldBinding> lines;

  OwnedBindings() = default;
  OwnedBindings(OwnedBindings&&) = default;
  OwnedBindings& operator=(OwnedBindings&&) = default;
  OwnedBindings(const OwnedBindings&) = delete;
  OwnedBindings& operator=(const OwnedBindings&) = delete;

  std::string_view Name(std::string name) { return names.emplace_back(std::move(name)); }
  const FieldDef* Field(const FieldDef& field) { return &fields.emplace_back(field); }
};

// Lines stored on OK into a reader working block, named after their captions: a dialog's check
// boxes, and its radio groups or lists (`kind`).
void AddWorkingLines(OwnedBindings& table, std::span<const CheckBoxControl> checks);
void AddWorkingLines(OwnedBindings& table, std::span<const ChoiceControl> choices,
                     ControlKind kind);
// A dialog's two length boxes ("length_1", "length_2") under `rule`, stored on OK.
void AddLengthBoxes(OwnedBindings& table, const FieldDef* first, const FieldDef* second,
                    const NumberBoxRule& rule);

// A control's object name from its caption: "Transmit Checksum" -> "transmit_checksum".
std::string ControlName(std::string_view caption);

// What the control shows: a check state, button id or entry index; or the text of an edit.
std::int64_t BoundValue(const Document& doc, const FieldBinding& binding);
std::string BoundText(const Document& doc, const FieldBinding& binding);
bool BoundEnabled(const Document& doc, const FieldBinding& binding);

// What storing a control's new value led to.
struct BindingOutcome {
  bool refused = false;                // a key combo whose key another role holds
  std::optional<std::string> rewrite;  // the text a number edit must show instead
};

// A check box, radio button, list or key combo changed by the user. Values outside the field's
// range (a list without selection) are ignored; a refused key changes nothing.
BindingOutcome StoreBoundValue(Document& doc, const FieldBinding& binding, std::int64_t value);
// An edit's whole text after the user changed it.
BindingOutcome StoreBoundText(Document& doc, const FieldBinding& binding, std::string_view text);

// The bytes a grid edit starts from and shows; storing the bytes picked (at most its limit)
// zero-fills the field (a one-byte number takes the first byte, or 0 when none was picked).
std::vector<std::uint8_t> BoundBytes(const Document& doc, const FieldBinding& binding);
void StoreBoundBytes(Document& doc, const FieldBinding& binding,
                     std::span<const std::uint8_t> bytes);

// A dialog's OK: the values its on-OK lines hold in `pending` (its copy of the document) go into
// `doc`; every other byte of `doc` stays.
void CommitBound(Document& doc, const Document& pending, std::span<const FieldBinding> table);

// The table's line for a control, or null.
const FieldBinding* FindBinding(std::span<const FieldBinding> table, std::string_view control);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_BINDING_H_
