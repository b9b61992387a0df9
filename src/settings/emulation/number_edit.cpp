#include "settings/emulation/number_edit.h"

#include <limits>

namespace veltrix {
namespace {

std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

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

std::optional<std::int64_t> ParseDecimal(std::string_view text) {
  text = Trim(text);
  bool negative = false;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  if (text.empty()) return std::nullopt;
  std::int64_t value = 0;
  for (char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
    if (value > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  }
  return negative ? -value : value;
}

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
