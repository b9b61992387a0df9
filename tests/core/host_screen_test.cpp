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

// Pairs come from the presentation space's marks, never from the byte values: the same bytes
// written as single cells stay single glyphs.
TEST(RowGlyphs, PairsFollowThePresentationSpacesMarks) {
  PresentationSpace ps;
  ps.Reset();
  ps.PutPair(1, 0, 0xA4, 0x40);
  ps.PutPair(3, 0, 0xB0, 0xA1, /*mark=*/false);
  ps.PutPair(kScreenColumns - 1, 0, 0xA4, 0x41);  // runs into the next row
  std::vector<CellGlyph> glyphs = RowGlyphs(ps, 0);
  ASSERT_EQ(static_cast<std::size_t>(kScreenColumns - 1), glyphs.size());
  EXPECT_EQ(' ', glyphs[0].lead);  // an empty cell
  EXPECT_TRUE(glyphs[1].pair);
  EXPECT_EQ(2, glyphs[1].width);
  EXPECT_EQ(0x40, glyphs[1].trail);
  EXPECT_FALSE(glyphs[2].pair);
  EXPECT_EQ(0xB0, glyphs[2].lead);
  EXPECT_TRUE(glyphs.back().pair);
  EXPECT_EQ(1, glyphs.back().width);
  EXPECT_EQ(0x41, glyphs.back().trail);
  // The next row's first cell ends that pair and shows nothing of its own.
  std::vector<CellGlyph> next = RowGlyphs(ps, 1);
  ASSERT_EQ(static_cast<std::size_t>(kScreenColumns), next.size());
  EXPECT_EQ(' ', next[0].lead);
}

TEST(GlyphCharacter, SingleAndDoubleByteGlyphs) {
  EXPECT_EQ(U'A', GlyphCharacter(0, CellGlyph{0, 1, 'A', 0}));
  EXPECT_EQ(U'\u0391', GlyphCharacter(5, CellGlyph{0, 1, 0xC1, 0}));
  // A pair that the language's double-byte table does not know.
  EXPECT_EQ(U'\uFFFD', GlyphCharacter(1, CellGlyph{0, 2, 0x81, 0x30, true}));
}

}  // namespace
}  // namespace veltrix
