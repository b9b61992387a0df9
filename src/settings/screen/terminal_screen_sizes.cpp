#include "settings/screen/terminal_screen_sizes.h"

namespace veltrix {
namespace {

// The small font (6 x 8 pixels) fits 20 or 40 characters; the large one (8 x 16) 15 or 30.
constexpr std::array<TerminalScreenSize, kTerminalScreenSizeCount> kSmallFontSizes{{
    {"20 characters *  8 lines", 20, 8},
    {"20 characters * 16 lines", 20, 16},
    {"20 characters * 24 lines", 20, 24},
    {"40 characters *  8 lines", 40, 8},
    {"40 characters * 16 lines", 40, 16},
}};

constexpr std::array<TerminalScreenSize, kTerminalScreenSizeCount> kLargeFontSizes{{
    {"15 characters *  4 lines", 15, 4},
    {"15 characters *  8 lines", 15, 8},
    {"15 characters * 12 lines", 15, 12},
    {"30 characters *  4 lines", 30, 4},
    {"30 characters *  8 lines", 30, 8},
}};

}  // namespace

const std::array<TerminalScreenSize, kTerminalScreenSizeCount>& TerminalScreenSizes(int font_size) {
  return font_size == 1 ? kLargeFontSizes : kSmallFontSizes;
}

const TerminalScreenSize* FindTerminalScreenSize(int font_size, int index) {
  if (index < 0 || index >= kTerminalScreenSizeCount) return nullptr;
  return &TerminalScreenSizes(font_size)[static_cast<std::size_t>(index)];
}

}  // namespace veltrix
