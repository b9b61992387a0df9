#ifndef VELTRIX_TN5250_HOST_SCREEN_TEXT_H_
#define VELTRIX_TN5250_HOST_SCREEN_TEXT_H_

#include "tn5250/host_screen.h"

namespace veltrix {

// The character a glyph of the host screen shows: a single display byte in the host language's
// single-byte code, a double-byte pair through its double-byte table (an unknown pair shows as
// U+FFFD).
char32_t GlyphCharacter(int emulation_type, const CellGlyph& glyph);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_SCREEN_TEXT_H_
