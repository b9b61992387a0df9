#include "tn5250/host_screen_text.h"

#include <array>

#include "tn5250/double_byte.h"

namespace veltrix {
namespace {

constexpr int kGreek = 5;
constexpr int kJapanese = 4;

// ISO-8859-7, bytes 0xA0..0xFF (0 where the byte has no character).
constexpr std::array<char16_t, 96> kGreekHigh = {
    0x00A0, 0x2018, 0x2019, 0x00A3, 0x20AC, 0x20AF, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x037A, 0x00AB,
    0x00AC, 0x00AD, 0x0000, 0x2015, 0x00B0, 0x00B1, 0x00B2, 0x00B3, 0x0384, 0x0385, 0x0386, 0x00B7,
    0x0388, 0x0389, 0x038A, 0x00BB, 0x038C, 0x00BD, 0x038E, 0x038F, 0x0390, 0x0391, 0x0392, 0x0393,
    0x0394, 0x0395, 0x0396, 0x0397, 0x0398, 0x0399, 0x039A, 0x039B, 0x039C, 0x039D, 0x039E, 0x039F,
    0x03A0, 0x03A1, 0x0000, 0x03A3, 0x03A4, 0x03A5, 0x03A6, 0x03A7, 0x03A8, 0x03A9, 0x03AA, 0x03AB,
    0x03AC, 0x03AD, 0x03AE, 0x03AF, 0x03B0, 0x03B1, 0x03B2, 0x03B3, 0x03B4, 0x03B5, 0x03B6, 0x03B7,
    0x03B8, 0x03B9, 0x03BA, 0x03BB, 0x03BC, 0x03BD, 0x03BE, 0x03BF, 0x03C0, 0x03C1, 0x03C2, 0x03C3,
    0x03C4, 0x03C5, 0x03C6, 0x03C7, 0x03C8, 0x03C9, 0x03CA, 0x03CB, 0x03CC, 0x03CD, 0x03CE, 0x0000,
};

char32_t HighByteToUnicode(int emulation_type, std::uint8_t b) {
  if (emulation_type == kGreek) return b >= 0xA0 ? kGreekHigh[b - 0xA0] : 0;
  if (emulation_type == kJapanese) {
    return (b >= 0xA1 && b <= 0xDF) ? char32_t{0xFF61} + (b - 0xA1) : 0;
  }
  return b >= 0xA0 ? char32_t{b} : 0;
}

}  // namespace

char32_t DisplayByteToUnicode(int emulation_type, std::uint8_t b) {
  if (b >= 0x20 && b < 0x7F) return b;
  if (b < 0x80) return U' ';
  char32_t c = HighByteToUnicode(emulation_type, b);
  return c == 0 ? U' ' : c;
}

std::optional<std::uint8_t> UnicodeToDisplayByte(int emulation_type, char32_t c) {
  if (c >= 0x20 && c < 0x7F) return static_cast<std::uint8_t>(c);
  for (int b = 0xA0; b <= 0xFF; ++b) {
    if (HighByteToUnicode(emulation_type, static_cast<std::uint8_t>(b)) == c) {
      return static_cast<std::uint8_t>(b);
    }
  }
  return std::nullopt;
}

char32_t GlyphCharacter(int emulation_type, const CellGlyph& glyph) {
  if (glyph.width == 2) {
    char32_t c = DoubleByteToUnicode(emulation_type, glyph.lead, glyph.trail);
    return c == 0 ? U'\uFFFD' : c;
  }
  return DisplayByteToUnicode(emulation_type, glyph.lead);
}

}  // namespace veltrix
