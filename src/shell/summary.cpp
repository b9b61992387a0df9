#include "shell/summary.h"

namespace veltrix {

// Stubs until the summary lands.
std::vector<SummaryNode> BuildSummary(const Document& doc) {
  (void)doc;
  return {};
}

std::string KeyNamesText(std::span<const std::uint8_t> bytes, int count, KeyNameMode mode) {
  (void)bytes;
  (void)count;
  (void)mode;
  return {};
}

}  // namespace veltrix
