// Opens a settings file made of any bytes, of any length, as Open does, then builds its summary,
// compares it with the defaults, reads what the pages show and runs the default routines: nothing
// a file holds may crash these, every file that reaches the record leaves a current-layout tag
// and a known product, every summary line fits its 99 characters and the JSON
// summary is plain ASCII.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <vector>

#include "settings/document.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/emulation/key_mapping.h"
#include "settings/field_values.h"
#include "settings/network/network_settings.h"
#include "settings/network/wep_key.h"
#include "settings/settings_file.h"
#include "shell/summary.h"
#include "shell/summary_json.h"

namespace {

void CheckLines(const std::vector<veltrix::SummaryNode>& nodes) {
  for (const veltrix::SummaryNode& node : nodes) {
    if (node.text.size() > 99) std::abort();
    CheckLines(node.children);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto defaults = [] {
    auto doc = std::make_unique<veltrix::Document>();
    veltrix::SetDefaults(*doc, 1);
    return doc;
  }();
  auto doc = std::make_unique<veltrix::Document>(*defaults);
  veltrix::ReadSettingsImage(*doc, std::span(data, size));
  if (size > 0 && (std::memcmp(doc->record.data(), "I100\0", veltrix::kFormatTagWidth) != 0 ||
                   doc->product() > veltrix::kProductCount)) {
    std::abort();
  }
  const std::vector<veltrix::SummaryNode> summary = veltrix::BuildSummary(*doc);
  CheckLines(summary);
  for (const char c : veltrix::RenderSummaryJson(summary)) {
    if (c <= 0 || c >= 0x7F) std::abort();  // plain ASCII, every other byte escaped
  }
  veltrix::DiffDocuments(*defaults, *doc);
  for (int key : veltrix::MappingRowKeys()) {
    veltrix::MappingLabel(*doc, key);
    veltrix::MappingRowEnabled(*doc, key);
  }
  for (int i = 0; i < 4; ++i) veltrix::StoredWepKeyText(*doc, i);
  veltrix::RebuildKeyCodeTable(*doc);
  veltrix::SetFunctionKeyDefaults(*doc);
  veltrix::SetEmulationDefaults(*doc);
  veltrix::SetNetworkDefaults(*doc);
  // After the default routines the mapping holds only valid entries again.
  for (int n = 0; n < 50; ++n) {
    const int group = veltrix::ReadKeyMapping(*doc, n).group;
    if (group != 0 && (group < 201 || group > 206)) std::abort();
  }
  return 0;
}
