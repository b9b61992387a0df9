#include "capture/screen_pages.h"

namespace veltrix {

std::span<const FieldDef* const> ScreenPageFields() { return {}; }

void SetScreenPageDefaults(Document& doc) { (void)doc; }

void AppendScreenPageSummary(const Document& doc, SummaryNode& parent) {
  (void)doc;
  (void)parent;
}

}  // namespace veltrix
