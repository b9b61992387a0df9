#include "settings/field.h"

#include <algorithm>

namespace veltrix {
namespace {

bool InRange(std::size_t size, const FieldDef& f, int i, int j) {
  if (i < 0 || j < 0 || i >= f.count || j >= f.count2) return false;
  return f.OffsetOf(i, j) + (f.type == FieldType::kU16 ? 2u : f.width) <= size &&
         (f.type != FieldType::kSplitU16 || f.offset_hi + i * f.stride + j * f.stride2 < size);
}

std::uint8_t BitMask(const FieldDef& f) {
  return static_cast<std::uint8_t>(((1u << f.bit_count) - 1u) << f.bit_lo);
}

}  // namespace

std::uint32_t ReadNumber(std::span<const std::uint8_t> record, const FieldDef& f, int i, int j) {
  if (!InRange(record.size(), f, i, j)) return 0;
  const std::uint32_t at = f.OffsetOf(i, j);
  switch (f.type) {
    case FieldType::kU8:
      return record[at];
    case FieldType::kU16:
      return record[at] | (record[at + 1] << 8);
    case FieldType::kBits:
      return (record[at] & BitMask(f)) >> f.bit_lo;
    case FieldType::kSplitU16:
      return record[at] | (record[f.offset_hi + i * f.stride + j * f.stride2] << 8);
    case FieldType::kText:
    case FieldType::kBytes:
      return 0;
  }
  return 0;
}

void WriteNumber(std::span<std::uint8_t> record, const FieldDef& f, std::uint32_t value, int i,
                 int j) {
  if (!InRange(record.size(), f, i, j)) return;
  const std::uint32_t at = f.OffsetOf(i, j);
  switch (f.type) {
    case FieldType::kU8:
      record[at] = static_cast<std::uint8_t>(value);
      break;
    case FieldType::kU16:
      record[at] = static_cast<std::uint8_t>(value);
      record[at + 1] = static_cast<std::uint8_t>(value >> 8);
      break;
    case FieldType::kBits:
      record[at] = static_cast<std::uint8_t>((record[at] & ~BitMask(f)) |
                                             ((value << f.bit_lo) & BitMask(f)));
      break;
    case FieldType::kSplitU16:
      record[at] = static_cast<std::uint8_t>(value);
      record[f.offset_hi + i * f.stride + j * f.stride2] = static_cast<std::uint8_t>(value >> 8);
      break;
    case FieldType::kText:
    case FieldType::kBytes:
      break;
  }
}

std::string ReadText(std::span<const std::uint8_t> record, const FieldDef& f, int i, int j) {
  auto bytes = FieldBytes(record, f, i, j);
  auto end = std::find(bytes.begin(), bytes.end(), 0);
  return std::string(bytes.begin(), end);
}

void WriteText(std::span<std::uint8_t> record, const FieldDef& f, std::string_view text, int i,
               int j) {
  auto bytes = FieldBytes(record, f, i, j);
  if (bytes.empty()) return;
  const std::size_t n = std::min(text.size(), bytes.size() - 1);
  std::copy_n(text.begin(), n, bytes.begin());
  bytes[n] = 0;
}

std::span<std::uint8_t> FieldBytes(std::span<std::uint8_t> record, const FieldDef& f, int i,
                                   int j) {
  if (!InRange(record.size(), f, i, j)) return {};
  return record.subspan(f.OffsetOf(i, j), f.width);
}

std::span<const std::uint8_t> FieldBytes(std::span<const std::uint8_t> record, const FieldDef& f,
                                         int i, int j) {
  if (!InRange(record.size(), f, i, j)) return {};
  return record.subspan(f.OffsetOf(i, j), f.width);
}

void ApplyDefault(std::span<std::uint8_t> record, const FieldDef& f) {
  for (int i = 0; i < f.count; ++i) {
    for (int j = 0; j < f.count2; ++j) {
      if (f.numeric()) {
        WriteNumber(record, f, static_cast<std::uint32_t>(f.default_value), i, j);
        continue;
      }
      auto bytes = FieldBytes(record, f, i, j);
      std::fill(bytes.begin(), bytes.end(), std::uint8_t{0});
      if (i != 0 || j != 0) continue;
      if (f.type == FieldType::kText) {
        WriteText(record, f, f.default_text);
      } else {
        std::copy_n(f.default_text.begin(), std::min(f.default_text.size(), bytes.size()),
                    bytes.begin());
      }
    }
  }
}

}  // namespace veltrix
