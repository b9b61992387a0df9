#include "tn5250/host_screen.h"

#include <gtest/gtest.h>

#include <vector>

#include "tn5250/host_screen_text.h"

namespace veltrix {
namespace {

TEST(CellMetrics, FollowTheClientArea) {
  CellMetrics m = ComputeCellMetrics(640, 480, 24, 80);
  EXPECT_EQ(8, m.cell_width);
  EXPECT_EQ(17, m.character_height);
  EXPECT_EQ(19, m.row_height());
  // Too narrow or too low still gives the minimum cell.
  m = ComputeCellMetrics(300, 100, 24, 80);
  EXPECT_EQ(8, m.cell_width);
  EXPECT_EQ(16, m.character_height);
  m = ComputeCellMetrics(1280, 800, 24, 80);
  EXPECT_EQ(16, m.cell_width);
  EXPECT_EQ(30, m.character_height);
}

TEST(CellMetrics, CellRectangles) {
  CellMetrics m = ComputeCellMetrics(640, 480, 24, 80);
  PixelRect r = CellRect(m, 2, 3);
  EXPECT_EQ(24, r.x);
  EXPECT_EQ(38, r.y);
  EXPECT_EQ(8, r.width);
  EXPECT_EQ(19, r.height);
}

TEST(RowRuns, CutWhereTheLowThreeBitsChange) {
  // Colour, blink and column separator bits do not start a run.
  std::vector<std::uint8_t> attrs = {0x20, 0xE0, 0x18, 0x24, 0x04, 0x07, 0x07, 0x21, 0x05};
  std::vector<PaintRun> runs = RowRuns(attrs);
  ASSERT_EQ(5u, runs.size());
  EXPECT_EQ(0, runs[0].first_column);
  EXPECT_EQ(3, runs[0].length);
  EXPECT_FALSE(runs[0].underline());
  EXPECT_TRUE(runs[1].underline());
  EXPECT_EQ(2, runs[1].length);
  EXPECT_TRUE(runs[2].hidden());
  EXPECT_FALSE(runs[2].reverse());
  EXPECT_FALSE(runs[2].underline());
  EXPECT_TRUE(runs[3].reverse());
  EXPECT_TRUE(runs[4].reverse());
  EXPECT_TRUE(runs[4].underline());
  EXPECT_EQ(8, runs[4].first_column);
}

TEST(RowGlyphs, SingleByteRowsHaveOneGlyphPerCell) {
  std::vector<std::uint8_t> row = {'A', 0, 0xE9, 0xA4};
  std::vector<CellGlyph> glyphs = RowGlyphs(0, row);
  ASSERT_EQ(4u, glyphs.size());
  EXPECT_EQ(' ', glyphs[1].lead);
  EXPECT_EQ(0xA4, glyphs[3].lead);
  EXPECT_EQ(1, glyphs[3].width);
}

TEST(RowGlyphs, DoubleBytePairsTakeTwoCells) {
  std::vector<std::uint8_t> row = {'A', 0xA4, 0x40, 0xB0, 0, 0xC1};
  std::vector<CellGlyph> glyphs = RowGlyphs(1, row);
  ASSERT_EQ(5u, glyphs.size());
  EXPECT_EQ(1, glyphs[1].column);
  EXPECT_EQ(2, glyphs[1].width);
  EXPECT_EQ(0x40, glyphs[1].trail);
  // A lead byte before an empty cell or at the row's end stands alone.
  EXPECT_EQ(1, glyphs[2].width);
  EXPECT_EQ(1, glyphs[4].width);
  EXPECT_EQ(5, glyphs[4].column);
}

TEST(RowGlyphs, JapaneseHalfWidthKatakanaAreSingleCells) {
  std::vector<std::uint8_t> row = {0xB1, 0x82, 0xA0};
  std::vector<CellGlyph> glyphs = RowGlyphs(4, row);
  ASSERT_EQ(2u, glyphs.size());
  EXPECT_EQ(1, glyphs[0].width);
  EXPECT_EQ(2, glyphs[1].width);
}

TEST(GlyphCharacter, SingleAndDoubleByteGlyphs) {
  EXPECT_EQ(U'A', GlyphCharacter(0, CellGlyph{0, 1, 'A', 0}));
  EXPECT_EQ(U'\u0391', GlyphCharacter(5, CellGlyph{0, 1, 0xC1, 0}));
  // A pair that the language's double-byte table does not know.
  EXPECT_EQ(U'\uFFFD', GlyphCharacter(1, CellGlyph{0, 2, 0x81, 0x30}));
}

}  // namespace
}  // namespace veltrix
