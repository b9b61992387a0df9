#ifndef VELTRIX_SETTINGS_READER_TWO_D_OPTIONS_H_
#define VELTRIX_SETTINGS_READER_TWO_D_OPTIONS_H_

#include <span>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/field.h"
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

struct TwoDOptionState {
  std::vector<bool> checked;  // per check box, in the dialog's order
  std::vector<int> chosen;    // per list: the selected position
  int option = kAnyLength;    // the length option, for the family
  LengthBoxes lengths;        // boxes 201 and 202

  bool operator==(const TwoDOptionState&) const = default;
};

std::span<const TwoDOptionDialog> TwoDOptionDialogs();
const TwoDOptionDialog* FindTwoDOptionDialog(std::string_view template_name);

// Opening: clears what the dialog clears on opening (even if it is then cancelled) and returns the
// controls as the working block sets them.
TwoDOptionState OpenTwoDOptions(Document& doc, const TwoDOptionDialog& dialog);

// OK: stores the controls into working block 1 with the dialog's rules.
void ApplyTwoDOptions(Document& doc, const TwoDOptionDialog& dialog, const TwoDOptionState& state);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_TWO_D_OPTIONS_H_
