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

// The reverse of ConvertDoubleByte: a PC double-byte code of the host language back to the host's
// pair. False (bytes left alone) when no host pair converts to it.
bool ConvertDoubleByteToHost(int emulation_type, std::uint8_t& first, std::uint8_t& second);

// The PC double-byte code of a Unicode character in the host language (for typed text); false
// when the language has no double-byte code for it.
bool UnicodeToDoubleByte(int emulation_type, char32_t c, std::uint8_t& first, std::uint8_t& second);

// How a typed character reaches the host language: its single-byte display code when it has one,
// else its double-byte PC code; size 0 when the language cannot type it.
struct TypedCode {
  int size = 0;
  std::uint8_t first = 0;
  std::uint8_t second = 0;
};
TypedCode TypedCodeOf(int emulation_type, char32_t c);

// UTF-8 bytes of a code point; empty for a surrogate or a value beyond U+10FFFF.
std::string CodePointToUtf8(char32_t code_point);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_DOUBLE_BYTE_H_
