#ifndef VELTRIX_SETTINGS_FIELD_H_
#define VELTRIX_SETTINGS_FIELD_H_

#include <array>
#include <cstddef>
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

// Roles a terminal FN key can be claimed for (the first byte of a mapping entry); a key field
// names the role its key is claimed for.
enum FunctionKeyRole : std::uint8_t {
  kRoleNone = 0,
  kRoleNameKey = 201,
  kRolePasswordKey = 202,
  kRoleExitKey = 203,
  kRoleNavigatorKey = 204,
  kRoleMessageKey = 205,
  kRoleSwitchKey = 206,
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
  // A text field's default text, or a byte field's default bytes; elements after the first
  // start empty.
  std::string_view default_text;
  FunctionKeyRole key_role = kRoleNone;
  // No control edits it; the terminal expects its default there.
  bool reserved = false;

  constexpr bool numeric() const { return type != FieldType::kText && type != FieldType::kBytes; }
  constexpr int dimensions() const { return count2 > 1 ? 2 : (count > 1 ? 1 : 0); }
  constexpr std::uint32_t OffsetOf(int i = 0, int j = 0) const {
    return offset + static_cast<std::uint32_t>(i) * stride +
           static_cast<std::uint32_t>(j) * stride2;
  }
  // Last byte (inclusive) that any element of the field touches.
  constexpr std::uint32_t LastByte() const {
    std::uint32_t last =
        OffsetOf(count - 1, count2 - 1) + (type == FieldType::kU16 ? 2 : width) - 1;
    if (type == FieldType::kSplitU16 && offset_hi > last) last = offset_hi;
    return last;
  }
};

// Each section declares its fields in one table; these find a field of it by name at compile time,
// so that code may name the fields it reads, and a name missing from the table does not compile.
void FieldNameIsNotInTheTable();  // never defined: reaching it at compile time is the error
consteval const FieldDef& FieldNamed(std::span<const FieldDef> table, std::string_view name) {
  for (const FieldDef& f : table) {
    if (f.name == name) return f;
  }
  FieldNameIsNotInTheTable();
  return table[0];
}

// Pointers to every field of the tables, in order.
template <std::size_t... N>
constexpr std::array<const FieldDef*, (N + ... + 0)> FieldPointers(
    const std::array<FieldDef, N>&... tables) {
  std::array<const FieldDef*, (N + ... + 0)> pointers{};
  std::size_t next = 0;
  (
      (void)[&] {
        for (const FieldDef& f : tables) pointers[next++] = &f;
      }(),
      ...);
  return pointers;
}

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

// Gives every element of `f` its declared default: the number, or the text in the first element
// (the whole width cleared first), or zero bytes.
void ApplyDefault(std::span<std::uint8_t> record, const FieldDef& f);

}  // namespace veltrix

#endif  // VELTRIX_SETTINGS_FIELD_H_
