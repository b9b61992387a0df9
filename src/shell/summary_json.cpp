#include "shell/summary_json.h"

#include "resources/json_writer.h"

namespace veltrix {
namespace {

void AppendNodes(const std::vector<SummaryNode>& nodes, JsonWriter& json) {
  json.Array();
  for (const SummaryNode& node : nodes) {
    json.Object().Key("text").Bytes(node.text).Key("children");
    AppendNodes(node.children, json);
    json.End();
  }
  json.End();
}

}  // namespace

std::string RenderSummaryJson(const std::vector<SummaryNode>& nodes) {
  JsonWriter json;
  AppendNodes(nodes, json);
  return json.text() + '\n';
}

}  // namespace veltrix
