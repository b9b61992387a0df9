#include "settings/reader/rfid_options.h"

#include <vector>

#include "settings/reader/number_box.h"
#include "settings/reader/reader_record_fields.h"

namespace veltrix {
namespace {

constexpr ChoiceControl kRadioPairs[] = {
    {"Working Mode", kWorkingModes, &kRfidWorkingMode},
    {"Control", kRfidControls, &kRfidControl},
    {"Reading Mode", kReadingModes, &kRfidReadingMode},
};

bool ReadingData(const Document& doc) { return ReadNumber(doc.record, kRfidReadData) != 0; }
bool UsingDelimiter(const Document& doc) { return ReadNumber(doc.record, kRfidUseDelimiter) != 0; }
// The delimiter is one key code; 0 means none.
std::vector<std::uint8_t> DelimiterShown(std::span<const std::uint8_t> stored) {
  if (stored.empty() || stored[0] == 0) return {};
  return {stored[0]};
}

}  // namespace

std::span<const ChoiceControl> RfidRadioPairs() { return kRadioPairs; }

std::span<const FieldBinding> RfidBindings() {
  static constexpr FieldBinding kBindings[] = {
      {.control = "read_uid", .field = &kRfidReadUid, .on_ok = true},
      {.control = "read_data", .field = &kRfidReadData, .on_ok = true},
      {.control = "start",
       .kind = ControlKind::kNumberEdit,
       .field = &kRfidStart,
       .enabled = ReadingData,
       .on_ok = true,
       .box = &kRfidLengthBox},
      {.control = "max_len",
       .kind = ControlKind::kNumberEdit,
       .field = &kRfidMaxLen,
       .enabled = ReadingData,
       .on_ok = true,
       .box = &kRfidLengthBox},
      {.control = "use_delimiter", .field = &kRfidUseDelimiter, .on_ok = true},
      {.control = "delimiter",
       .kind = ControlKind::kGridEdit,
       .field = &kRfidDelimiter,
       .enabled = UsingDelimiter,
       .on_ok = true,
       .grid = GridMode::kKeyNames,
       .grid_limit = 1,
       .shown_bytes = DelimiterShown},
      {.control = "delay_before_reread",
       .kind = ControlKind::kNumberEdit,
       .field = &kRfidDelayBeforeReread,
       .on_ok = true,
       .box = &kRfidDelayBox},
      {.control = "working_mode",
       .kind = ControlKind::kRadioGroup,
       .field = &kRfidWorkingMode,
       .on_ok = true,
       .choice = &kRadioPairs[0]},
      {.control = "control",
       .kind = ControlKind::kRadioGroup,
       .field = &kRfidControl,
       .on_ok = true,
       .choice = &kRadioPairs[1]},
      {.control = "reading_mode",
       .kind = ControlKind::kRadioGroup,
       .field = &kRfidReadingMode,
       .on_ok = true,
       .choice = &kRadioPairs[2]},
      {.control = "switch_key", .kind = ControlKind::kKeyCombo, .field = &kScanSwitchKeyName},
  };
  return kBindings;
}

}  // namespace veltrix
