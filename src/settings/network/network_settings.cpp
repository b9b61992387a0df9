#include "settings/network/network_settings.h"

namespace veltrix {

std::span<const FieldDef* const> NetworkFields() { return {}; }

void SetNetworkDefaults(Document& doc) { (void)doc; }

void AppendNetworkSummary(const Document& doc, SummaryNode& parent) {
  (void)doc;
  (void)parent;
}

}  // namespace veltrix
