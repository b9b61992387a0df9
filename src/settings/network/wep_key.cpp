#include "settings/network/wep_key.h"

#include <algorithm>
#include <array>
#include <vector>

#include "settings/field.h"
#include "settings/key_names_text.h"
#include "settings/network/network_settings.h"

namespace veltrix {

int WepKeyBytes(const Document& doc) { return ReadNumber(doc.record, kWepKeyLength) == 1 ? 13 : 5; }

std::string WepKeyText(std::span<const std::uint8_t> key) {
  return KeyNamesText(key, static_cast<int>(key.size()), KeyNameMode::kHex);
}

std::string StoredWepKeyText(const Document& doc, int index) {
  auto key = FieldBytes(std::span<const std::uint8_t>(doc.record), kWepKey, index);
  if (key.empty()) return {};
  return WepKeyText(key.first(static_cast<std::size_t>(WepKeyBytes(doc))));
}

void StoreWepKey(Document& doc, int index, std::span<const std::uint8_t> key) {
  auto stored = FieldBytes(std::span<std::uint8_t>(doc.record), kWepKey, index);
  if (stored.empty()) return;
  std::array<std::uint8_t, kWepKeyStoredWidth> scratch{};
  const std::size_t n = std::min(key.size(), static_cast<std::size_t>(WepKeyBytes(doc)));
  std::copy_n(key.begin(), n, scratch.begin());
  std::copy(scratch.begin(), scratch.end(), stored.begin());
}

void StoreShownWepKey(Document& doc, int index) {
  const auto key = FieldBytes(std::span<const std::uint8_t>(doc.record), kWepKey, index);
  if (key.empty()) return;
  const std::vector<std::uint8_t> shown(key.begin(), key.begin() + WepKeyBytes(doc));
  StoreWepKey(doc, index, shown);
}

void ChangeWepKeyLength(Document& doc, int length_choice) {
  // The keys were shown, and so stored, with the former length: bytes past it are zero, even
  // when a file held something there, so a longer key shows zeros behind the former key.
  const int former = WepKeyBytes(doc);
  WriteNumber(doc.record, kWepKeyLength, static_cast<std::uint32_t>(length_choice));
  const auto length = static_cast<std::size_t>(std::min(former, WepKeyBytes(doc)));
  for (int i = 0; i < kWepKeyCount; ++i) {
    auto stored = FieldBytes(std::span<std::uint8_t>(doc.record), kWepKey, i);
    std::fill(stored.begin() + length, stored.end(), 0);
  }
}

}  // namespace veltrix
