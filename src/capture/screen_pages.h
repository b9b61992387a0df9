#ifndef VELTRIX_CAPTURE_SCREEN_PAGES_H_
#define VELTRIX_CAPTURE_SCREEN_PAGES_H_

#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "shell/summary_node.h"

namespace veltrix {

// Every field of this section, declared once.
std::span<const FieldDef* const> ScreenPageFields();

// The section's default routine (run by SetDefaults in the fixed order).
void SetScreenPageDefaults(Document& doc);

// Appends this section's summary lines below `parent`.
void AppendScreenPageSummary(const Document& doc, SummaryNode& parent);

}  // namespace veltrix

#endif  // VELTRIX_CAPTURE_SCREEN_PAGES_H_
