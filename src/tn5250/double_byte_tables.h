#ifndef VELTRIX_TN5250_DOUBLE_BYTE_TABLES_H_
#define VELTRIX_TN5250_DOUBLE_BYTE_TABLES_H_

#include <cstdint>
#include <span>

// Constant conversion data of the double-byte host languages (generated, see
// scripts/gen_dbcs_tables.sh). Use the functions of tn5250/double_byte.h instead.
namespace veltrix::double_byte_tables {

struct Table {
  // host byte 1, host byte 2, PC byte 1, PC byte 2 (high to low); ascending host pairs.
  std::span<const std::uint32_t> entries;
  // Every PC code the entries produce, ascending, with its code point in code_points.
  std::span<const std::uint16_t> pc_codes;
  std::span<const std::uint32_t> code_points;
};

// The table of `EmulationType` 1 to 4; an empty table for any other value.
Table ForEmulationType(int emulation_type);

}  // namespace veltrix::double_byte_tables

#endif  // VELTRIX_TN5250_DOUBLE_BYTE_TABLES_H_
