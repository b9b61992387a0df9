#ifndef VELTRIX_TN5250_DOUBLE_BYTE_H_
#define VELTRIX_TN5250_DOUBLE_BYTE_H_

#include <cstdint>
#include <string>

namespace veltrix {

// Converts a host double-byte pair (EBCDIC, between shift-out and shift-in) to the PC
// double-byte code of the host language (`EmulationType` 1 Traditional Chinese, 2 Simplified
// Chinese, 3 Korean, 4 Japanese). On success both bytes are replaced and the result is true;
// otherwise they are left alone and the result is false.
bool ConvertDoubleByte(int emulation_type, std::uint8_t& first, std::uint8_t& second);

// The Unicode character of a PC double-byte code that ConvertDoubleByte can produce for the host
// language (for text output of a screen); 0 when the code is unknown to that language.
char32_t DoubleByteToUnicode(int emulation_type, std::uint8_t first, std::uint8_t second);

// UTF-8 bytes of a code point; empty for a surrogate or a value beyond U+10FFFF.
std::string CodePointToUtf8(char32_t code_point);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_DOUBLE_BYTE_H_
