#include "settings/reader/advanced_options.h"

#include <algorithm>
#include <string>
#include <vector>

#include "settings/reader/beeper_sequence.h"
#include "settings/reader/number_box.h"
#include "settings/reader/reader_record_fields.h"

namespace veltrix {
namespace {

constexpr int kVibratorProduct = 3;
constexpr ChoiceControl kScanControlChoice{"Scanner", kScanControls, &kScanControl};

bool Checked(const Document& doc, const FieldDef& f) { return ReadNumber(doc.record, f) != 0; }
bool CheckingLeadingCode(const Document& doc) { return Checked(doc, kCheckLeadingCode); }
bool ReadingPartialCode(const Document& doc) { return Checked(doc, kReadPartialCode); }
bool AddingPrefix(const Document& doc) { return Checked(doc, kAddPrefixCode); }
bool AddingSuffix(const Document& doc) { return Checked(doc, kAddSuffixCode); }
bool HasVibrator(const Document& doc) { return doc.product() == kVibratorProduct; }

int MaximumLength(std::int64_t stored) {
  return stored < 1 || stored > 50 ? 50 : static_cast<int>(stored);
}
std::int64_t StartShown(std::int64_t stored) { return std::max<std::int64_t>(stored, 1); }
std::int64_t MaximumShown(std::int64_t stored) { return MaximumLength(stored); }

// The codes up to the last that is not zero: zeros after it are the field's fill, a zero
// between codes is a code the user picked.
std::vector<std::uint8_t> KeyCodesShown(std::span<const std::uint8_t> stored) {
  std::size_t n = std::min(stored.size(), kMaxKeyCodes);
  while (n > 0 && stored[n - 1] == 0) --n;
  return {stored.begin(), stored.begin() + static_cast<std::ptrdiff_t>(n)};
}
std::vector<std::uint8_t> BeeperShown(std::span<const std::uint8_t> stored) {
  return {stored.begin(),
          stored.begin() + static_cast<std::ptrdiff_t>(BeeperSequenceLength(stored))};
}

constexpr FieldBinding KeyCodes(std::string_view control, const FieldDef& field,
                                EnabledRule enabled) {
  return {.control = control,
          .kind = ControlKind::kGridEdit,
          .field = &field,
          .enabled = enabled,
          .on_ok = true,
          .grid = GridMode::kKeyNames,
          .grid_limit = static_cast<int>(kMaxKeyCodes),
          .shown_bytes = KeyCodesShown};
}
constexpr FieldBinding Beeper(std::string_view control, const FieldDef& field) {
  return {.control = control,
          .kind = ControlKind::kGridEdit,
          .field = &field,
          .on_ok = true,
          .grid = GridMode::kHex,
          .grid_limit = static_cast<int>(kBeeperSequenceWidth),
          .shown_bytes = BeeperShown};
}
constexpr FieldBinding VibratorBox(std::string_view control, const FieldDef& field) {
  return {.control = control,
          .kind = ControlKind::kNumberEdit,
          .field = &field,
          .enabled = HasVibrator,
          .on_ok = true,
          .box = &kVibratorBox};
}

}  // namespace

std::span<const FieldBinding> AdvancedBindings() {
  static constexpr FieldBinding kBindings[] = {
      {.control = "check_leading_code", .field = &kCheckLeadingCode, .on_ok = true},
      {.control = "leading_code",
       .kind = ControlKind::kTextEdit,
       .field = &kLeadingCode,
       .enabled = CheckingLeadingCode,
       .on_ok = true},
      {.control = "read_partial_code", .field = &kReadPartialCode, .on_ok = true},
      {.control = "start_position",
       .kind = ControlKind::kSpinBox,
       .field = &kStartPosition,
       .enabled = ReadingPartialCode,
       .on_ok = true,
       .shown = StartShown},
      {.control = "maximum_length",
       .kind = ControlKind::kSpinBox,
       .field = &kMaximumLength,
       .enabled = ReadingPartialCode,
       .on_ok = true,
       .shown = MaximumShown},
      {.control = "add_prefix_code", .field = &kAddPrefixCode, .on_ok = true},
      KeyCodes("prefix_code", kPrefixCode, AddingPrefix),
      {.control = "add_suffix_code", .field = &kAddSuffixCode, .on_ok = true},
      KeyCodes("suffix_code", kSuffixCode, AddingSuffix),
      {.control = "scan_control",
       .kind = ControlKind::kRadioGroup,
       .field = &kScanControl,
       .on_ok = true,
       .choice = &kScanControlChoice},
      Beeper("data_beeper_sequence", kDataBeeperSequence),
      VibratorBox("data_box214", kDataBox214),
      Beeper("alarm_beeper_sequence", kAlarmBeeperSequence),
      VibratorBox("vibrator_time", kVibratorTime),
  };
  return kBindings;
}

void ApplyAdvancedSettings(Document& doc) {
  const int maximum = MaximumLength(ReadNumber(doc.record, kMaximumLength));
  const int start =
      std::clamp(static_cast<int>(ReadNumber(doc.record, kStartPosition)), 1, maximum);
  WriteNumber(doc.record, kStartPosition, static_cast<std::uint32_t>(start));
  WriteNumber(doc.record, kMaximumLength, static_cast<std::uint32_t>(maximum));
  const std::string leading = ReadText(doc.record, kLeadingCode).substr(0, kMaxLeadingCode);
  std::ranges::fill(FieldBytes(std::span<std::uint8_t>(doc.record), kLeadingCode), 0);
  WriteText(doc.record, kLeadingCode, leading);
  if (HasVibrator(doc)) {
    for (const FieldDef* box : {&kDataBox214, &kVibratorTime}) {
      if (ReadNumber(doc.record, *box) > 254) WriteNumber(doc.record, *box, 0);
    }
  }
}

}  // namespace veltrix
