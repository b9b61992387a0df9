#include "shell/summary_json.h"

namespace veltrix {
namespace {

void AppendNodes(const std::vector<SummaryNode>& nodes, std::string& out);

void AppendNode(const SummaryNode& node, std::string& out) {
  out += "{\"text\":";
  out += JsonString(node.text);
  out += ",\"children\":";
  AppendNodes(node.children, out);
  out += '}';
}

void AppendNodes(const std::vector<SummaryNode>& nodes, std::string& out) {
  out += '[';
  for (std::size_t k = 0; k < nodes.size(); ++k) {
    if (k > 0) out += ',';
    AppendNode(nodes[k], out);
  }
  out += ']';
}

}  // namespace

std::string JsonString(std::string_view text) {
  constexpr char kHex[] = "0123456789abcdef";
  std::string out = "\"";
  for (char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    switch (c) {
      case '"':
        out += "\\\"";
        break;
      case '\\':
        out += "\\\\";
        break;
      case '\n':
        out += "\\n";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\t':
        out += "\\t";
        break;
      default:
        if (byte < 0x20 || byte >= 0x7F) {
          out += "\\u00";
          out += kHex[byte >> 4];
          out += kHex[byte & 0x0F];
        } else {
          out += c;
        }
    }
  }
  out += '"';
  return out;
}

std::string RenderSummaryJson(const std::vector<SummaryNode>& nodes) {
  std::string out;
  AppendNodes(nodes, out);
  out += '\n';
  return out;
}

}  // namespace veltrix
