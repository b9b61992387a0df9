#include "tn5250/double_byte.h"

#include <algorithm>

#include "tn5250/display_text.h"
#include "tn5250/double_byte_tables.h"

namespace veltrix {

namespace {

std::uint8_t Byte(std::uint32_t entry, int shift) {
  return static_cast<std::uint8_t>(entry >> shift);
}

}  // namespace

bool ConvertDoubleByte(int emulation_type, std::uint8_t& first, std::uint8_t& second) {
  const auto entries = double_byte_tables::ForEmulationType(emulation_type).entries;
  // Signed bounds: high drops below low (possibly to -1) when the pair is missing.
  int low = 0;
  int high = static_cast<int>(entries.size()) - 1;
  while (low <= high) {
    const int middle = (low + high) / 2;
    const std::uint32_t entry = entries[middle];
    const std::uint8_t host1 = Byte(entry, 24);
    const std::uint8_t host2 = Byte(entry, 16);
    if (first == host1 && second == host2) {
      first = Byte(entry, 8);
      second = Byte(entry, 0);
      return true;
    }
    if (first > host1 || (first == host1 && second > host2)) {
      low = middle + 1;
    } else {
      high = middle - 1;
    }
  }
  return false;
}

char32_t DoubleByteToUnicode(int emulation_type, std::uint8_t first, std::uint8_t second) {
  const auto table = double_byte_tables::ForEmulationType(emulation_type);
  const auto code = static_cast<std::uint16_t>((first << 8) | second);
  const auto it = std::lower_bound(table.pc_codes.begin(), table.pc_codes.end(), code);
  if (it == table.pc_codes.end() || *it != code) return 0;
  return table.code_points[it - table.pc_codes.begin()];
}

std::string CodePointToUtf8(char32_t c) {
  // Surrogates and values past Unicode have no UTF-8 form: nothing.
  if ((c >= 0xD800 && c <= 0xDFFF) || c > 0x10FFFF) return {};
  std::string out;
  AppendUtf8(out, c);
  return out;
}

}  // namespace veltrix
