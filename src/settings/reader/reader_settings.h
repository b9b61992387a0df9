#ifndef VELTRIX_SETTINGS_READER_READER_SETTINGS_H_
#define VELTRIX_SETTINGS_READER_READER_SETTINGS_H_

#include <span>

#include "settings/document.h"
#include "settings/field.h"
#include "settings/summary_node.h"

namespace veltrix {

// Every field of this section, declared once.
std::span<const FieldDef* const> ReaderFields();

// The section's default routine (run by SetDefaults in the fixed order).
void SetReaderDefaults(Document& doc);

// Appends this section's summary lines below `parent`.
void AppendReaderSummary(const Document& doc, SummaryNode& parent);

// Converts the reader bytes of a previous-layout file in place (run when such a file is opened).
void ConvertPreviousReaderLayout(Document& doc);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_READER_SETTINGS_H_
