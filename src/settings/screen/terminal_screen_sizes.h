#ifndef VELTRIX_SETTINGS_SCREEN_TERMINAL_SCREEN_SIZES_H_
#define VELTRIX_SETTINGS_SCREEN_TERMINAL_SCREEN_SIZES_H_

#include <array>
#include <string_view>

namespace veltrix {

// One size a page can be reformatted to: the size box's entry text, the characters per line and
// the number of lines of the terminal's display.
struct TerminalScreenSize {
  std::string_view text;
  int chars_per_line;
  int lines;
};

inline constexpr int kTerminalScreenSizeCount = 5;
inline constexpr int kMaxTerminalLines = 24;

// The five sizes offered for a font size (`FontSize` 0 small, 1 large). Any value other than 1
// counts as the small font, so a damaged byte still gives a usable list.
const std::array<TerminalScreenSize, kTerminalScreenSizeCount>& TerminalScreenSizes(int font_size);

// The size that `ReformatPageTo` value `index` chooses, or nullptr when the index is outside
// the list (a damaged or foreign file).
const TerminalScreenSize* FindTerminalScreenSize(int font_size, int index);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_SCREEN_TERMINAL_SCREEN_SIZES_H_
