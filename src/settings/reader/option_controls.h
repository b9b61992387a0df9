#ifndef VELTRIX_SETTINGS_READER_OPTION_CONTROLS_H_
#define VELTRIX_SETTINGS_READER_OPTION_CONTROLS_H_

#include <cstdint>
#include <span>
#include <string_view>

#include "settings/field.h"

namespace veltrix {

// The controls of the symbology option dialogs, each bound to the field it shows and stores.

struct CheckBoxControl {
  std::string_view text;
  const FieldDef* field;  // a one-bit field: checked = 1
};

// How the chosen entry of a radio group or list is stored.
enum class ChoiceCoding : std::uint8_t {
  kIndex,          // the field holds the entry's position
  kReversed,       // the field holds (entries - 1 - position): the first entry stores the highest
  kNoneThenIndex,  // first entry clears the field and `flag`; others store position - 1, set `flag`
  kOneOfTwoBits,   // first entry clears both bits, the second sets `field`, the third sets `flag`
};

struct ChoiceControl {
  std::string_view caption;  // the radio group's title, or the list's label
  std::span<const std::string_view> texts;
  const FieldDef* field;
  ChoiceCoding coding = ChoiceCoding::kIndex;
  const FieldDef* flag = nullptr;  // kNoneThenIndex and kOneOfTwoBits only
};

// The position a stored value selects, and the value a position stores.
int DecodeChoice(const ChoiceControl& control, std::uint32_t value, std::uint32_t flag);
void EncodeChoice(const ChoiceControl& control, int position, std::uint32_t& value,
                  std::uint32_t& flag);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_READER_OPTION_CONTROLS_H_
