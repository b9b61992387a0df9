#include "settings/system/system_rules.h"

#include <algorithm>

#include "settings/system/system_settings.h"

namespace veltrix {

NumericEdit CorrectNumericEdit(std::string_view text, std::uint32_t min, std::uint32_t max) {
  const bool is_number =
      !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
  if (!is_number) return {min, std::to_string(min)};

  // Saturate instead of overflowing: any value past `max` is clamped anyway.
  std::uint64_t number = 0;
  for (char c : text) {
    number = std::min<std::uint64_t>(number * 10 + static_cast<std::uint64_t>(c - '0'),
                                     std::uint64_t{max} + 1);
  }
  if (number < min) return {min, std::to_string(min)};
  if (number > max) return {max, std::to_string(max)};
  const auto value = static_cast<std::uint32_t>(number);
  if (text.size() >= 2 && text.front() == '0') return {value, std::to_string(value)};
  return {value, std::nullopt};
}

NumericEdit CorrectFieldEdit(std::string_view text, const FieldDef& field) {
  return CorrectNumericEdit(text, static_cast<std::uint32_t>(field.min),
                            static_cast<std::uint32_t>(field.max));
}

void StorePassword(std::span<std::uint8_t> record, std::string_view text) {
  WriteText(record, kPassword, text.substr(0, kPasswordMaxLength));
}

void FinishPassword(std::span<std::uint8_t> record) {
  std::span<std::uint8_t> bytes = FieldBytes(record, kPassword);
  std::fill(std::find(bytes.begin(), bytes.end(), 0), bytes.end(), 0);
  if (!bytes.empty()) bytes.back() = 0;
}

}  // namespace veltrix
