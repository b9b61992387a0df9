#include "settings/document.h"

#include <algorithm>
#include <string_view>

#include "settings/screen/screen_pages.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/network/network_settings.h"
#include "settings/prompts/prompts.h"
#include "settings/reader/reader_settings.h"
#include "settings/system/system_settings.h"

namespace veltrix {

void SetDefaults(Document& doc, int product) {
  doc.record.fill(0);
  constexpr std::string_view kTag{"I100\0", kFormatTagWidth};
  std::copy(kTag.begin(), kTag.end(), doc.record.begin() + kFormatTagOffset);
  doc.record[kProductOffset] = static_cast<std::uint8_t>(product);

  // The order matters: later routines read what earlier ones wrote (the key-present list, the
  // product's texts) and claim function keys in this order.
  ApplyKeyAvailability(doc);
  SetSystemDefaults(doc);
  SetPromptDefaults(doc);
  SetReaderDefaults(doc);
  SetNetworkDefaults(doc);
  SetEmulationDefaults(doc);
  SetFunctionKeyDefaults(doc);
  SetScreenPageDefaults(doc);
}

}  // namespace veltrix
