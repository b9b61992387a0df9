#include "settings/emulation/number_edit.h"

namespace veltrix {
namespace {

bool HasLeadingZero(std::string_view text) { return text.size() >= 2 && text.front() == '0'; }

// Clamps a number into [low, high]; a corrected or zero-led text is written back as the value.
NumericEdit Clamped(std::string_view text, std::int64_t low, std::int64_t high) {
  const std::optional<std::int64_t> number = ParseDecimal(text);
  if (!number || *number < low) return {static_cast<std::uint32_t>(low), std::to_string(low)};
  if (*number > high) return {static_cast<std::uint32_t>(high), std::to_string(high)};
  const auto value = static_cast<std::uint32_t>(*number);
  if (HasLeadingZero(text)) return {value, std::to_string(value)};
  return {value, std::nullopt};
}

}  // namespace

// A number kept in its low bits, as the record stores it: the edit shows the stored value when
// that is not the number typed (70000 becomes 4464).
NumericEdit LowBits(std::string_view text, std::uint32_t mask) {
  const std::optional<std::int64_t> number = ParseDecimal(text);
  if (!number || *number < 0) {
    if (text.empty()) return {0, std::nullopt};
    return {0, "0"};
  }
  const std::uint32_t value = static_cast<std::uint32_t>(*number) & mask;
  if (value != *number || HasLeadingZero(text)) return {value, std::to_string(value)};
  return {value, std::nullopt};
}

NumericEdit TelnetPortEdit(std::string_view text) { return LowBits(text, 0xFFFFu); }

NumericEdit KeepAliveEdit(std::string_view text) { return Clamped(text, 0, 255); }

NumericEdit ScrollStepEdit(std::string_view text) { return Clamped(text, 1, 255); }

NumericEdit ViewOriginEdit(std::string_view text, std::uint32_t bound) {
  const std::optional<std::int64_t> number = ParseDecimal(text);
  const std::uint32_t value = number && *number > 0 ? static_cast<std::uint32_t>(*number) : 0;
  if (value >= bound) return {bound - 1, std::to_string(bound - 1)};
  return {value, std::nullopt};
}

NumericEdit MessageTimeOutEdit(std::string_view text) { return LowBits(text, 0xFFu); }

}  // namespace veltrix
