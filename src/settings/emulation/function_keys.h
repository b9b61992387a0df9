#ifndef VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_
#define VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_

#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "shell/summary_node.h"

namespace veltrix {

// Every field of this section, declared once.
std::span<const FieldDef* const> FunctionKeyFields();

// The section's default routine (run by SetDefaults in the fixed order).
void SetFunctionKeyDefaults(Document& doc);

// Appends this section's summary lines below `parent`.
void AppendFunctionKeySummary(const Document& doc, SummaryNode& parent);

// Fills doc.key_present from the product index.
void ApplyKeyAvailability(Document& doc);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_FUNCTION_KEYS_H_
