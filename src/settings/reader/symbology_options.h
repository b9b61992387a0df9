#ifndef VELTRIX_SETTINGS_READER_SYMBOLOGY_OPTIONS_H_
#define VELTRIX_SETTINGS_READER_SYMBOLOGY_OPTIONS_H_

#include <span>
#include <string_view>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/field_binding.h"
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

// Every linear option dialog, and the one with a template name (nullptr when none).
std::span<const LinearOptionDialog> LinearOptionDialogs();
const LinearOptionDialog* FindLinearOptionDialog(std::string_view template_name);

// The dialog's controls, each stored on OK into working block 2: check boxes, radio groups
// ("<caption>"), and for the length group "length_qualification", "length_1" and "length_2".
OwnedBindings LinearOptionBindings(const LinearOptionDialog& dialog);

// OK, once the controls are stored: orders the length group (with "Max / Min Length" a 0 counts
// as 1 and the larger length goes first).
void ApplyLinearOptions(Document& doc, const LinearOptionDialog& dialog);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_SYMBOLOGY_OPTIONS_H_
