#include "shell/summary.h"

namespace veltrix {

// Stubs until the summary lands.
std::vector<SummaryNode> BuildSummary(const Document& doc) {
  (void)doc;
  return {};
}

namespace {
void RenderNode(const SummaryNode& node, int level, std::string& out) {
  out.append(static_cast<std::size_t>(level) * 2, ' ');
  out += node.text;
  out += '\n';
  for (const SummaryNode& child : node.children) RenderNode(child, level + 1, out);
}
}  // namespace

std::string RenderSummaryText(const std::vector<SummaryNode>& nodes) {
  std::string out;
  for (const SummaryNode& node : nodes) RenderNode(node, 0, out);
  return out;
}

std::string KeyNamesText(std::span<const std::uint8_t> bytes, int count, KeyNameMode mode) {
  (void)bytes;
  (void)count;
  (void)mode;
  return {};
}

}  // namespace veltrix
