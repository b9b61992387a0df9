#ifndef VELTRIX_SETTINGS_NUMERIC_EDIT_H_
#define VELTRIX_SETTINGS_NUMERIC_EDIT_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veltrix {

// The outcome of a numeric edit rule on each change of the edit's text: the value to store and,
// when the edit must show something else than what was typed, the text to write back into it
// (every page shows it through BindRewritingEdit).
struct NumericEdit {
  std::uint32_t value = 0;
  std::optional<std::string> rewrite;

  bool operator==(const NumericEdit&) const = default;
};

// The one reading of typed numbers behind every number rule.
// Blanks at both ends taken off.
std::string_view TrimBlanks(std::string_view text);
// Decimal digits only: their value, saturating at 2^40 so that a long string counts as too
// large rather than wrapping; nothing for an empty text or any other character.
std::optional<std::int64_t> ParseDigits(std::string_view digits);
// Optional blanks, an optional sign, digits, optional blanks; nothing for anything else or for
// a value beyond 32 bits.
std::optional<std::int64_t> ParseDecimal(std::string_view text);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_NUMERIC_EDIT_H_
