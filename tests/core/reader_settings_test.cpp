#include "settings/reader/reader_settings.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "settings/field_registry.h"
#include "settings/reader/beeper_sequence.h"
#include "settings/reader/linear_fields.h"
#include "settings/reader/reader_record_fields.h"
#include "settings/reader/two_d_fields.h"
#include "settings/reader/working_block.h"

namespace veltrix {
namespace {

// "9B C9 00" -> bytes; "x" stands for a byte the reader section must not touch.
std::vector<int> Hex(const std::string& text) {
  std::vector<int> bytes;
  std::istringstream in(text);
  std::string word;
  while (in >> word) bytes.push_back(word == "x" ? -1 : std::stoi(word, nullptr, 16));
  return bytes;
}

std::string Dump(std::span<const std::uint8_t> bytes) {
  std::string out;
  char pair[4];
  for (std::uint8_t b : bytes) {
    std::snprintf(pair, sizeof pair, "%02X ", b);
    out += pair;
  }
  return out;
}

void ExpectBytes(std::span<const std::uint8_t> record, std::size_t offset, const std::string& hex,
                 const std::string& what) {
  const std::vector<int> want = Hex(hex);
  ASSERT_LE(offset + want.size(), record.size());
  for (std::size_t i = 0; i < want.size(); ++i) {
    if (want[i] < 0) continue;
    EXPECT_EQ(want[i], record[offset + i])
        << what << ": byte " << offset + i << " in " << Dump(record.subspan(offset, want.size()));
  }
}

// Default images of the reader section after a new document.
const std::string kLinearDefaults =
    "9B C9 00 3F 80 2D 54 80 00 19 3D 00 FF 01 FE 01 FF 01 FF 01 66 03 03";
const std::string kTwoDDefaults =
    "D8 57 80 06 E0 83 02 37 60 04 37 18 04 37 84 0E 00 20 0C 00 18 05 37 0C 04 37 FF 80 E0 9C 39 "
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00";
// 3713-3773: prefix, suffix, auto enter, leading code, 3747/3748, partial code, start, maximum,
// good beep, scan control, 3754-3771, switch key, EAN128 key code.
const std::string kAdvancedDefaults =
    "00 00 00 00 00 00 00 00 00 00 00 "
    "00 00 00 00 00 00 00 00 00 00 00 "
    "01 00 00 00 00 00 00 00 00 00 00 00 "
    "00 01 00 01 32 01 00 "
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";
// 58759-58770: RFID read UID, read data, delimiter flag, start, max len, delimiter, delay (its high
// byte left alone), working mode, reading mode.
const std::string kRfidDefaults = "01 00 00 00 00 00 80 2C x 04 01 01";
const std::string kBeeperDefaults =
    "1E 07 00 05 1E 07 00 00 00 00 0E 05 00 00 00 00 00 00 00 00 00 00";

TEST(ReaderDefaults, ResetLeavesReaderTypeSwitchKeyAndRfidControlAlone) {
  auto doc = std::make_unique<Document>();
  doc->record.fill(0xAA);
  doc->reader_block1.fill(0xAA);
  doc->reader_block2.fill(0xAA);
  SetReaderDefaults(*doc);

  ExpectBytes(doc->reader_block2, 0, kLinearDefaults, "working block 2");
  ExpectBytes(doc->reader_block1, 0, kTwoDDefaults, "working block 1");
  ExpectBytes(doc->record, 3690, kLinearDefaults, "record 3690");
  ExpectBytes(doc->record, 3713, kAdvancedDefaults, "record 3713");
  ExpectBytes(doc->record, 3772, "AA 00 AA AA", "switch key, EAN128 key code, reader type, 3775");
  ExpectBytes(doc->record, 3689, "AA", "byte before the section");
  ExpectBytes(doc->record, 58659, kTwoDDefaults + " AA", "record 58659");
  ExpectBytes(doc->record, 58759, kRfidDefaults + " AA", "RFID");
  ExpectBytes(doc->record, 58767, "AA", "reread delay high byte");
  ExpectBytes(doc->record, 58859, kBeeperDefaults + " AA", "beeper and vibrator");
  ExpectBytes(doc->record, 58758, "AA", "byte before the RFID fields");
}

struct ConversionCase {
  const char* name;
  std::uint8_t byte_3763;
  std::uint8_t byte_3753_before;
  std::uint8_t want_3753;
};

class PreviousLayoutConversion : public ::testing::TestWithParam<ConversionCase> {};

TEST_P(PreviousLayoutConversion, MovesTheScanControlFlagAndClearsTheOldBytes) {
  auto doc = std::make_unique<Document>();
  doc->record.fill(0x55);
  doc->record[3753] = GetParam().byte_3753_before;
  doc->record[3763] = GetParam().byte_3763;
  ConvertPreviousReaderLayout(*doc);
  EXPECT_EQ(GetParam().want_3753, doc->record[3753]);
  for (std::size_t at = 3754; at <= 3771; ++at) EXPECT_EQ(0, doc->record[at]) << at;
  ExpectBytes(doc->record, 3752, "55", "good beep");
  ExpectBytes(doc->record, 3772, "55", "switch key");
}

INSTANTIATE_TEST_SUITE_P(Cases, PreviousLayoutConversion,
                         ::testing::Values(ConversionCase{"Set", 1, 0, 1},
                                           ConversionCase{"AnyNonZeroSets", 0x80, 0, 1},
                                           ConversionCase{"ZeroClears", 0, 1, 0},
                                           ConversionCase{"ZeroClearsOddValue", 0, 0x55, 0}),
                         [](const auto& info) { return std::string(info.param.name); });

// The field table's own invariants (no shared bits, defaults in range) hold for every field;
// here, that the reader's fields stay in the reader's bytes.
TEST(ReaderFieldTable, FieldsLieInTheReaderRangesWithDefaultsInRange) {
  for (const FieldDef* f : ReaderFields()) {
    const bool in_section = f->offset >= 3690 && f->LastByte() <= 3782;
    const bool in_two_d = f->offset >= 58659 && f->LastByte() <= 58880;
    EXPECT_TRUE(in_section || in_two_d) << f->name;
    EXPECT_FALSE(f->meaning.empty()) << f->name;
    if (f->type == FieldType::kBits) {
      EXPECT_LT(f->max, 1 << f->bit_count) << f->name;
    }
  }
}

TEST(ReaderWorkingBlock, FieldsAreReadAndWrittenInTheirOwnCopy) {
  auto doc = std::make_unique<Document>();
  WriteWorking(*doc, kScanMode, 3);
  EXPECT_EQ(0x30, doc->reader_block2[3710 - 3690]);
  EXPECT_EQ(0, doc->record[3710]);

  WriteWorking(*doc, kTwoDBox201, 5);
  EXPECT_EQ(0x05, doc->reader_block1[58689 - 58659]);
  EXPECT_EQ(0, doc->record[58689]);

  WriteWorking(*doc, kRfidMaxLen, 0x1234);  // record only, high byte first
  EXPECT_EQ(0x12, doc->record[58764]);
  EXPECT_EQ(0x34, doc->record[58765]);
  EXPECT_EQ(0x1234u, ReadWorking(*doc, kRfidMaxLen));

  EXPECT_EQ(ReaderBlock::kLinear, BlockOf(kMsiLength));
  EXPECT_EQ(ReaderBlock::kTwoD, BlockOf(kAimDuration));
  EXPECT_EQ(ReaderBlock::kNone, BlockOf(kAutoEnter));
  EXPECT_EQ(2u, WorkingBytes(*doc, kMsiLength).size());

  CopyReaderBlocksToRecord(*doc);
  EXPECT_EQ(0x30, doc->record[3710]);
  EXPECT_EQ(0x05, doc->record[58689]);
  doc->record[3711] = 9;
  CopyRecordToReaderBlocks(*doc);
  EXPECT_EQ(9u, ReadWorking(*doc, kTimeOut));
}

struct BeeperCase {
  const char* name;
  std::string bytes;
  std::size_t length;
};

class BeeperLength : public ::testing::TestWithParam<BeeperCase> {};

TEST(BeeperText, ShowsTheUsedLengthInHexadecimal) {
  auto doc = std::make_unique<Document>();
  SetDefaults(*doc, 1);
  EXPECT_EQ("1E 07 00 05 1E 07 ",
            BeeperSequenceText(
                FieldBytes(std::span<const std::uint8_t>(doc->record), kAlarmBeeperSequence)));
  EXPECT_EQ("0E 05 ", BeeperSequenceText(FieldBytes(std::span<const std::uint8_t>(doc->record),
                                                    kDataBeeperSequence)));
  EXPECT_EQ("", BeeperSequenceText(std::vector<std::uint8_t>(10, 0)));
}

TEST_P(BeeperLength, CountsPairsUpToTheLastNonZeroPair) {
  std::vector<std::uint8_t> bytes;
  for (int b : Hex(GetParam().bytes)) bytes.push_back(static_cast<std::uint8_t>(b));
  EXPECT_EQ(GetParam().length, BeeperSequenceLength(bytes));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, BeeperLength,
    ::testing::Values(BeeperCase{"AlarmDefault", "1E 07 00 05 1E 07 00 00 00 00", 6},
                      BeeperCase{"DataDefault", "0E 05 00 00 00 00 00 00 00 00", 2},
                      BeeperCase{"Empty", "00 00 00 00 00 00 00 00 00 00", 0},
                      BeeperCase{"ZeroPairInsideCounts", "01 00 00 00 00 02 00 00 00 00", 6},
                      BeeperCase{"SecondByteOnly", "00 00 00 00 00 00 00 00 00 01", 10},
                      BeeperCase{"Full", "01 01 01 01 01 01 01 01 01 01", 10},
                      BeeperCase{"ShortInput", "05", 0}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace veltrix
