#ifndef VELTRIX_SETTINGS_EMULATION_KEY_CODE_DEFAULTS_H_
#define VELTRIX_SETTINGS_EMULATION_KEY_CODE_DEFAULTS_H_

#include <array>
#include <cstdint>

#include "settings/document.h"

namespace veltrix {

using KeyCodeTable = std::array<std::uint8_t, kKeyGroups * kHostKeysPerGroup * kKeyCodeWidth>;

// The built-in key code table: entry group * 20 + host key number, 5 bytes each, the byte
// sequence the terminal sends for that host key, zero-filled.
const KeyCodeTable& DefaultKeyCodeTable();

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_EMULATION_KEY_CODE_DEFAULTS_H_
