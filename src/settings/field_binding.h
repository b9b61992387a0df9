#ifndef VELTRIX_SETTINGS_FIELD_BINDING_H_
#define VELTRIX_SETTINGS_FIELD_BINDING_H_

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/numeric_edit.h"

namespace veltrix {

// The kinds of control a page binds to a field.
enum class ControlKind {
  kCheckBox,    // 0 or 1
  kRadioGroup,  // the checked button's id is the value
  kList,        // the selected entry's index is the value
  kNumberEdit,  // text read through a rule that may correct it
  kTextEdit,    // the first width - 1 characters with a NUL behind
  kKeyCombo,    // a function key index 0-10, under the claim rule of its field's role
};

// Page rules that replace the plain store of a value or a text (the language that also sets
// the font size, "Cursor Tracking" that also sets "Lock Screen", ...).
using NumberRule = NumericEdit (*)(std::string_view text, const FieldDef& field);
using ValueStore = void (*)(Document& doc, std::int64_t value);
using TextStore = void (*)(Document& doc, std::string_view text);
using EnabledRule = bool (*)(const Document& doc);

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
};

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

// The table's line for a control, or null.
const FieldBinding* FindBinding(std::span<const FieldBinding> table, std::string_view control);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_BINDING_H_
