#include "settings/numeric_edit.h"

#include <limits>

namespace veltrix {

std::string_view TrimBlanks(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::optional<std::int64_t> ParseDigits(std::string_view digits) {
  constexpr std::int64_t kSaturated = std::int64_t{1} << 40;
  if (digits.empty()) return std::nullopt;
  std::int64_t value = 0;
  for (char c : digits) {
    if (c < '0' || c > '9') return std::nullopt;
    if (value < kSaturated) value = value * 10 + (c - '0');
  }
  return value;
}

std::optional<std::int64_t> ParseDecimal(std::string_view text) {
  text = TrimBlanks(text);
  bool negative = false;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  const std::optional<std::int64_t> value = ParseDigits(text);
  if (!value || *value > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  return negative ? -*value : *value;
}

}  // namespace veltrix
