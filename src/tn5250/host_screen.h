#ifndef VELTRIX_TN5250_HOST_SCREEN_H_
#define VELTRIX_TN5250_HOST_SCREEN_H_

#include <cstdint>
#include <span>
#include <vector>

#include "tn5250/presentation_space.h"

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
  bool pair = false;       // a double-byte character (one cell wide when cut by the row's end)
};

// Splits a screen row into the characters to draw, double-byte pairs where the presentation
// space marked them: a pair is one two-cell character (one cell when it starts in the last
// column, the cell that ends it in the next row then drawing nothing); an empty cell (0) is a
// blank.
std::vector<CellGlyph> RowGlyphs(const PresentationSpace& ps, int row);

}  // namespace veltrix

#endif  // VELTRIX_TN5250_HOST_SCREEN_H_
