#ifndef VELTRIX_SETTINGS_NUMERIC_EDIT_H_
#define VELTRIX_SETTINGS_NUMERIC_EDIT_H_

#include <cstdint>
#include <optional>
#include <string>

namespace veltrix {

// The outcome of a numeric edit rule on each change of the edit's text: the value to store and,
// when the edit must show something else than what was typed, the text to write back into it
// (every page shows it through BindRewritingEdit).
struct NumericEdit {
  std::uint32_t value = 0;
  std::optional<std::string> rewrite;

  bool operator==(const NumericEdit&) const = default;
};

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_NUMERIC_EDIT_H_
