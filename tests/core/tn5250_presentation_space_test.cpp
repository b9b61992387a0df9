#include <gtest/gtest.h>

#include <string>

#include "tn5250/code_tables.h"
#include "tn5250/field_table.h"
#include "tn5250/presentation_space.h"

namespace veltrix {
namespace {

TEST(PresentationSpaceTest, AdvanceWrapsToTheNextRowAndStopsPastTheScreen) {
  PresentationSpace ps;
  EXPECT_EQ(ps.Advance({3, 79}), (CellAddress{4, 0}));
  EXPECT_EQ(ps.Retreat({4, 0}), (CellAddress{3, 79}));
  // Past the last cell the address stays one cell beyond the screen.
  EXPECT_EQ(ps.Advance({23, 79}), (CellAddress{24, 0}));
  EXPECT_EQ(ps.Advance({24, 0}), (CellAddress{24, 0}));
  EXPECT_EQ(ps.Retreat({0, 0}), (CellAddress{-1, 79}));
  EXPECT_EQ(ps.Retreat({-1, 79}), (CellAddress{-1, 79}));
  EXPECT_EQ(ps.AddressDistance(5, 2, 70, 1), 15);
}

TEST(PresentationSpaceTest, WritesOutsideTheScreenAreDropped) {
  PresentationSpace ps;
  ps.PutCell(80, 0, 'X');
  ps.PutCell(-1, 5, 'X');
  ps.PutCell(0, 24, 'X');
  ps.PutCell(0, -1, 'X');
  for (std::uint8_t c : ps.CharacterPlane()) ASSERT_EQ(c, 0);
  ps.SetCursor(23, 79);
  ps.WriteAtCursor('A');
  ps.WriteAtCursor('B');  // off the screen
  EXPECT_EQ(ps.Character(23, 79), 'A');
  EXPECT_EQ(ps.CursorRow(), 24);
}

TEST(PresentationSpaceTest, EraseCellClearsTheSelectedParts) {
  PresentationSpace ps;
  ps.SetCell(1, 1, 'A', 0xFD);
  ps.EraseCell(1, 1, false, true, false);
  EXPECT_EQ(ps.Attribute(1, 1), 0x1D);
  ps.EraseCell(1, 1, true, false, true);
  EXPECT_EQ(ps.Character(1, 1), 0);
  EXPECT_EQ(ps.Attribute(1, 1), 0);
}

TEST(PresentationSpaceTest, ErrorRowIsSavedClearedAndRestored) {
  PresentationSpace ps;
  ps.SetCell(3, 23, 'Q', 0);
  ps.SaveErrorRow();
  ps.ClearErrorRow();
  EXPECT_EQ(ps.Character(23, 3), 0);
  ps.RestoreErrorRow();
  EXPECT_EQ(ps.Character(23, 3), 'Q');
}

TEST(PresentationSpaceTest, ErrorRowIsTakenAsItStandsWithinThePlanes) {
  PresentationSpace ps;
  for (const int row : {0, 5, 23, 24, 25, kPlaneRows - 1}) {
    ps.SetErrorRow(row);
    EXPECT_EQ(ps.ErrorRow(), row);
  }
  // Rows below the screen still take and give back the saved row.
  ps.SaveErrorRow();
  ps.ClearErrorRow();
  ps.RestoreErrorRow();
  ps.SetErrorRow(4);
  for (const int row : {kPlaneRows, 40, 255}) {
    ps.SetErrorRow(row);
    EXPECT_EQ(ps.ErrorRow(), 4) << row;
  }
}

struct CodeCase {
  int language;
  std::uint8_t host;
  std::uint8_t display;
};

class CodeTableTest : public ::testing::TestWithParam<CodeCase> {};

TEST_P(CodeTableTest, HostAndDisplayCodesCorrespond) {
  const CodeCase c = GetParam();
  EXPECT_EQ(HostToDisplay(c.language, c.host), c.display);
  EXPECT_EQ(HostToDisplay(c.language, DisplayToHost(c.language, c.display)), c.display);
}

INSTANTIATE_TEST_SUITE_P(Tables, CodeTableTest,
                         ::testing::Values(CodeCase{0, 0xC1, 'A'}, CodeCase{0, 0x81, 'a'},
                                           CodeCase{0, 0xF0, '0'}, CodeCase{0, 0x4A, '['},
                                           CodeCase{0, 0x5A, ']'}, CodeCase{3, 0x7C, '@'},
                                           CodeCase{5, 0x41, 0xC1}, CodeCase{5, 0xB1, 0xDC},
                                           CodeCase{6, 0x7C, 0xE0}, CodeCase{6, 0xC0, 0xE9},
                                           CodeCase{4, 0x81, 0xB1}, CodeCase{4, 0x4A, 0xA0}));

TEST(CodeTableTest, SpecialBytes) {
  for (int language = 0; language <= 6; ++language) {
    EXPECT_EQ(HostToDisplay(language, 0x00), 0x00);
    EXPECT_EQ(HostToDisplay(language, 0x1C), 0x1C);
  }
  EXPECT_EQ(DisplayToHost(0, 0x01), 0xFF);  // in no entry 64..254
  EXPECT_EQ(DisplayToHost(0, ' '), 0x40);   // the first of the two blanks
  EXPECT_EQ(AttributeToDisplay(0x20), 0x40);
  EXPECT_EQ(AttributeToDisplay(0x3E), 0x24);
  EXPECT_EQ(AttributeToDisplay(0x1F), 0);
  EXPECT_EQ(AttributeToDisplay(0x40), 0);
}

FieldRecord Field(int row, int column, int length) {
  FieldRecord f;
  f.row = static_cast<std::uint8_t>(row);
  f.column = static_cast<std::uint8_t>(column);
  f.length = length;
  f.format1 = 0x40;
  return f;
}

struct FieldAtCase {
  const char* name;
  int row, column, length;  // the field
  int at_row, at_column;    // the cell asked about
  bool inside;
};

class FieldAtTest : public ::testing::TestWithParam<FieldAtCase> {};

TEST_P(FieldAtTest, FollowsTheRows) {
  const FieldAtCase& c = GetParam();
  EXPECT_EQ(FieldTable::FieldAt(Field(c.row, c.column, c.length), c.at_column, c.at_row, 80),
            c.inside);
}

INSTANTIATE_TEST_SUITE_P(
    Cells, FieldAtTest,
    ::testing::Values(
        // Row 5 columns 70-79, then row 6 columns 0-9.
        FieldAtCase{"WrapFirstCell", 5, 70, 20, 5, 70, true},
        FieldAtCase{"WrapEndOfFirstRow", 5, 70, 20, 5, 79, true},
        FieldAtCase{"WrapLastCell", 5, 70, 20, 6, 9, true},
        FieldAtCase{"WrapAfterLastCell", 5, 70, 20, 6, 10, false},
        FieldAtCase{"WrapLeftOfStart", 5, 70, 20, 5, 69, false},
        FieldAtCase{"WrapRowBefore", 5, 70, 20, 4, 75, false},
        // Rows 2 to 4, ending at row 4 column 49.
        FieldAtCase{"SpansMiddleRow", 2, 10, 200, 3, 0, true},
        FieldAtCase{"SpansLastCell", 2, 10, 200, 4, 49, true},
        FieldAtCase{"SpansAfterLastCell", 2, 10, 200, 4, 50, false},
        FieldAtCase{"SpansLeftOfStart", 2, 10, 200, 2, 9, false},
        // A field on one row also holds the cells left of its first cell on that row.
        FieldAtCase{"OneRowFirstCell", 3, 20, 5, 3, 20, true},
        FieldAtCase{"OneRowLastCell", 3, 20, 5, 3, 24, true},
        FieldAtCase{"OneRowAfterLastCell", 3, 20, 5, 3, 25, false},
        FieldAtCase{"OneRowAttributeCell", 3, 20, 5, 3, 19, true},
        FieldAtCase{"OneRowColumnZero", 3, 20, 5, 3, 0, true},
        FieldAtCase{"OneRowRowAfter", 3, 20, 5, 4, 0, false},
        FieldAtCase{"OneRowRowBefore", 3, 20, 5, 2, 22, false},
        // Ending on the last column it reaches the next row (with no cell there), so the cells
        // left of its first cell are outside.
        FieldAtCase{"ToRowEndLeftOfStart", 1, 70, 10, 1, 3, false},
        FieldAtCase{"ToRowEndLastCell", 1, 70, 10, 1, 79, true},
        FieldAtCase{"ToRowEndNextRow", 1, 70, 10, 2, 0, false},
        // Ending exactly at a row's end: the next row holds no cell of it.
        FieldAtCase{"FullRowsNextRow", 1, 0, 160, 3, 0, false},
        FieldAtCase{"FullRowsLastCell", 1, 0, 160, 2, 79, true}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(FieldTableTest, NoFieldHoldsNothing) {
  EXPECT_FALSE(FieldTable::FieldAt(FieldRecord{}, 0, 0, 80));
}

TEST(FieldTableTest, ListOperationsAndPoolLimit) {
  FieldTable t;
  EXPECT_TRUE(t.TableIsEmpty());
  EXPECT_FALSE(t.FirstField());
  EXPECT_FALSE(t.NextField());
  for (int i = 0; i < kFieldPoolSize; ++i) {
    FieldRecord f = Field(i / 10, (i % 10) * 8, 4);
    f.number = static_cast<std::uint8_t>(i + 1);
    ASSERT_TRUE(t.AppendField(f));
  }
  EXPECT_FALSE(t.AppendField(Field(23, 0, 4)));
  EXPECT_EQ(t.Count(), kFieldPoolSize);
  ASSERT_TRUE(t.FirstField());
  EXPECT_EQ(t.ReadField().number, 1);
  EXPECT_FALSE(t.PreviousField());
  ASSERT_TRUE(t.NextField());
  EXPECT_EQ(t.ReadField().number, 2);
  ASSERT_TRUE(t.LastField());
  EXPECT_TRUE(t.AtLastField());
  EXPECT_FALSE(t.NextField());
  // Links: pool index + 1 of the neighbours, 0 at the ends.
  EXPECT_EQ(t.Records()[0].previous, 0u);
  EXPECT_EQ(t.Records()[0].next, 2u);
  EXPECT_EQ(t.Records()[kFieldPoolSize - 1].next, 0u);
  // Writing keeps the table's links whatever the copy holds.
  FieldRecord changed = t.ReadField();
  changed.next = 99;
  changed.format1 |= kFfwModified;
  t.WriteField(changed);
  EXPECT_EQ(t.ReadField().next, 0u);
  EXPECT_TRUE(t.ReadField().IsModified());
  t.Clear();
  EXPECT_TRUE(t.TableIsEmpty());
  EXPECT_FALSE(t.Current().IsField());
}

TEST(FieldTableTest, SerializedRecordLayout) {
  FieldRecord f = Field(3, 7, 0x01020304);
  f.number = 9;
  f.resequence = 2;
  f.format2 = 0x05;
  f.control1 = 0x80;
  f.control2 = 0x02;
  f.attribute = 0x44;
  f.next = 0x0A;
  f.previous = 0x08;
  const auto bytes = f.Serialize();
  const std::array<std::uint8_t, 24> want = {9, 2, 7, 3, 0x40, 0x05, 0x80, 0x02, 0x44, 0, 0, 0,
                                             4, 3, 2, 1, 0x0A, 0,    0,    0,    0x08, 0, 0, 0};
  EXPECT_EQ(bytes, want);
}

}  // namespace
}  // namespace veltrix
