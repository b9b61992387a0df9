#include "settings/document.h"

#include <algorithm>
#include <string_view>

#include "settings/emulation/emulation_settings.h"
#include "settings/emulation/function_keys.h"
#include "settings/field_registry.h"
#include "settings/network/network_settings.h"
#include "settings/prompts/prompts.h"
#include "settings/reader/reader_settings.h"
#include "settings/screen/screen_pages.h"
#include "settings/system/system_settings.h"

namespace veltrix {

void SetDefaults(Document& doc, int product) {
  doc.record.fill(0);
  ApplyDefault(doc.record, kFormatTag);
  WriteNumber(doc.record, kProductIndex, static_cast<std::uint32_t>(product));

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
