#ifndef VELTRIX_SETTINGS_FIELD_H_
#define VELTRIX_SETTINGS_FIELD_H_

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace veltrix {

// How a field's bytes are read.
enum class FieldType : std::uint8_t {
  kU8,        // one unsigned byte
  kU16,       // little-endian 16-bit
  kBits,      // bit_count bits starting at bit_lo of one byte (bit 7 most significant)
  kSplitU16,  // 16-bit value: low byte at offset, high byte at offset_hi
  kText,      // NUL-terminated text within `width` bytes (at most width - 1 characters)
  kBytes,     // raw byte string of `width` bytes
};

// One field of the settings record, declared once. Fields that repeat (host entries, pages,
// lines) give a count and stride per index; element (i, j) lies at offset + i*stride + j*stride2.
struct FieldDef {
  std::string_view name;
  std::uint32_t offset = 0;
  std::uint16_t width = 1;  // bytes
  FieldType type = FieldType::kU8;
  std::uint8_t bit_lo = 0;
  std::uint8_t bit_count = 0;
  std::uint32_t offset_hi = 0;  // kSplitU16 only
  std::uint16_t count = 1;      // first index range 0..count-1
  std::uint32_t stride = 0;
  std::uint16_t count2 = 1;  // second index range 0..count2-1
  std::uint32_t stride2 = 0;
  std::int64_t min = 0;  // numeric range accepted by `set`
  std::int64_t max = 255;
  std::int64_t default_value = 0;  // numeric default where the default is a constant
  std::string_view meaning;

  constexpr bool numeric() const { return type != FieldType::kText && type != FieldType::kBytes; }
  constexpr int dimensions() const { return count2 > 1 ? 2 : (count > 1 ? 1 : 0); }
  constexpr std::uint32_t OffsetOf(int i = 0, int j = 0) const {
    return offset + static_cast<std::uint32_t>(i) * stride + static_cast<std::uint32_t>(j) * stride2;
  }
  // Last byte (inclusive) that any element of the field touches.
  constexpr std::uint32_t LastByte() const {
    std::uint32_t last = OffsetOf(count - 1, count2 - 1) + (type == FieldType::kU16 ? 2 : width) - 1;
    if (type == FieldType::kSplitU16 && offset_hi > last) last = offset_hi;
    return last;
  }
};

// Typed access to a field element in a record image. Indices must be in range (callers check
// with FieldDef::count/count2); out-of-range indices read 0 and write nothing.
std::uint32_t ReadNumber(std::span<const std::uint8_t> record, const FieldDef& f, int i = 0,
                         int j = 0);
void WriteNumber(std::span<std::uint8_t> record, const FieldDef& f, std::uint32_t value, int i = 0,
                 int j = 0);
std::string ReadText(std::span<const std::uint8_t> record, const FieldDef& f, int i = 0, int j = 0);
// Stores at most width - 1 characters and a NUL behind them; bytes after the NUL are kept.
void WriteText(std::span<std::uint8_t> record, const FieldDef& f, std::string_view text, int i = 0,
               int j = 0);
std::span<std::uint8_t> FieldBytes(std::span<std::uint8_t> record, const FieldDef& f, int i = 0,
                                   int j = 0);
std::span<const std::uint8_t> FieldBytes(std::span<const std::uint8_t> record, const FieldDef& f,
                                         int i = 0, int j = 0);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_H_
