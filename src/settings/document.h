#ifndef VELTRIX_SETTINGS_DOCUMENT_H_
#define VELTRIX_SETTINGS_DOCUMENT_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace veltrix {

inline constexpr std::size_t kRecordSize = 59784;
inline constexpr std::size_t kPageRecordSize = 10424;
inline constexpr std::size_t kPageCount = 50;
inline constexpr std::size_t kSettingsFileSize = kRecordSize + kPageCount * kPageRecordSize;
static_assert(kSettingsFileSize == 580984);

// The header: format tag "I100" plus NUL, then the product index.
inline constexpr std::size_t kFormatTagOffset = 0;
inline constexpr std::size_t kFormatTagWidth = 5;
inline constexpr std::size_t kProductOffset = 5;

// Reader working blocks and where their stored images lie in the record.
inline constexpr std::size_t kReaderBlock1Size = 45;
inline constexpr std::size_t kReaderBlock1Offset = 58659;
inline constexpr std::size_t kReaderBlock2Size = 23;
inline constexpr std::size_t kReaderBlock2Offset = 3690;

// Key code table: 3 groups x 20 host keys x 5 bytes.
inline constexpr std::size_t kKeyGroups = 3;
inline constexpr std::size_t kHostKeysPerGroup = 20;
inline constexpr std::size_t kKeyCodeWidth = 5;
inline constexpr std::size_t kTerminalKeyCount = 50;

// The blocks' stored images end where the record's map says they do.
static_assert(kReaderBlock1Offset + kReaderBlock1Size == 58704);
static_assert(kReaderBlock2Offset + kReaderBlock2Size == 3713);
static_assert(kKeyGroups * kHostKeysPerGroup * kKeyCodeWidth == 300);
static_assert(kReaderBlock1Offset + kReaderBlock1Size <= kRecordSize);

// The number of products the product list knows ("Dravin S", "Dravin R").
inline constexpr int kProductCount = 2;

// A page record: the captured host screen's character plane (33 rows of 128 bytes) from byte 80,
// then up to 255 field entries of 24 bytes, the list ending at the first entry numbered 0.
inline constexpr std::size_t kScreenImageOffset = 80;
inline constexpr std::size_t kScreenImageRowBytes = 128;
inline constexpr std::size_t kScreenImageRows = 33;
inline constexpr std::size_t kFieldEntriesOffset = 4304;
inline constexpr std::size_t kFieldEntrySize = 24;
inline constexpr int kMaxFieldEntries = 255;
static_assert(kFieldEntriesOffset == kScreenImageOffset + kScreenImageRows * kScreenImageRowBytes);
static_assert(kFieldEntriesOffset + kMaxFieldEntries * kFieldEntrySize == kPageRecordSize);

using SettingsRecord = std::array<std::uint8_t, kRecordSize>;
using PageRecord = std::array<std::uint8_t, kPageRecordSize>;

// The whole document: the settings record, the 50 page records, the working blocks beside the
// record and the document state. It is large (about 580 KB): keep it on the heap.
struct Document {
  SettingsRecord record{};
  std::array<PageRecord, kPageCount> pages{};
  std::array<std::uint8_t, kReaderBlock1Size> reader_block1{};
  std::array<std::uint8_t, kReaderBlock2Size> reader_block2{};
  std::array<std::uint8_t, kKeyGroups * kHostKeysPerGroup * kKeyCodeWidth> key_codes{};
  // Which terminal keys exist on the chosen product; not stored in the file.
  std::array<bool, kTerminalKeyCount> key_present{};
  std::string file_name;
  bool modified = false;

  int product() const { return record[kProductOffset]; }
  std::span<std::uint8_t> bytes(std::size_t offset, std::size_t size) {
    return std::span<std::uint8_t>(record).subspan(offset, size);
  }
  std::span<const std::uint8_t> bytes(std::size_t offset, std::size_t size) const {
    return std::span<const std::uint8_t>(record).subspan(offset, size);
  }
};

// Fills the whole document with the defaults of `product` (0 = none chosen): the record is zeroed,
// tagged "I100", and every section's default routine runs in the fixed order. The file name and
// the modified flag are left to the caller.
void SetDefaults(Document& doc, int product);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_DOCUMENT_H_
