#include "tn5250/double_byte.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <vector>

#include "tn5250/display_text.h"
#include "tn5250/double_byte_tables.h"

namespace veltrix {

namespace {

std::uint8_t Byte(std::uint32_t entry, int shift) {
  return static_cast<std::uint8_t>(entry >> shift);
}

constexpr int kLanguages = 5;  // EmulationType 1 to 4 have tables

// Sorted (key << 16 | value) lists for the reverse lookups, built on first use per language.
struct ReverseIndex {
  std::vector<std::uint64_t> pc_to_host;     // PC code -> host pair
  std::vector<std::uint64_t> unicode_to_pc;  // code point -> PC code
};

const ReverseIndex& ReverseFor(int emulation_type) {
  static std::array<ReverseIndex, kLanguages> indexes;
  static std::array<std::once_flag, kLanguages> built;
  const int type = (emulation_type >= 1 && emulation_type <= 4) ? emulation_type : 0;
  std::call_once(built[type], [type] {
    const auto table = double_byte_tables::ForEmulationType(type);
    ReverseIndex& index = indexes[type];
    for (std::uint32_t entry : table.entries) {
      index.pc_to_host.push_back(std::uint64_t{entry & 0xFFFF} << 16 | entry >> 16);
    }
    for (std::size_t i = 0; i < table.pc_codes.size(); ++i) {
      index.unicode_to_pc.push_back(std::uint64_t{table.code_points[i]} << 16 | table.pc_codes[i]);
    }
    // Several host pairs may give one PC code: the first (lowest) host pair is kept.
    std::sort(index.pc_to_host.begin(), index.pc_to_host.end());
    std::sort(index.unicode_to_pc.begin(), index.unicode_to_pc.end());
  });
  return indexes[type];
}

// The value stored under `key`, if any.
bool Lookup(const std::vector<std::uint64_t>& list, std::uint64_t key, std::uint16_t& value) {
  const auto it = std::lower_bound(list.begin(), list.end(), key << 16);
  if (it == list.end() || (*it >> 16) != key) return false;
  value = static_cast<std::uint16_t>(*it & 0xFFFF);
  return true;
}

}  // namespace

bool ConvertDoubleByteToHost(int emulation_type, std::uint8_t& first, std::uint8_t& second) {
  std::uint16_t host = 0;
  if (!Lookup(ReverseFor(emulation_type).pc_to_host, std::uint64_t{first} << 8 | second, host)) {
    return false;
  }
  first = static_cast<std::uint8_t>(host >> 8);
  second = static_cast<std::uint8_t>(host);
  return true;
}

bool UnicodeToDoubleByte(int emulation_type, char32_t c, std::uint8_t& first,
                         std::uint8_t& second) {
  std::uint16_t pc = 0;
  if (!Lookup(ReverseFor(emulation_type).unicode_to_pc, c, pc)) return false;
  first = static_cast<std::uint8_t>(pc >> 8);
  second = static_cast<std::uint8_t>(pc);
  return true;
}

TypedCode TypedCodeOf(int emulation_type, char32_t c) {
  TypedCode code;
  if (const auto single = UnicodeToDisplayByte(emulation_type, c)) {
    code.size = 1;
    code.first = *single;
  } else if (UnicodeToDoubleByte(emulation_type, c, code.first, code.second)) {
    code.size = 2;
  }
  return code;
}

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
