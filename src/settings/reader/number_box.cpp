#include "settings/reader/number_box.h"

#include <string>

namespace veltrix {

NumericEdit CorrectNumberText(std::string_view text, const NumberBoxRule& rule) {
  std::int64_t value = rule.if_not_number;
  if (const std::optional<std::int64_t> number = ParseDigits(TrimBlanks(text))) {
    value = *number < rule.min ? rule.if_below : (*number > rule.max ? rule.if_above : *number);
  }
  NumericEdit edit{static_cast<std::uint32_t>(value), std::to_string(value)};
  if (*edit.rewrite == text) edit.rewrite.reset();
  return edit;
}

}  // namespace veltrix
