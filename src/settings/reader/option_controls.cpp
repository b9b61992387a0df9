#include "settings/reader/option_controls.h"

#include <algorithm>

namespace veltrix {

int DecodeChoice(const ChoiceControl& control, std::uint32_t value, std::uint32_t flag) {
  const int last = static_cast<int>(control.texts.size()) - 1;
  int position = 0;
  switch (control.coding) {
    case ChoiceCoding::kIndex:
      position = static_cast<int>(value);
      break;
    case ChoiceCoding::kReversed:
      position = last - static_cast<int>(value);
      break;
    case ChoiceCoding::kNoneThenIndex:
      position = flag == 0 ? 0 : static_cast<int>(value) + 1;
      break;
    case ChoiceCoding::kOneOfTwoBits:
      position = value != 0 ? 1 : (flag != 0 ? 2 : 0);
      break;
  }
  // A loaded file may hold a value no entry stands for: select the nearest entry.
  return std::clamp(position, 0, std::max(last, 0));
}

void EncodeChoice(const ChoiceControl& control, int position, std::uint32_t& value,
                  std::uint32_t& flag) {
  const int last = static_cast<int>(control.texts.size()) - 1;
  position = std::clamp(position, 0, std::max(last, 0));
  flag = 0;
  switch (control.coding) {
    case ChoiceCoding::kIndex:
      value = static_cast<std::uint32_t>(position);
      break;
    case ChoiceCoding::kReversed:
      value = static_cast<std::uint32_t>(last - position);
      break;
    case ChoiceCoding::kNoneThenIndex:
      value = position == 0 ? 0 : static_cast<std::uint32_t>(position - 1);
      flag = position == 0 ? 0 : 1;
      break;
    case ChoiceCoding::kOneOfTwoBits:
      value = position == 1 ? 1 : 0;
      flag = position == 2 ? 1 : 0;
      break;
  }
}

}  // namespace veltrix
