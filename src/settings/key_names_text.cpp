#include "settings/key_names_text.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "resources/hex_text.h"

namespace veltrix {
namespace {

constexpr std::size_t kMaxKeyNamesText = 100;

// Names of the terminal keys coded 1 to 28; 29-31 and 0 have no name.
constexpr std::string_view kControlKeyNames[] = {
    "Ins",   "Del",  "Home",  "End",  "Up",  "Down", "Left", "BS",  "HT", "LF",
    "Right", "PgUp", "Enter", "PgDn", "F1",  "F2",   "F3",   "F4",  "F5", "F6",
    "F7",    "F8",   "F9",    "F10",  "F11", "F12",  "ESC",  "Exec"};
static_assert(std::size(kControlKeyNames) == 28);

std::string KeyName(std::uint8_t value) {
  if (value >= 1 && value <= std::size(kControlKeyNames)) {
    return std::string(kControlKeyNames[value - 1]);
  }
  if (value == 32) return "SP";
  if (value > 32 && value < 127) return std::string(1, static_cast<char>(value));
  if (value == 127) return "DEL";
  if (value >= 128) return std::to_string(value);
  return {};
}

}  // namespace

std::string KeyNamesText(std::span<const std::uint8_t> bytes, int count, KeyNameMode mode) {
  const std::size_t n = count <= 0 ? 0 : std::min(bytes.size(), static_cast<std::size_t>(count));
  std::string text;
  for (std::size_t i = 0; i < n; ++i) {
    std::string item;
    if (mode == KeyNameMode::kHex) {
      item = HexByte(bytes[i]) + ' ';
    } else {
      if (bytes[i] == 0) break;
      item = KeyName(bytes[i]) + ' ';
    }
    // A name is never cut in half: the text stops before the first one that does not fit.
    if (text.size() + item.size() > kMaxKeyNamesText) break;
    text += item;
  }
  return text;
}

}  // namespace veltrix
