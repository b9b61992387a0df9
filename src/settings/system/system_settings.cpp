#include "settings/system/system_settings.h"

namespace veltrix {

std::span<const FieldDef* const> SystemFields() { return {}; }

void SetSystemDefaults(Document& doc) { (void)doc; }

void AppendSystemSummary(const Document& doc, SummaryNode& parent) {
  (void)doc;
  (void)parent;
}

}  // namespace veltrix
