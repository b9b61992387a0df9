#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/case_file.h"
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

std::vector<std::vector<std::string>> Rows(const std::string& table) {
  auto rows = testing::CaseRows("presentation_space.txt", table);
  EXPECT_FALSE(rows.empty()) << table;
  return rows;
}

TEST(CodeTableTest, HostAndDisplayCodesCorrespond) {
  for (const auto& row : Rows("codes")) {
    const int language = std::stoi(row[0]);
    const auto host = static_cast<std::uint8_t>(std::stoul(row[1], nullptr, 16));
    const auto display = static_cast<std::uint8_t>(std::stoul(row[2], nullptr, 16));
    EXPECT_EQ(HostToDisplay(language, host), display) << row[1];
    EXPECT_EQ(HostToDisplay(language, DisplayToHost(language, display)), display) << row[2];
  }
}

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

TEST(FieldTableTest, FieldAtFollowsTheRows) {
  for (const auto& row : Rows("field_at")) {
    std::vector<int> n;
    for (const std::string& word : row) n.push_back(std::stoi(word));
    EXPECT_EQ(FieldTable::FieldAt(Field(n[0], n[1], n[2]), n[4], n[3], 80), n[5] == 1)
        << n[0] << "," << n[1] << "+" << n[2] << " at " << n[3] << "," << n[4];
  }
}

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
