#ifndef VELTRIX_SETTINGS_READER_TWO_D_OPTIONS_H_
#define VELTRIX_SETTINGS_READER_TWO_D_OPTIONS_H_

#include <span>
#include <string_view>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/field_binding.h"
#include "settings/reader/length_option.h"
#include "settings/reader/option_controls.h"

namespace veltrix {

// A field that OK stores as 0 unless `condition` holds 1 after the controls are stored.
struct StoredOnlyWith {
  const FieldDef* field;
  const FieldDef* condition;
};

// One option dialog of the two-dimensional set, bound to fields of reader working block 1.
struct TwoDOptionDialog {
  std::string_view template_name;
  std::string_view caption;
  std::span<const CheckBoxControl> checks = {};
  std::span<const ChoiceControl> lists = {};
  // The length option family: list 401 with boxes 201 and 202.
  const FieldDef* length_option = nullptr;
  const FieldDef* length1 = nullptr;
  const FieldDef* length2 = nullptr;
  std::span<const FieldDef* const> cleared_on_open = {};  // bits the dialog clears when it opens
  std::span<const FieldDef* const> cleared_on_ok = {};    // bits OK clears
  std::span<const StoredOnlyWith> stored_only_with = {};
};

std::span<const TwoDOptionDialog> TwoDOptionDialogs();
const TwoDOptionDialog* FindTwoDOptionDialog(std::string_view template_name);

// The dialog's controls, each stored on OK into working block 1: check boxes and lists
// ("<caption>"), and for the family "length_option", "length_1" and "length_2".
OwnedBindings TwoDOptionBindings(const TwoDOptionDialog& dialog);

// Opening: clears what the dialog clears on opening (even if it is then cancelled).
void OpenTwoDOptions(Document& doc, const TwoDOptionDialog& dialog);

// The user chose another length option: the boxes it enables are emptied in `pending`.
void LengthOptionChosen(Document& pending, const TwoDOptionDialog& dialog);

// OK, once the controls are stored: the dialog's rules (reserved bits cleared, values stored only
// with another, the length option as its boxes allow).
void ApplyTwoDOptions(Document& doc, const TwoDOptionDialog& dialog);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_TWO_D_OPTIONS_H_
