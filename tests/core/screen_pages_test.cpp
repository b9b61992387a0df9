#include "settings/screen/screen_pages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "default_document.h"
#include "settings/field_registry.h"
#include "settings/screen/terminal_screen_sizes.h"
#include "settings_test_files.h"
#include "shell/summary.h"

namespace veltrix {
namespace {

using testing::DefaultDocument;

TEST(ScreenPageFields, LieWhereTheTerminalExpectsThem) {
  const struct {
    const FieldDef& field;
    int i, j;
    std::uint32_t offset;
  } cases[] = {
      {kScreensLoaded, 0, 0, 4965},
      {kTotalPages, 0, 0, 4966},
      {kReformatPageTo, 49, 0, 5016},
      {kTerminalScreen, 0, 0, 5017},
      {kTerminalScreen, 1, 2, 5017 + 41 * 26},
      {kTerminalScreen, 49, 23, 54176},
      {kHostRow, 2, 3, 54217 + 51},
      {kCharacteristicString, 49, 0, 56397},
      {kCharacteristicLength, 0, 0, 56417},
      {kCharacteristicRow, 19, 0, 56437},
      {kCharacteristicColumn, 0, 0, 56438},
      {kCursorLocationIsSpecifiedBy, 0, 0, 56458},
      {kHostColumn, 49, 23, 57658},
  };
  for (const auto& c : cases) EXPECT_EQ(c.offset, c.field.OffsetOf(c.i, c.j)) << c.field.name;
  for (const FieldDef* f : ScreenPageFields()) EXPECT_EQ(f, FindField(f->name));
}

TEST(ScreenPageDefaults, ClearThePagesAndUnmapEveryLine) {
  auto doc = std::make_unique<Document>();
  doc->record.fill(0xEE);
  for (PageRecord& page : doc->pages) page.fill(0xEE);
  SetScreenPageDefaults(*doc);

  EXPECT_EQ(0u, ReadNumber(doc->record, kScreensLoaded));
  EXPECT_EQ(0u, ReadNumber(doc->record, kTotalPages));
  EXPECT_EQ(20u, ReadNumber(doc->record, kCharacteristicLength));
  EXPECT_EQ(0u, ReadNumber(doc->record, kCursorLocationIsSpecifiedBy));
  for (int p = 0; p < static_cast<int>(kPageCount); ++p) {
    EXPECT_EQ(0u, ReadNumber(doc->record, kReformatPageTo, p));
    for (int l = 0; l < kTerminalLinesPerPage; ++l) {
      auto text = FieldBytes(std::span<const std::uint8_t>(doc->record), kTerminalScreen, p, l);
      ASSERT_TRUE(std::ranges::all_of(text, [](std::uint8_t b) { return b == 0; }));
      ASSERT_EQ(255u, ReadNumber(doc->record, kHostRow, p, l));
      ASSERT_EQ(255u, ReadNumber(doc->record, kHostColumn, p, l));
    }
  }
  for (int j = 0; j < kCharacteristicCells; ++j) {
    EXPECT_EQ(0u, ReadNumber(doc->record, kCharacteristicRow, j));
    EXPECT_EQ(0u, ReadNumber(doc->record, kCharacteristicColumn, j));
  }
  for (const PageRecord& page : doc->pages) {
    EXPECT_TRUE(std::ranges::all_of(page, [](std::uint8_t b) { return b == 0; }));
  }
  EXPECT_EQ(0xEE, doc->record[4964]);   // the byte before the section
  EXPECT_EQ(0xEE, doc->record[57659]);  // the unused tail is not the section's
}

// A text filling its slot without a NUL (as a file may hold it) shows whole.
TEST(ScreenSummary, UnterminatedTexts) {
  auto doc = DefaultDocument(2);
  WriteNumber(doc->record, kTotalPages, 1);
  auto line = FieldBytes(std::span<std::uint8_t>(doc->record), kTerminalScreen, 0, 0);
  std::ranges::fill(line, 'x');  // no NUL within the slot
  const std::vector<SummaryNode> tree = BuildSummary(*doc);
  const SummaryNode& page = tree.back().children.at(0);
  EXPECT_EQ("Terminal Screen : " + std::string(41, 'x'), page.children.at(2).children.at(1).text);
}

TEST(TerminalScreenSizes, GiveCharactersAndLinesForBothFonts) {
  const struct {
    int font, index, chars, lines;
  } cases[] = {{0, 0, 20, 8},  {0, 2, 20, 24}, {0, 4, 40, 16}, {1, 0, 15, 4},
               {1, 2, 15, 12}, {1, 4, 30, 8},  {7, 1, 20, 16}};
  for (const auto& c : cases) {
    const TerminalScreenSize* size = FindTerminalScreenSize(c.font, c.index);
    ASSERT_NE(nullptr, size);
    EXPECT_EQ(c.chars, size->chars_per_line);
    EXPECT_EQ(c.lines, size->lines);
  }
  EXPECT_EQ(nullptr, FindTerminalScreenSize(0, 5));
  EXPECT_EQ(nullptr, FindTerminalScreenSize(1, -1));
}

}  // namespace
}  // namespace veltrix
