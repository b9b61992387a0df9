#ifndef VELTRIX_SHELL_SUMMARY_H_
#define VELTRIX_SHELL_SUMMARY_H_

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "settings/document.h"
#include "settings/key_names_text.h"
#include "settings/summary_node.h"

namespace veltrix {

// The settings summary of a document: the six section items with their lines, in order; empty
// when no product is chosen.
std::vector<SummaryNode> BuildSummary(const Document& doc);

// The tree as text: one line per node in tree order, indented by two spaces per level below the
// top level, each line ended by a line feed.
std::string RenderSummaryText(const std::vector<SummaryNode>& nodes);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_SUMMARY_H_
