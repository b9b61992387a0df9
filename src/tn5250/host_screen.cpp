#include "tn5250/host_screen.h"

#include <algorithm>

namespace veltrix {

CellMetrics ComputeCellMetrics(int client_width, int client_height, int rows, int columns) {
  CellMetrics m;
  m.cell_width = columns > 0 ? client_width / columns : 0;
  m.cell_width = std::max(m.cell_width, 8);
  m.character_height = rows >= 0 ? (client_height - 2 * rows) / (rows + 1) : 0;
  m.character_height = std::max(m.character_height, 16);
  return m;
}

CellMetrics FitCellMetrics(int client_width, int client_height, int rows, int columns) {
  CellMetrics m = ComputeCellMetrics(client_width, client_height, rows, columns);
  if (columns > 0 && m.cell_width * columns > client_width) {
    m.cell_width = std::max(client_width / columns, kSmallestCellWidth);
  }
  if (rows > 0 && m.row_height() * rows > client_height) {
    m.character_height = std::max(client_height / rows - 2, kSmallestCharacterHeight);
  }
  return m;
}

PixelRect CellRect(const CellMetrics& metrics, int row, int column) {
  return PixelRect{metrics.cell_width * column, metrics.row_height() * row, metrics.cell_width,
                   metrics.row_height()};
}

std::vector<PaintRun> RowRuns(std::span<const std::uint8_t> attributes) {
  std::vector<PaintRun> runs;
  for (std::size_t c = 0; c < attributes.size(); ++c) {
    std::uint8_t bits = attributes[c] & 0x07;
    if (runs.empty() || runs.back().low_bits != bits) {
      runs.push_back(PaintRun{static_cast<int>(c), 0, bits});
    }
    ++runs.back().length;
  }
  return runs;
}

std::vector<CellGlyph> RowGlyphs(const PresentationSpace& ps, int row) {
  std::vector<CellGlyph> glyphs;
  const int columns = ps.Columns();
  glyphs.reserve(static_cast<std::size_t>(columns));
  // A pair begun in the last column of the row above ends in this row's first cell.
  int c = (row > 0 && ps.IsPairStart(row - 1, columns - 1)) ? 1 : 0;
  if (c == 1) glyphs.push_back(CellGlyph{0, 1, ' ', 0});
  for (; c < columns; ++c) {
    std::uint8_t b = ps.Character(row, c);
    if (ps.IsPairStart(row, c)) {
      const CellAddress second = ps.Advance({row, c});
      glyphs.push_back(
          CellGlyph{c, c + 1 < columns ? 2 : 1, b, ps.Character(second.row, second.column), true});
      ++c;
      continue;
    }
    glyphs.push_back(CellGlyph{c, 1, b == 0 ? std::uint8_t{' '} : b, 0});
  }
  return glyphs;
}

}  // namespace veltrix
