#include "tn5250/display_text.h"

#include "tn5250/code_tables.h"
#include "tn5250/double_byte.h"

namespace veltrix {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

// ISO-8859-7 bytes 0xA0..0xFF (0 where the code has no character).
constexpr char32_t kGreekHigh[96] = {
    0x00A0, 0x2018, 0x2019, 0x00A3, 0x20AC, 0x20AF, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x037A, 0x00AB,
    0x00AC, 0x00AD, 0,      0x2015, 0x00B0, 0x00B1, 0x00B2, 0x00B3, 0x0384, 0x0385, 0x0386, 0x00B7,
    0x0388, 0x0389, 0x038A, 0x00BB, 0x038C, 0x00BD, 0x038E, 0x038F, 0x0390, 0x0391, 0x0392, 0x0393,
    0x0394, 0x0395, 0x0396, 0x0397, 0x0398, 0x0399, 0x039A, 0x039B, 0x039C, 0x039D, 0x039E, 0x039F,
    0x03A0, 0x03A1, 0,      0x03A3, 0x03A4, 0x03A5, 0x03A6, 0x03A7, 0x03A8, 0x03A9, 0x03AA, 0x03AB,
    0x03AC, 0x03AD, 0x03AE, 0x03AF, 0x03B0, 0x03B1, 0x03B2, 0x03B3, 0x03B4, 0x03B5, 0x03B6, 0x03B7,
    0x03B8, 0x03B9, 0x03BA, 0x03BB, 0x03BC, 0x03BD, 0x03BE, 0x03BF, 0x03C0, 0x03C1, 0x03C2, 0x03C3,
    0x03C4, 0x03C5, 0x03C6, 0x03C7, 0x03C8, 0x03C9, 0x03CA, 0x03CB, 0x03CC, 0x03CD, 0x03CE, 0};

char32_t JisX0201(std::uint8_t b) {
  if (b == 0x5C) return 0x00A5;  // yen sign
  if (b == 0x7E) return 0x203E;  // overline
  if (b < 0x80) return b;
  if (b >= 0xA1 && b <= 0xDF) return 0xFF61 + (b - 0xA1);  // half-width katakana
  return kReplacement;
}

}  // namespace

char32_t DisplayByteToUnicode(int emulation_type, std::uint8_t b) {
  if (b < 0x20 || b == 0x7F) return ' ';
  switch (emulation_type) {
    case kEmulationGreek:
      if (b < 0xA0) return b < 0x80 ? b : kReplacement;
      return kGreekHigh[b - 0xA0] != 0 ? kGreekHigh[b - 0xA0] : kReplacement;
    case kEmulationJapanese:
      return JisX0201(b);
    default:
      return b;
  }
}

std::optional<std::uint8_t> UnicodeToDisplayByte(int emulation_type, char32_t c) {
  if (c < 0x20) return std::nullopt;
  if (emulation_type == kEmulationJapanese || emulation_type == kEmulationGreek) {
    for (int b = 0x20; b < 256; ++b) {
      if (b != 0x7F && DisplayByteToUnicode(emulation_type, static_cast<std::uint8_t>(b)) == c &&
          c != kReplacement) {
        return static_cast<std::uint8_t>(b);
      }
    }
    return std::nullopt;
  }
  if (c < 256 && c != 0x7F) return static_cast<std::uint8_t>(c);
  return std::nullopt;
}

void AppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

char32_t NextUtf8(std::string_view text, std::size_t& i) {
  const auto lead = static_cast<std::uint8_t>(text[i++]);
  if (lead < 0x80) return lead;
  int extra = 0;
  char32_t c = 0;
  if ((lead & 0xE0) == 0xC0) {
    extra = 1;
    c = lead & 0x1F;
  } else if ((lead & 0xF0) == 0xE0) {
    extra = 2;
    c = lead & 0x0F;
  } else if ((lead & 0xF8) == 0xF0) {
    extra = 3;
    c = lead & 0x07;
  } else {
    return kReplacement;
  }
  for (int k = 0; k < extra; ++k) {
    if (i >= text.size() || (static_cast<std::uint8_t>(text[i]) & 0xC0) != 0x80) {
      return kReplacement;
    }
    c = (c << 6) | (static_cast<std::uint8_t>(text[i++]) & 0x3F);
  }
  return c;
}

std::string ScreenRowText(const PresentationSpace& ps, int emulation_type, int row) {
  std::string out;
  const int columns = ps.Columns();
  // A pair begun in the last column of the row above ends in this row's first cell.
  const int from = (row > 0 && ps.IsPairStart(row - 1, columns - 1)) ? 1 : 0;
  for (int column = from; column < columns; ++column) {
    if (ps.IsPairStart(row, column)) {
      const CellAddress second = ps.Advance({row, column});
      const char32_t c = DoubleByteToUnicode(emulation_type, ps.Character(row, column),
                                             ps.Character(second.row, second.column));
      AppendUtf8(out, c != 0 ? c : kReplacement);
      ++column;
      continue;
    }
    AppendUtf8(out, DisplayByteToUnicode(emulation_type, ps.Character(row, column)));
  }
  return out;
}

}  // namespace veltrix
