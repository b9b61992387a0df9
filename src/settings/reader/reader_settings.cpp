#include "settings/reader/reader_settings.h"

namespace veltrix {

std::span<const FieldDef* const> ReaderFields() { return {}; }

void SetReaderDefaults(Document& doc) { (void)doc; }

void AppendReaderSummary(const Document& doc, SummaryNode& parent) {
  (void)doc;
  (void)parent;
}

void ConvertPreviousReaderLayout(Document& doc) { (void)doc; }

}  // namespace veltrix
