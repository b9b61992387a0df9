#ifndef VELTRIX_TN5250_HOST_SCREEN_H_
#define VELTRIX_TN5250_HOST_SCREEN_H_

#include <cstdint>
#include <span>
#include <vector>

namespace veltrix {

// Cell size of the host screen for a client area, recomputed on every size change.
struct CellMetrics {
  int cell_width = 8;
  int character_height = 16;
  // A screen row is the character height plus 2 pixels.
  int row_height() const { return character_height + 2; }
};

// cell width = width / columns (at least 8); character height = (height - 2 * rows) / (rows + 1)
// (at least 16). The height leaves room for one row more than the screen has.
CellMetrics ComputeCellMetrics(int client_width, int client_height, int rows, int columns);

// The smallest cell the window still draws when the screen would not fit otherwise.
inline constexpr int kSmallestCellWidth = 4;
inline constexpr int kSmallestCharacterHeight = 6;

// ComputeCellMetrics, but every row and column stays inside the client area: where the minimum
// cell (8 x 16) would push the last rows or columns out, the cell shrinks to fit, down to
// kSmallestCellWidth x kSmallestCharacterHeight.
CellMetrics FitCellMetrics(int client_width, int client_height, int rows, int columns);

struct PixelRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
};

// The rectangle of one cell (also where the caret stands for that cell).
PixelRect CellRect(const CellMetrics& metrics, int row, int column);

// A stretch of a row whose cells agree in the low three bits of their display attribute.
struct PaintRun {
  int first_column = 0;
  int length = 0;
  std::uint8_t low_bits = 0;  // bits 2-0 of the display attribute

  bool hidden() const { return low_bits == 7; }  // not displayed: the background shows
  bool reverse() const { return !hidden() && (low_bits & 0x01) != 0; }
  bool underline() const { return !hidden() && (low_bits & 0x04) != 0; }
};

// Cuts a row of display attributes into runs: a new run starts wherever bits 2-0 change.
std::vector<PaintRun> RowRuns(std::span<const std::uint8_t> attributes);

// One character to draw: one cell, or two cells for a double-byte character.
struct CellGlyph {
  int column = 0;
  int width = 1;           // cells
  std::uint8_t lead = 0;   // the display byte (the first byte of a double-byte pair)
  std::uint8_t trail = 0;  // second byte of a double-byte pair
};

// True when `byte` starts a double-byte character in the PC code page of the host language
// (`EmulationType` 1 Traditional Chinese, 2 Simplified Chinese, 3 Korean, 4 Japanese).
bool IsLeadByte(int emulation_type, std::uint8_t byte);

// Splits a row of display codes into the characters to draw. An empty cell (0) is a blank; a lead
// byte with its trail byte in the next cell is one two-cell character; a lead byte in the last
// cell, or followed by an empty cell, is drawn as a single cell.
std::vector<CellGlyph> RowGlyphs(int emulation_type, std::span<const std::uint8_t> characters);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_SCREEN_H_
