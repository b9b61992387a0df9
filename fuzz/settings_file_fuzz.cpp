// Opens a settings file made of any bytes, of any length, as Open does, then builds its summary
// and compares it with the defaults: nothing a file holds may crash these, and every file that
// reaches the record leaves a current-layout tag and a known product.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>

#include "settings/document.h"
#include "settings/field_values.h"
#include "settings/settings_file.h"
#include "shell/summary.h"

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
  veltrix::RenderSummaryText(veltrix::BuildSummary(*doc));
  veltrix::DiffDocuments(*defaults, *doc);
  return 0;
}
