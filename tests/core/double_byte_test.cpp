#include "tn5250/double_byte.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tn5250/double_byte_tables.h"

namespace veltrix {
namespace {

struct TableFacts {
  const char* language;
  int emulation_type;
  std::size_t entries;
  std::uint16_t first_host, last_host;
  std::uint16_t blank_pc;  // display code of 0x4040, the double-byte blank
  std::uint16_t pc_4141;
  std::uint16_t last_pc;
  std::uint8_t min_lead;  // lowest PC lead byte the language uses
};

class DoubleByteTableTest : public ::testing::TestWithParam<TableFacts> {};

std::uint16_t Convert(int emulation_type, std::uint16_t pair, bool* found) {
  std::uint8_t first = pair >> 8;
  std::uint8_t second = pair & 0xFF;
  *found = ConvertDoubleByte(emulation_type, first, second);
  return static_cast<std::uint16_t>((first << 8) | second);
}

TEST_P(DoubleByteTableTest, CountRangeAndOrder) {
  const TableFacts& f = GetParam();
  const auto entries = double_byte_tables::ForEmulationType(f.emulation_type).entries;
  ASSERT_EQ(entries.size(), f.entries);
  EXPECT_EQ(entries.front() >> 16, f.first_host);
  EXPECT_EQ(entries.back() >> 16, f.last_host);
  for (std::size_t i = 1; i < entries.size(); ++i) {
    ASSERT_LT(entries[i - 1] >> 16, entries[i] >> 16) << "entry " << i << " out of order";
  }
  for (const std::uint32_t e : entries) {
    ASSERT_GE((e >> 8) & 0xFF, f.min_lead) << std::hex << "host " << (e >> 16);
  }
}

TEST_P(DoubleByteTableTest, TellingRows) {
  const TableFacts& f = GetParam();
  bool found = false;
  EXPECT_EQ(Convert(f.emulation_type, 0x4040, &found), f.blank_pc);
  EXPECT_TRUE(found);
  EXPECT_EQ(Convert(f.emulation_type, 0x4141, &found), f.pc_4141);
  EXPECT_TRUE(found);
  EXPECT_EQ(Convert(f.emulation_type, f.last_host, &found), f.last_pc);
  EXPECT_TRUE(found);
}

TEST_P(DoubleByteTableTest, PairsOutsideTheTableAreLeftAlone) {
  const TableFacts& f = GetParam();
  for (const std::uint16_t pair :
       {std::uint16_t{0x0000}, std::uint16_t{0x403F}, static_cast<std::uint16_t>(f.last_host + 1),
        std::uint16_t{0xFFFF}}) {
    bool found = true;
    EXPECT_EQ(Convert(f.emulation_type, pair, &found), pair) << std::hex << pair;
    EXPECT_FALSE(found) << std::hex << pair;
  }
}

// The binary search must find exactly the pairs a linear walk finds, for every possible pair.
TEST_P(DoubleByteTableTest, SearchAgreesWithLinearWalkOverAllPairs) {
  const TableFacts& f = GetParam();
  const auto entries = double_byte_tables::ForEmulationType(f.emulation_type).entries;
  std::size_t next = 0;
  for (std::uint32_t pair = 0; pair <= 0xFFFF; ++pair) {
    bool found = false;
    const std::uint16_t got = Convert(f.emulation_type, static_cast<std::uint16_t>(pair), &found);
    if (next < entries.size() && entries[next] >> 16 == pair) {
      ASSERT_TRUE(found) << std::hex << pair;
      ASSERT_EQ(got, entries[next] & 0xFFFF) << std::hex << pair;
      ++next;
    } else {
      ASSERT_FALSE(found) << std::hex << pair;
      ASSERT_EQ(got, pair);
    }
  }
}

TEST_P(DoubleByteTableTest, EveryDisplayCodeHasACharacter) {
  const TableFacts& f = GetParam();
  for (const std::uint32_t e : double_byte_tables::ForEmulationType(f.emulation_type).entries) {
    ASSERT_NE(DoubleByteToUnicode(f.emulation_type, (e >> 8) & 0xFF, e & 0xFF), 0u)
        << std::hex << e;
  }
  // The double-byte blank is the ideographic space in every language.
  EXPECT_EQ(DoubleByteToUnicode(f.emulation_type, f.blank_pc >> 8, f.blank_pc & 0xFF), U'\u3000');
}

INSTANTIATE_TEST_SUITE_P(
    Languages, DoubleByteTableTest,
    ::testing::Values(
        TableFacts{"TraditionalChinese", 1, 14061, 0x4040, 0x91C7, 0xA140, 0xA35C, 0xF288, 0x80},
        TableFacts{"SimplifiedChinese", 2, 7476, 0x4040, 0x6C9F, 0xA1A1, 0xA6C1, 0xF7FE, 0x8C},
        TableFacts{"Japanese", 4, 7265, 0x4040, 0x6885, 0x8140, 0x83BF, 0xEAA4, 0x80},
        TableFacts{"Korean", 3, 17048, 0x4040, 0xD3BD, 0xA1A1, 0xA1A2, 0xC652, 0x81}),
    [](const auto& info) { return std::string(info.param.language); });

TEST(DoubleByteTest, BlankWithoutDoubleByteLanguageIsNotConverted) {
  for (const int type : {0, 5, 6, -1, 7, 255}) {
    std::uint8_t first = 0x40, second = 0x40;
    EXPECT_FALSE(ConvertDoubleByte(type, first, second)) << type;
    EXPECT_EQ(first, 0x40);
    EXPECT_EQ(second, 0x40);
    EXPECT_EQ(DoubleByteToUnicode(type, 0x81, 0x40), 0u) << type;
  }
}

TEST(DoubleByteTest, TraditionalChineseEuro) {
  std::uint8_t first = 0x47, second = 0xA2;
  ASSERT_TRUE(ConvertDoubleByte(1, first, second));
  EXPECT_EQ(first, 0xA3);
  EXPECT_EQ(second, 0xE1);
  EXPECT_EQ(DoubleByteToUnicode(1, 0xA3, 0xE1), U'\u20AC');
}

TEST(DoubleByteTest, UnknownDisplayCodeHasNoCharacter) {
  EXPECT_EQ(DoubleByteToUnicode(4, 0x00, 0x00), 0u);
  EXPECT_EQ(DoubleByteToUnicode(4, 0xFF, 0xFF), 0u);
  EXPECT_EQ(DoubleByteToUnicode(2, 0x81, 0x40), 0u);  // below the GB lead bytes in use
}

// Typed text needs the way back: every character of a language's table types as a PC code that
// shows that character, and every PC code goes back to a host pair that converts to it.
TEST(DoubleByteTest, EveryTableConvertsBackAndTypes) {
  for (int language = 1; language <= 4; ++language) {
    const auto table = double_byte_tables::ForEmulationType(language);
    int checked = 0;
    for (std::size_t i = 0; i < table.pc_codes.size(); ++i) {
      const char32_t c = table.code_points[i];
      std::uint8_t first = 0, second = 0;
      ASSERT_TRUE(UnicodeToDoubleByte(language, c, first, second))
          << language << " " << static_cast<unsigned>(c);
      EXPECT_EQ(DoubleByteToUnicode(language, first, second), c);
      std::uint8_t host1 = static_cast<std::uint8_t>(table.pc_codes[i] >> 8);
      std::uint8_t host2 = static_cast<std::uint8_t>(table.pc_codes[i]);
      ASSERT_TRUE(ConvertDoubleByteToHost(language, host1, host2));
      ASSERT_TRUE(ConvertDoubleByte(language, host1, host2));
      EXPECT_EQ((host1 << 8) | host2, table.pc_codes[i]);
      ++checked;
    }
    EXPECT_GT(checked, 1000) << language;
  }
  std::uint8_t first = 0, second = 0;
  EXPECT_FALSE(UnicodeToDoubleByte(0, U'\u4E2D', first, second));  // single-byte language
  EXPECT_EQ(2, TypedCodeOf(1, U'\u4E2D').size);
  EXPECT_EQ(1, TypedCodeOf(1, U'A').size);
  EXPECT_EQ(0, TypedCodeOf(0, U'\u4E2D').size);
}

TEST(DoubleByteTest, CodePointToUtf8) {
  struct Case {
    char32_t code_point;
    std::string utf8;
  };
  for (const Case& c : {Case{U'A', "A"}, Case{0xE9, "\xC3\xA9"}, Case{0x3000, "\xE3\x80\x80"},
                        Case{0x20AC, "\xE2\x82\xAC"}, Case{0xE000, "\xEE\x80\x80"},
                        Case{0x2A6A5, "\xF0\xAA\x9A\xA5"}, Case{0xD800, ""}, Case{0x110000, ""}}) {
    EXPECT_EQ(CodePointToUtf8(c.code_point), c.utf8)
        << std::hex << static_cast<unsigned>(c.code_point);
  }
}

}  // namespace
}  // namespace veltrix
