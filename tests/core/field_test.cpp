#include "settings/field.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "settings/document.h"
#include "settings/field_values.h"
#include "settings/screen/screen_pages.h"
#include "support/case_file.h"

namespace veltrix {
namespace {

// Fields of every kind, laid out in a small record of their own.
constexpr FieldDef kByte{.name = "Byte", .offset = 0, .max = 99};
constexpr FieldDef kWord{.name = "Word", .offset = 1, .type = FieldType::kU16, .max = 70000};
constexpr FieldDef kBits{
    .name = "Bits", .offset = 3, .type = FieldType::kBits, .bit_lo = 2, .bit_count = 3};
constexpr FieldDef kSplit{
    .name = "Split", .offset = 4, .type = FieldType::kSplitU16, .offset_hi = 9, .max = 600};
constexpr FieldDef kText{.name = "Text", .offset = 5, .width = 4, .type = FieldType::kText};
constexpr FieldDef kRaw{.name = "Raw", .offset = 10, .width = 3, .type = FieldType::kBytes};

TEST(Field, NumbersOfEveryWidthRoundTrip) {
  std::array<std::uint8_t, 16> record{};
  record[3] = 0b1110'0011;  // bits outside the field must survive
  WriteNumber(record, kWord, 0x1234);
  WriteNumber(record, kBits, 5);
  WriteNumber(record, kSplit, 0x0258);
  EXPECT_EQ(0x34, record[1]);
  EXPECT_EQ(0x12, record[2]);
  EXPECT_EQ(0b1111'0111, record[3]);
  EXPECT_EQ(0x58, record[4]);
  EXPECT_EQ(0x02, record[9]);
  EXPECT_EQ(0x1234u, ReadNumber(record, kWord));
  EXPECT_EQ(5u, ReadNumber(record, kBits));
  EXPECT_EQ(0x0258u, ReadNumber(record, kSplit));
}

TEST(Field, OutOfRangeIndicesReadZeroAndWriteNothing) {
  auto doc = std::make_unique<Document>();
  doc->record.fill(0x11);
  const SettingsRecord before = doc->record;
  WriteNumber(doc->record, kHostRow, 9, 50, 0);
  WriteNumber(doc->record, kHostRow, 9, 0, 24);
  WriteText(doc->record, kTerminalScreen, "x", -1, 0);
  EXPECT_TRUE(doc->record == before);
  EXPECT_EQ(0u, ReadNumber(doc->record, kHostRow, 0, 24));
  EXPECT_EQ("", ReadText(doc->record, kTerminalScreen, 50, 0));
}

TEST(Field, TextKeepsRoomForItsNul) {
  std::array<std::uint8_t, 16> record{};
  record.fill('#');
  WriteText(record, kText, "abcdef");
  EXPECT_EQ("abc", ReadText(record, kText));
  EXPECT_EQ(0, record[8]);
  EXPECT_EQ('#', record[9]);  // behind the field
}

// A table of tests/core/data/field_values.txt, its columns separated by "|".
std::vector<std::vector<std::string>> Table(const std::string& name) {
  auto rows = testing::CaseRows("field_values.txt", name, '|');
  EXPECT_FALSE(rows.empty()) << name;
  return rows;
}

TEST(FieldValues, LooksUpNamesWithIndices) {
  for (const auto& row : Table("lookups")) {
    const std::size_t elements = std::stoul(row[1]);
    const ElementLookup lookup = LookUpElement(row[0]);
    EXPECT_EQ(elements != 0, lookup.ok()) << row[0] << ": " << lookup.error;
    if (lookup.ok()) {
      EXPECT_EQ(elements, ElementsOf(lookup).size()) << row[0];
    }
  }
  const ElementLookup one = LookUpElement("TerminalScreen[4][7]");
  ASSERT_TRUE(one.single());
  EXPECT_EQ("TerminalScreen[4][7]", ElementName(ElementsOf(one).front()));
  EXPECT_EQ("ReformatPageTo[0]", ElementName(ElementsOf(LookUpElement("ReformatPageTo"))[0]));
}

TEST(FieldValues, StoresAndFormatsEveryKind) {
  const std::map<std::string, const FieldDef*> fields = {{"Byte", &kByte}, {"Word", &kWord},
                                                         {"Bits", &kBits}, {"Split", &kSplit},
                                                         {"Text", &kText}, {"Raw", &kRaw}};
  for (const auto& row : Table("values")) {
    const FieldDef& field = *fields.at(row[0]);
    const std::string where = row[0] + "=" + row[1];
    std::array<std::uint8_t, 16> record{};
    record.fill(0x5A);
    const std::array<std::uint8_t, 16> before = record;
    const FieldElement element{&field};
    const std::string refused = StoreElementValue(record, element, row[1]);
    if (row[2] != "refused") {
      EXPECT_EQ("", refused) << where;
      EXPECT_EQ(row[2], FormatElementValue(record, element)) << where;
    } else {
      EXPECT_NE(std::string::npos, refused.find(field.name)) << where << ": " << refused;
      EXPECT_TRUE(record == before) << where << " wrote something";
    }
  }
}

TEST(FieldValues, DiffListsFieldsLooseBytesAndPages) {
  auto a = std::make_unique<Document>();
  SetDefaults(*a, 1);
  auto b = std::make_unique<Document>(*a);
  EXPECT_TRUE(DiffDocuments(*a, *b).empty());

  WriteNumber(b->record, kTotalPages, 2);
  WriteText(b->record, kTerminalScreen, "Hi", 3, 4);
  b->record[10] = 9;  // no field declares bytes 6-24
  b->pages[2][500] = 1;
  // Same text, different bytes behind its NUL: shown as bytes.
  a->record[kTerminalScreen.OffsetOf(0, 0) + 5] = 0x41;
  auto hex = [](int zeros_before, const char* middle, int zeros_after) {
    std::string text;
    for (int k = 0; k < zeros_before; ++k) text += "00 ";
    text += middle;
    for (int k = 0; k < zeros_after; ++k) text += " 00";
    return text;
  };
  EXPECT_EQ((std::vector<std::string>{
                "TotalPages: 0 -> 2",
                "TerminalScreen[0][0]: " + hex(5, "41", 35) + " -> " + hex(0, "00", 40),
                "TerminalScreen[3][4]:  -> Hi",
                "byte 10: 0 -> 9",
                "page 3",
            }),
            DiffDocuments(*a, *b));
}

}  // namespace
}  // namespace veltrix
