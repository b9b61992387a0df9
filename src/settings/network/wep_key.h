#ifndef VELTRIX_SETTINGS_NETWORK_WEP_KEY_H_
#define VELTRIX_SETTINGS_NETWORK_WEP_KEY_H_

#include <cstdint>
#include <span>
#include <string>

#include "settings/document.h"

namespace veltrix {

inline constexpr int kWepKeyCount = 4;
inline constexpr int kWepKeyStoredWidth = 16;

// Key length in bytes: 13 for 128-bit keys (`WepKeyLength` 1), otherwise 5.
int WepKeyBytes(const Document& doc);

// Key bytes as the page and the summary show them: two upper-case hexadecimal digits per byte,
// each followed by one blank.
std::string WepKeyText(std::span<const std::uint8_t> key);

// The first WepKeyBytes() bytes of key `index` (0-3) as text.
std::string StoredWepKeyText(const Document& doc, int index);

// Stores a key entered for `index`: its first L bytes (L = WepKeyBytes), zero-filled to 16.
void StoreWepKey(Document& doc, int index, std::span<const std::uint8_t> key);
// Showing key `index` stores it as shown: its first L bytes, then zeros to the 16th byte.
void StoreShownWepKey(Document& doc, int index);

// A new key length choice (0 or 1): stored; every key keeps only its first bytes up to the
// shorter of the former and the new length, the rest zero.
void ChangeWepKeyLength(Document& doc, int length_choice);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_NETWORK_WEP_KEY_H_
