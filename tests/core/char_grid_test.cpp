#include "settings/grid/char_grid.h"

#include <gtest/gtest.h>

#include <vector>

namespace veltrix {
namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(CharGrid, NamesAndDisplayForms) {
  struct Case {
    GridMode mode;
    std::uint8_t byte;
    std::string name;
  } cases[] = {
      {GridMode::kKeyNames, 0x00, ""},    {GridMode::kKeyNames, 0x0D, "Enter"},
      {GridMode::kKeyNames, 0x1A, "F12"}, {GridMode::kKeyNames, 0x1C, "Exec"},
      {GridMode::kKeyNames, 0x1D, ""},    {GridMode::kKeyNames, 0x20, "SP"},
      {GridMode::kKeyNames, 0x41, "A"},   {GridMode::kKeyNames, 0x7F, "DEL"},
      {GridMode::kKeyNames, 0xC8, "200"}, {GridMode::kHex, 0x0D, "0D"},
      {GridMode::kHex, 0xFF, "FF"},       {GridMode::kKeyCodes, 0x1B, "ESC"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.name, GridCellName(c.mode, c.byte)) << int(c.byte);
  const Bytes bytes = {0x1B, 0x4F, 0x00, 0x50};
  EXPECT_EQ("ESC O ", GridDisplayText(GridMode::kKeyCodes, bytes));
  EXPECT_EQ("1B 4F 00 50 ", GridDisplayText(GridMode::kHex, bytes));
  EXPECT_EQ("00 ", GridDisplayText(GridMode::kHex, Bytes{0}));
  EXPECT_EQ(8, GridColumns(GridMode::kKeyCodes));
  EXPECT_EQ("70", GridColumnHeader(7));
  EXPECT_EQ("0F", GridRowHeader(15));
}

// Clicks count the header column and row: column 5, row 2 is the cell of 0x41.
TEST(CharGrid, ClicksAppendUpToTheLimit) {
  GridEditor names(GridMode::kKeyNames, 9, Bytes{0x41, 0x00, 0x42});
  EXPECT_EQ(Bytes{0x41}, names.bytes());  // the display stops at the zero
  EXPECT_EQ(GridEditor::Pick::kAppended, names.Click(5, 2));
  EXPECT_EQ("A A ", names.text());
  EXPECT_EQ(4, names.selected_column());
  EXPECT_EQ(1, names.selected_row());
  for (const auto& [column, row] : {std::pair{0, 3}, {3, 0}, {17, 3}, {3, 17}, {-1, 2}}) {
    EXPECT_EQ(GridEditor::Pick::kIgnored, names.Click(column, row));
  }
  EXPECT_EQ("A A ", names.text());

  GridEditor hex(GridMode::kHex, 1, Bytes{});
  hex.Click(5, 2);
  EXPECT_EQ("41 ", hex.text());
  GridEditor key_code(GridMode::kKeyCodes, 5, Bytes{});
  EXPECT_EQ(GridEditor::Pick::kIgnored, key_code.Click(9, 1));  // 8 columns only

  // A 13-byte WEP key starts full, zeros and all: every click is refused until Clear.
  GridEditor wep(GridMode::kHex, 13, Bytes(13, 0));
  EXPECT_EQ(13u, wep.bytes().size());
  EXPECT_EQ(GridEditor::Pick::kTooMany, wep.Click(2, 2));
  EXPECT_EQ(13u, wep.bytes().size());
  wep.Clear();
  for (int i = 0; i < 3; ++i) wep.Click(2, 2);
  Bytes expected(13, 0);
  std::fill_n(expected.begin(), 3, 0x11);
  EXPECT_EQ(expected, wep.Result());
  EXPECT_EQ("00 00 00 00 00 00 00 00 00 00 00 00 00 ", wep.start_text());
}

TEST(CharGrid, ArrowKeysStayOnTheChart) {
  GridEditor editor(GridMode::kKeyCodes, 5, Bytes{});
  editor.MoveSelection(-1, -1);
  EXPECT_EQ(std::pair(0, 0), std::pair(editor.selected_column(), editor.selected_row()));
  editor.MoveSelection(20, 20);
  EXPECT_EQ(std::pair(7, 15), std::pair(editor.selected_column(), editor.selected_row()));
  editor.PickCell(editor.selected_column(), editor.selected_row());
  EXPECT_EQ(Bytes{0x7F}, editor.bytes());
}

}  // namespace
}  // namespace veltrix
