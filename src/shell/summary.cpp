#include "shell/summary.h"

#include <cstdio>

#include "resources/strings.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/network/network_settings.h"
#include "settings/reader/reader_settings.h"
#include "settings/screen/screen_pages.h"
#include "settings/system/system_settings.h"

namespace veltrix {
namespace {

// The top-level section items, in tree order.
enum Section { kInformation, kSystem, kBarcode, kWirelessLan, kEmulation, kScreen };
constexpr const char* kSectionTexts[] = {"Information",  "System",    "Bardode",
                                         "Wireless LAN", "Emulation", "Screen"};

void AppendInformation(const Document& doc, SummaryNode& parent) {
  const std::vector<std::string_view> products = ProductNames();
  const int product = doc.product();
  const std::string_view product_name =
      product >= 1 && product <= static_cast<int>(products.size()) ? products[product - 1] : "";
  char line[100];
  std::snprintf(line, sizeof line, "Terminal Model : %.*s %.*s",
                static_cast<int>(StringResource(4001).size()), StringResource(4001).data(),
                static_cast<int>(product_name.size()), product_name.data());
  parent.Add(line);
  std::snprintf(line, sizeof line, "Version : %.*s", static_cast<int>(StringResource(4002).size()),
                StringResource(4002).data());
  parent.Add(line);
  parent.Add(std::string(StringResource(4003)));
}

void RenderNode(const SummaryNode& node, int level, std::string& out) {
  out.append(static_cast<std::size_t>(level) * 2, ' ');
  out += node.text;
  out += '\n';
  for (const SummaryNode& child : node.children) RenderNode(child, level + 1, out);
}

}  // namespace

std::vector<SummaryNode> BuildSummary(const Document& doc) {
  std::vector<SummaryNode> tree;
  if (doc.product() == 0) return tree;
  tree.reserve(std::size(kSectionTexts));
  for (const char* text : kSectionTexts) tree.push_back(SummaryNode{text, {}});

  AppendInformation(doc, tree[kInformation]);
  AppendSystemSummary(doc, tree[kSystem]);
  AppendReaderSummary(doc, tree[kBarcode]);
  AppendNetworkSummary(doc, tree[kWirelessLan]);
  AppendEmulationSummary(doc, tree[kEmulation]);
  AppendScreenPageSummary(doc, tree[kScreen]);
  return tree;
}

std::string RenderSummaryText(const std::vector<SummaryNode>& nodes) {
  std::string out;
  for (const SummaryNode& node : nodes) RenderNode(node, 0, out);
  return out;
}

}  // namespace veltrix
