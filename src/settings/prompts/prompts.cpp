#include "settings/prompts/prompts.h"

namespace veltrix {

std::span<const FieldDef* const> PromptFields() { return {}; }

void SetPromptDefaults(Document& doc) { (void)doc; }

void AppendPromptSummary(const Document& doc, SummaryNode& parent) {
  (void)doc;
  (void)parent;
}

}  // namespace veltrix
