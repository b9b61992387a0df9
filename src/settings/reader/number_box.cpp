#include "settings/reader/number_box.h"

#include <cctype>
#include <string>

namespace veltrix {
namespace {

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

}  // namespace

NumericEdit CorrectNumberText(std::string_view text, const NumberBoxRule& rule) {
  const std::string_view digits = Trimmed(text);
  std::int64_t value = rule.if_not_number;
  if (!digits.empty()) {
    // Long digit strings saturate rather than wrap: they count as above the maximum.
    constexpr std::int64_t kSaturated = std::int64_t{1} << 40;
    std::int64_t parsed = 0;
    bool is_number = true;
    for (char c : digits) {
      if (std::isdigit(static_cast<unsigned char>(c)) == 0) {
        is_number = false;
        break;
      }
      if (parsed < kSaturated) parsed = parsed * 10 + (c - '0');
    }
    if (is_number) {
      value = parsed < rule.min ? rule.if_below : (parsed > rule.max ? rule.if_above : parsed);
    }
  }
  NumericEdit edit{static_cast<std::uint32_t>(value), std::to_string(value)};
  if (*edit.rewrite == text) edit.rewrite.reset();
  return edit;
}

}  // namespace veltrix
