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

bool IsLeadByte(int emulation_type, std::uint8_t b) {
  switch (emulation_type) {
    case 1:  // Traditional Chinese
    case 2:  // Simplified Chinese
    case 3:  // Korean
      return b >= 0x81 && b <= 0xFE;
    case 4:  // Japanese: half-width katakana (0xA1-0xDF) stand alone
      return (b >= 0x81 && b <= 0x9F) || (b >= 0xE0 && b <= 0xFC);
    default:
      return false;
  }
}

std::vector<CellGlyph> RowGlyphs(int emulation_type, std::span<const std::uint8_t> characters) {
  std::vector<CellGlyph> glyphs;
  glyphs.reserve(characters.size());
  const int count = static_cast<int>(characters.size());
  for (int c = 0; c < count; ++c) {
    std::uint8_t b = characters[c];
    if (b == 0) b = ' ';
    if (IsLeadByte(emulation_type, b) && c + 1 < count && characters[c + 1] != 0) {
      glyphs.push_back(CellGlyph{c, 2, b, characters[c + 1]});
      ++c;
    } else {
      glyphs.push_back(CellGlyph{c, 1, b, 0});
    }
  }
  return glyphs;
}

}  // namespace veltrix
