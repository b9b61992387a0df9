#ifndef VELTRIX_SETTINGS_READER_SYMBOLOGY_OPTIONS_H_
#define VELTRIX_SETTINGS_READER_SYMBOLOGY_OPTIONS_H_

#include <span>
#include <string_view>
#include <vector>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/reader/length_pair.h"
#include "settings/reader/option_controls.h"

namespace veltrix {

// One option dialog of the linear set ("more..." on the "Barcode" page): its template, caption
// and controls, each bound to a field of reader working block 2.
struct LinearOptionDialog {
  std::string_view template_name;
  std::string_view caption;
  std::span<const CheckBoxControl> checks = {};
  std::span<const ChoiceControl> radios = {};
  const FieldDef* length = nullptr;  // the length group's two bytes, if the dialog has one
};

// What the dialog's controls hold between opening and OK.
struct LinearOptionState {
  std::vector<bool> checked;  // per check box, in the dialog's order
  std::vector<int> chosen;    // per radio group: the position of the checked radio
  LengthPair length;          // the length radios and the two boxes

  bool operator==(const LinearOptionState&) const = default;
};

// Every linear option dialog, and the one with a template name (nullptr when none).
std::span<const LinearOptionDialog> LinearOptionDialogs();
const LinearOptionDialog* FindLinearOptionDialog(std::string_view template_name);

// Opening: the controls as the working block sets them.
LinearOptionState OpenLinearOptions(const Document& doc, const LinearOptionDialog& dialog);

// OK: stores the controls into the working block (Cancel simply drops the state).
void ApplyLinearOptions(Document& doc, const LinearOptionDialog& dialog,
                        const LinearOptionState& state);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_SYMBOLOGY_OPTIONS_H_
