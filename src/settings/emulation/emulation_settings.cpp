#include "settings/emulation/emulation_settings.h"

namespace veltrix {

std::span<const FieldDef* const> EmulationFields() { return {}; }

void SetEmulationDefaults(Document& doc) { (void)doc; }

void AppendEmulationSummary(const Document& doc, SummaryNode& parent) {
  (void)doc;
  (void)parent;
}

void SetEmulationMessageDefaults(Document& doc) { (void)doc; }

}  // namespace veltrix
