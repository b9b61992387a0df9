#include "settings/reader/advanced_options.h"

#include <algorithm>

#include "settings/reader/reader_record_fields.h"

namespace veltrix {
namespace {

std::span<std::uint8_t> Bytes(Document& doc, const FieldDef& f) {
  return FieldBytes(std::span<std::uint8_t>(doc.record), f);
}
std::span<const std::uint8_t> Bytes(const Document& doc, const FieldDef& f) {
  return FieldBytes(std::span<const std::uint8_t>(doc.record), f);
}

int Read(const Document& doc, const FieldDef& f) {
  return static_cast<int>(ReadNumber(doc.record, f));
}

// The codes up to the last that is not zero: zeros after it are the field's fill, a zero
// between codes is a code the user picked.
std::vector<std::uint8_t> ReadKeyCodes(const Document& doc, const FieldDef& f) {
  auto bytes = Bytes(doc, f).first(kMaxKeyCodes);
  std::size_t n = bytes.size();
  while (n > 0 && bytes[n - 1] == 0) --n;
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(n)};
}

// At most nine codes, every one as picked, zero-filled to the field's width.
void WriteKeyCodes(Document& doc, const FieldDef& f, const std::vector<std::uint8_t>& codes) {
  auto bytes = Bytes(doc, f);
  std::ranges::fill(bytes, 0);
  std::copy_n(codes.begin(), std::min<std::size_t>(codes.size(), kMaxKeyCodes), bytes.begin());
}

template <std::size_t N>
std::array<std::uint8_t, N> ReadArray(const Document& doc, const FieldDef& f) {
  std::array<std::uint8_t, N> out{};
  std::ranges::copy(Bytes(doc, f).first(N), out.begin());
  return out;
}

}  // namespace

AdvancedState OpenAdvancedSettings(const Document& doc) {
  AdvancedState state;
  state.check_leading_code = Read(doc, kCheckLeadingCode) != 0;
  state.leading_code = ReadText(doc.record, kLeadingCode);
  state.read_partial_code = Read(doc, kReadPartialCode) != 0;
  state.start_position = std::max(Read(doc, kStartPosition), 1);
  state.maximum_length = Read(doc, kMaximumLength);
  if (state.maximum_length < 1 || state.maximum_length > 50) state.maximum_length = 50;
  state.add_prefix_code = Read(doc, kAddPrefixCode) != 0;
  state.prefix_code = ReadKeyCodes(doc, kPrefixCode);
  state.add_suffix_code = Read(doc, kAddSuffixCode) != 0;
  state.suffix_code = ReadKeyCodes(doc, kSuffixCode);
  state.scan_control = Read(doc, kScanControl) != 0 ? 1 : 0;
  state.data_beeper_sequence = ReadArray<10>(doc, kDataBeeperSequence);
  state.alarm_beeper_sequence = ReadArray<10>(doc, kAlarmBeeperSequence);
  state.data_box214 = Read(doc, kDataBox214);
  state.vibrator_time = Read(doc, kVibratorTime);
  return state;
}

void ApplyAdvancedSettings(Document& doc, const AdvancedState& state) {
  WriteNumber(doc.record, kCheckLeadingCode, state.check_leading_code ? 1 : 0);
  std::ranges::fill(Bytes(doc, kLeadingCode), 0);
  WriteText(doc.record, kLeadingCode,
            std::string_view(state.leading_code).substr(0, kMaxLeadingCode));
  const int maximum = std::clamp(state.maximum_length, 1, 50);
  const int start = std::clamp(state.start_position, 1, maximum);
  WriteNumber(doc.record, kReadPartialCode, state.read_partial_code ? 1 : 0);
  WriteNumber(doc.record, kStartPosition, static_cast<std::uint32_t>(start));
  WriteNumber(doc.record, kMaximumLength, static_cast<std::uint32_t>(maximum));
  WriteNumber(doc.record, kAddPrefixCode, state.add_prefix_code ? 1 : 0);
  WriteKeyCodes(doc, kPrefixCode, state.prefix_code);
  WriteNumber(doc.record, kAddSuffixCode, state.add_suffix_code ? 1 : 0);
  WriteKeyCodes(doc, kSuffixCode, state.suffix_code);
  WriteNumber(doc.record, kScanControl, state.scan_control != 0 ? 1 : 0);
  std::ranges::copy(state.data_beeper_sequence, Bytes(doc, kDataBeeperSequence).begin());
  std::ranges::copy(state.alarm_beeper_sequence, Bytes(doc, kAlarmBeeperSequence).begin());
  if (doc.product() == 3) {
    const auto limited = [](int v) {
      return static_cast<std::uint32_t>(v >= 0 && v <= 254 ? v : 0);
    };
    WriteNumber(doc.record, kDataBox214, limited(state.data_box214));
    WriteNumber(doc.record, kVibratorTime, limited(state.vibrator_time));
  }
}

AdvancedEnabling AdvancedControlsEnabled(const AdvancedState& state, int product) {
  return {state.check_leading_code, state.read_partial_code, state.add_prefix_code,
          state.add_suffix_code, product == 3};
}

}  // namespace veltrix
