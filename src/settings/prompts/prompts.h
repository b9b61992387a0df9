#ifndef VELTRIX_SETTINGS_PROMPTS_PROMPTS_H_
#define VELTRIX_SETTINGS_PROMPTS_PROMPTS_H_

#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "shell/summary_node.h"

namespace veltrix {

// Every field of this section, declared once.
std::span<const FieldDef* const> PromptFields();

// The section's default routine (run by SetDefaults in the fixed order).
void SetPromptDefaults(Document& doc);

// Appends this section's summary lines below `parent`.
void AppendPromptSummary(const Document& doc, SummaryNode& parent);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_PROMPTS_PROMPTS_H_
