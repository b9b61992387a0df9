#include "settings/emulation/function_keys.h"

namespace veltrix {

std::span<const FieldDef* const> FunctionKeyFields() { return {}; }

void SetFunctionKeyDefaults(Document& doc) { (void)doc; }

void AppendFunctionKeySummary(const Document& doc, SummaryNode& parent) {
  (void)doc;
  (void)parent;
}

void ApplyKeyAvailability(Document& doc) { doc.key_present.fill(true); }

}  // namespace veltrix
