#ifndef VELTRIX_TN5250_HOST_SCREEN_TEXT_H_
#define VELTRIX_TN5250_HOST_SCREEN_TEXT_H_

#include <cstdint>
#include <optional>

#include "tn5250/host_screen.h"

namespace veltrix {

// The Unicode character of a single display byte of the host language: ISO-8859-1 for the
// single-byte and double-byte languages (their single-byte part), ISO-8859-7 for Greek, and
// half-width katakana (JIS X 0201) for Japanese. Control bytes and bytes without a character show
// as a blank.
char32_t DisplayByteToUnicode(int emulation_type, std::uint8_t display);

// The display byte that types a character in the host language, or nothing when the language has
// no single-byte code for it.
std::optional<std::uint8_t> UnicodeToDisplayByte(int emulation_type, char32_t c);

// The character a glyph of the host screen shows (a double-byte pair through the host language's
// double-byte table; an unknown pair shows as U+FFFD).
char32_t GlyphCharacter(int emulation_type, const CellGlyph& glyph);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_SCREEN_TEXT_H_
