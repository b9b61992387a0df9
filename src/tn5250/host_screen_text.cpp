#include "tn5250/host_screen_text.h"

#include "tn5250/display_text.h"
#include "tn5250/double_byte.h"

namespace veltrix {

char32_t GlyphCharacter(int emulation_type, const CellGlyph& glyph) {
  if (glyph.pair) {
    char32_t c = DoubleByteToUnicode(emulation_type, glyph.lead, glyph.trail);
    return c == 0 ? U'\uFFFD' : c;
  }
  return DisplayByteToUnicode(emulation_type, glyph.lead);
}

}  // namespace veltrix
