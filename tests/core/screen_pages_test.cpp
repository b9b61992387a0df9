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

// The Screen section of the document's summary as text.
std::string ScreenSummary(const Document& doc) {
  const std::vector<SummaryNode> tree = BuildSummary(doc);
  return tree.empty() ? std::string() : RenderSummaryText({tree.back()});
}

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

TEST(ScreenSummary, ListsPagesLinesAndMappedFields) {
  auto doc = DefaultDocument(1);
  WriteNumber(doc->record, kTotalPages, 3);
  // Page 1: 20 x 8, line 2 shows a field, line 3 has a field but no text.
  WriteText(doc->record, kTerminalScreen, "ABC", 0, 1);
  WriteNumber(doc->record, kHostRow, 5, 0, 1);
  WriteNumber(doc->record, kHostColumn, 10, 0, 1);
  WriteNumber(doc->record, kHostRow, 7, 0, 2);
  WriteNumber(doc->record, kHostColumn, 2, 0, 2);
  // Page 2: 40 x 16, a text without a field on the last line.
  WriteNumber(doc->record, kReformatPageTo, 4, 1);
  WriteText(doc->record, kTerminalScreen, "Qty:", 1, 15);
  // Page 3: a size index no list knows lists all 24 lines.
  WriteNumber(doc->record, kReformatPageTo, 9, 2);
  WriteText(doc->record, kTerminalScreen, "last", 2, 23);
  EXPECT_TRUE(testing::MatchesGolden(ScreenSummary(*doc), "summary/screen_pages.txt"));
}

TEST(ScreenSummary, CursorRuleAndUnterminatedTexts) {
  auto doc = DefaultDocument(2);
  WriteNumber(doc->record, kTotalPages, 1);
  WriteNumber(doc->record, kCursorLocationIsSpecifiedBy, 1);
  auto line = FieldBytes(std::span<std::uint8_t>(doc->record), kTerminalScreen, 0, 0);
  std::ranges::fill(line, 'x');  // no NUL within the slot
  const std::vector<SummaryNode> tree = BuildSummary(*doc);
  const SummaryNode& page = tree.back().children.at(0);
  EXPECT_EQ("Cursor location is specified by : Host row and column", page.children.at(1).text);
  EXPECT_EQ("Terminal Screen : " + std::string(41, 'x'), page.children.at(2).children.at(1).text);
}

TEST(ScreenSummary, ListsAtMostFiftyPages) {
  auto doc = DefaultDocument(1);
  WriteNumber(doc->record, kTotalPages, 200);
  const std::vector<SummaryNode> tree = BuildSummary(*doc);
  ASSERT_EQ(50u, tree.back().children.size());
  EXPECT_EQ("Page 50", tree.back().children.back().text);
}

TEST(ScreenSummary, LargeFontOffersTheOtherSizes) {
  const FieldDef* font_size = FindField("FontSize");
  ASSERT_NE(nullptr, font_size);
  auto doc = DefaultDocument(1);
  WriteNumber(doc->record, *font_size, 1);
  WriteNumber(doc->record, kTotalPages, 1);
  WriteNumber(doc->record, kReformatPageTo, 2, 0);
  const std::vector<SummaryNode> summary = BuildSummary(*doc);
  const SummaryNode& page = summary.back().children.at(0);
  EXPECT_EQ("Reformat page  1 to 15 characters * 12 lines", page.children.at(0).text);
  EXPECT_EQ(2u + 12u, page.children.size());
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
