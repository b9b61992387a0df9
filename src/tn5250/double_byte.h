#ifndef VELTRIX_TN5250_DOUBLE_BYTE_H_
#define VELTRIX_TN5250_DOUBLE_BYTE_H_

#include <cstdint>

namespace veltrix {

// Converts a host double-byte pair (EBCDIC, between shift-out and shift-in) to the PC
// double-byte code of the host language (`EmulationType` 1 Traditional Chinese, 2 Simplified
// Chinese, 3 Korean, 4 Japanese). On success both bytes are replaced and the result is true;
// otherwise they are left alone and the result is false.
bool ConvertDoubleByte(int emulation_type, std::uint8_t& first, std::uint8_t& second);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_DOUBLE_BYTE_H_
