#ifndef VELTRIX_SHELL_SUMMARY_JSON_H_
#define VELTRIX_SHELL_SUMMARY_JSON_H_

#include <string>
#include <vector>

#include "settings/summary_node.h"

namespace veltrix {

// The tree as a JSON array of {"text": ..., "children": [...]} objects, followed by a line feed.
// The output is plain ASCII: control characters and bytes from 128 up (the terminal's single-byte
// characters) are written as \u00XX escapes, so it is valid JSON whatever the record holds.
std::string RenderSummaryJson(const std::vector<SummaryNode>& nodes);

}  // namespace veltrix

#endif  // VELTRIX_SHELL_SUMMARY_JSON_H_
