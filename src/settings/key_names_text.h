#ifndef VELTRIX_SETTINGS_KEY_NAMES_TEXT_H_
#define VELTRIX_SETTINGS_KEY_NAMES_TEXT_H_

#include <cstdint>
#include <span>
#include <string>

namespace veltrix {

enum class KeyNameMode { kNames, kHex };

// Renders bytes as terminal key names (stopping at the first zero byte) or as hexadecimal pairs,
// each followed by one blank; at most 100 characters. Summary lines of several sections use it.
std::string KeyNamesText(std::span<const std::uint8_t> bytes, int count, KeyNameMode mode);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_KEY_NAMES_TEXT_H_
