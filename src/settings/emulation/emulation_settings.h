#ifndef VELTRIX_SETTINGS_EMULATION_EMULATION_SETTINGS_H_
#define VELTRIX_SETTINGS_EMULATION_EMULATION_SETTINGS_H_

#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "shell/summary_node.h"

namespace veltrix {

// Every field of this section, declared once.
std::span<const FieldDef* const> EmulationFields();

// The section's default routine (run by SetDefaults in the fixed order).
void SetEmulationDefaults(Document& doc);

// Appends this section's summary lines below `parent`.
void AppendEmulationSummary(const Document& doc, SummaryNode& parent);

// Gives `MessageLineNumber`, `MessageTimeOut` and `ExcludeString` their defaults (also used when
// a previous-layout file is converted on open).
void SetEmulationMessageDefaults(Document& doc);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_EMULATION_SETTINGS_H_
