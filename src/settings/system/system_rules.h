#ifndef VELTRIX_SETTINGS_SYSTEM_SYSTEM_RULES_H_
#define VELTRIX_SETTINGS_SYSTEM_SYSTEM_RULES_H_

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "settings/field.h"
#include "settings/numeric_edit.h"

namespace veltrix {

// Reads the whole text as an unsigned decimal number and corrects it in place: not a number or
// below `min` gives `min`, above `max` gives `max` (both written back); a number typed with
// leading zeros is stored and written back without them; anything else is stored as typed.
NumericEdit CorrectNumericEdit(std::string_view text, std::uint32_t min, std::uint32_t max);

// The same rule with the bounds of a numeric field (Auto Power Off 1..65025, idle 1..9).
NumericEdit CorrectFieldEdit(std::string_view text, const FieldDef& field);

// Stores a password entry: its first 9 characters and a NUL behind them; the bytes behind the NUL
// are kept until Apply. No check of the characters is made.
void StorePassword(std::span<std::uint8_t> record, std::string_view text);

// Fills the password's bytes behind its text with NULs up to and including the tenth byte.
void FinishPassword(std::span<std::uint8_t> record);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SYSTEM_SYSTEM_RULES_H_
