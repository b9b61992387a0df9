#ifndef VELTRIX_SETTINGS_EMULATION_CHOICE_TEXT_H_
#define VELTRIX_SETTINGS_EMULATION_CHOICE_TEXT_H_

#include <span>
#include <string>
#include <string_view>

namespace veltrix {

// The list entry at `index`; a value the list has no entry for (only possible from a file) reads
// as its decimal number, so the summary shows what is stored instead of guessing.
inline std::string ChoiceText(std::span<const std::string_view> list, int index) {
  if (index >= 0 && static_cast<std::size_t>(index) < list.size()) {
    return std::string(list[static_cast<std::size_t>(index)]);
  }
  return std::to_string(index);
}

// How the summary shows an on/off flag.
inline std::string_view FlagText(int value) { return value != 0 ? "Enable" : "Disable"; }

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_CHOICE_TEXT_H_
