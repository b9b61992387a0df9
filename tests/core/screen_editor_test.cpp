#include "capture/screen_editor.h"

#include <gtest/gtest.h>

#include <memory>

#include "capture/screen_file.h"
#include "settings/emulation/emulation_settings.h"
#include "settings/field.h"
#include "settings/screen/screen_pages.h"

namespace veltrix {
namespace {

// A document with n pages; page p's record starts with byte p + 1 and holds one field at row 5,
// column 10 + p.
std::unique_ptr<Document> WithPages(int n) {
  auto doc = std::make_unique<Document>();
  SetScreenPageDefaults(*doc);
  for (int p = 0; p < n; ++p) {
    doc->pages[p][0] = static_cast<std::uint8_t>(p + 1);
    doc->pages[p][kFieldEntriesOffset] = 1;
    doc->pages[p][kFieldEntriesOffset + 2] = static_cast<std::uint8_t>(10 + p);
    doc->pages[p][kFieldEntriesOffset + 3] = 5;
    WriteText(doc->record, kTerminalScreen, "page " + std::to_string(p + 1), p, 0);
  }
  WriteNumber(doc->record, kTotalPages, static_cast<std::uint32_t>(n));
  return doc;
}

TEST(ScreenEditor, DeletingMovesLaterPagesDownAndClearsTheLastSlot) {
  auto doc = WithPages(5);
  ScreenEditor editor(*doc);
  editor.Next();
  editor.Next();
  editor.DeleteCurrent();  // the third of five
  ScreenEditor::View v = editor.Show();
  EXPECT_EQ(v.total, 4);
  EXPECT_EQ(v.current, 2);
  EXPECT_EQ(doc->pages[2][0], 4);
  EXPECT_EQ(ReadText(doc->record, kTerminalScreen, 2, 0), "page 4");
  EXPECT_EQ(doc->pages[4], PageRecord{});
  EXPECT_EQ(ReadNumber(doc->record, kHostColumn, 4, 7), 1u);
  EXPECT_EQ(ReadNumber(doc->record, kHostRow, 4, 7), 0u);
  editor.First();
  editor.DeleteCurrent();
  v = editor.Show();
  EXPECT_EQ(v.current, 1);
  EXPECT_EQ(doc->pages[0][0], 2);
  EXPECT_FALSE(v.first || v.previous);
  EXPECT_TRUE(v.next && v.last && v.remove);
}

TEST(ScreenEditor, NoPagesShowsNothingToStepThrough) {
  auto doc = WithPages(0);
  const ScreenEditor::View v = ScreenEditor(*doc).Show();
  EXPECT_EQ(v.total, 0);
  EXPECT_EQ(v.current, 0);
  EXPECT_FALSE(v.first || v.previous || v.next || v.last || v.remove);
  EXPECT_TRUE(v.preview.empty());
}

// The line buttons page through sizes of more than eight lines; 4 and 8 lines never need them.
TEST(ScreenEditor, EightLinesAtATime) {
  auto doc = WithPages(1);
  WriteNumber(doc->record, kFontSize, 1);  // 15 x 4, 15 x 8, 15 x 12, 30 x 4, 30 x 8
  ScreenEditor editor(*doc);
  for (int size : {0, 1, 3, 4}) {
    editor.ChooseSize(size);
    const ScreenEditor::View v = editor.Show();
    EXPECT_FALSE(v.lines_back || v.lines_forward) << size;
  }
  editor.ChooseSize(2);
  ScreenEditor::View v = editor.Show();
  EXPECT_EQ(v.sizes[2], "15 characters * 12 lines");
  EXPECT_TRUE(v.lines_forward);
  EXPECT_FALSE(v.lines_back);
  editor.LinesForward();
  v = editor.Show();
  EXPECT_EQ(v.lines[0].number, 9);
  EXPECT_TRUE(v.lines[3].enabled);
  EXPECT_FALSE(v.lines[4].enabled);  // line 13
  EXPECT_FALSE(v.lines_forward);
  EXPECT_TRUE(v.lines_back);
}

TEST(ScreenEditor, LinesTakeAFieldOrNilAndTextsCutToTheLine) {
  auto doc = WithPages(2);
  ScreenEditor editor(*doc);
  editor.Next();
  editor.ChooseField(1, 1);
  ScreenEditor::View v = editor.Show();
  EXPECT_EQ(v.field_choices, (std::vector<std::string>{"nil", "1"}));
  EXPECT_EQ(v.lines[1].field_choice, 1);
  EXPECT_EQ(v.lines[1].x, "11");
  EXPECT_EQ(v.lines[1].y, "5");
  EXPECT_EQ(ReadNumber(doc->record, kHostColumn, 1, 1), 11u);
  editor.ChooseField(1, 0);
  EXPECT_EQ(ReadNumber(doc->record, kHostColumn, 1, 1), 255u);
  EXPECT_EQ(ReadNumber(doc->record, kHostRow, 1, 1), 255u);
  EXPECT_TRUE(editor.Show().lines[1].x.empty());
  editor.EditText(2, "abcdefghijklmnopqrstuvwxyz");  // 20 characters a line: 19 kept
  EXPECT_EQ(ReadText(doc->record, kTerminalScreen, 1, 2), "abcdefghijklmnopqrs");
}

TEST(ScreenEditor, OkClearsWhatLiesBehindEachLineText) {
  auto doc = WithPages(1);
  auto bytes = FieldBytes(std::span<std::uint8_t>(doc->record), kTerminalScreen, 0, 0);
  bytes[20] = 'x';
  auto last = FieldBytes(std::span<std::uint8_t>(doc->record), kTerminalScreen, 0, 23);
  last[20] = 'y';
  ScreenEditor(*doc).PadLineTexts(24);
  EXPECT_EQ(bytes[20], 0);
  EXPECT_EQ(last[20], 'y');  // the 24th slot is past the host screen's first 23 rows
}

}  // namespace
}  // namespace veltrix
