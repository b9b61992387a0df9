#ifndef VELTRIX_TN5250_DISPLAY_TEXT_H_
#define VELTRIX_TN5250_DISPLAY_TEXT_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tn5250/presentation_space.h"

namespace veltrix {

// The Unicode code point of a single-byte display character of the host language: ISO-8859-1
// for the single-byte, Chinese, Korean and French languages, ISO-8859-7 for Greek and JIS X 0201
// for Japanese. NUL and the other control bytes are shown as blanks.
char32_t DisplayByteToUnicode(int emulation_type, std::uint8_t b);

// The display byte of a Unicode character, when the host language's single-byte code has it.
std::optional<std::uint8_t> UnicodeToDisplayByte(int emulation_type, char32_t c);

void AppendUtf8(std::string& out, char32_t c);
// Decodes one UTF-8 character at text[i] and advances i; invalid bytes give U+FFFD.
char32_t NextUtf8(std::string_view text, std::size_t& i);

// One screen row as UTF-8 text. A double-byte character is one character in the text, in place
// of its two cells (U+FFFD when the host language's double-byte code does not know the pair);
// one that begins in the row's last column belongs to that row.
std::string ScreenRowText(const PresentationSpace& ps, int emulation_type, int row);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_DISPLAY_TEXT_H_
