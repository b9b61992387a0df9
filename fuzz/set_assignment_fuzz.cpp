// Feeds `veltrix-cli set` assignments of any text: one NAME=VALUE per line, applied in turn to a
// default document, as the command applies its arguments.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "cli/settings_input.h"
#include "settings/document.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto defaults = [] {
    auto doc = std::make_unique<veltrix::Document>();
    veltrix::SetDefaults(*doc, 2);
    return doc;
  }();
  auto doc = std::make_unique<veltrix::Document>(*defaults);
  std::string_view text(reinterpret_cast<const char*>(data), size);
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    veltrix::cli::ApplySetAssignment(*doc, text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return 0;
}
